// SPDX-License-Identifier: GPL-3.0-or-later
#include "places/confermate.h"

#include <array>

#include "calendar/testo.h"

namespace cronovia {

namespace {

// As much of it as an itinerary stores.
QString Chiave(const QString& localita) {
    return Maiuscolo(localita.trimmed().left(Width(Table::Itinerari, itinerari::Localita) - 1));
}

Search ConfermataDi(const QString& chiave) {
    return {Table::Posizioni, {{posizioni::Localita, NamePattern::Exactly(chiave)}}};
}

std::optional<Posizione> PosizioneDi(const Record& record) {
    return LeggiPosizione(record[posizioni::Latitudine], record[posizioni::Longitudine]);
}

std::optional<Posizione> Confermata(Archive& archive, const QString& localita) {
    for (const Record& record : archive.Select(ConfermataDi(Chiave(localita)))) {
        if (const auto posizione = PosizioneDi(record)) return posizione;
    }
    return std::nullopt;
}

}  // namespace

// A row that tells no position is passed over: it may be damaged, or from another hand.
PosizioniConfermate::PosizioniConfermate(Archive& archive) {
    for (const Record& record : archive.Select({Table::Posizioni, {}})) {
        if (const auto posizione = PosizioneDi(record)) perLocalita_[Chiave(record[posizioni::Localita])] = *posizione;
    }
}

std::optional<Posizione> PosizioniConfermate::Di(const QString& localita) const {
    const auto trovata = perLocalita_.find(Chiave(localita));
    return trovata == perLocalita_.end() ? std::nullopt : std::optional(trovata->second);
}

CambioPosizione ConfermaPosizione(Archive& archive, const QString& localita, const Posizione& posizione) {
    const QString chiave = Chiave(localita);
    const std::array valori = {chiave, TestoGradi(posizione.latitudine), TestoGradi(posizione.longitudine)};
    Transaction transaction(archive);
    CambioPosizione cambio{chiave, Confermata(archive, chiave), LeggiPosizione(valori[1], valori[2])};
    if (cambio.prima == cambio.dopo) return cambio;
    DimenticaPosizione(archive, chiave);
    archive.Insert(Table::Posizioni, valori);
    transaction.Commit();
    return cambio;
}

bool DimenticaPosizione(Archive& archive, const QString& localita) {
    Progress muto;
    return archive.DeleteMatching(Table::Posizioni, ConfermataDi(Chiave(localita)).conditions.front(), muto) > 0;
}

CambiPosizioni AnnullaPosizioni(Archive& archive, const CambiPosizioni& cambi) {
    if (cambi.empty()) return {};
    CambiPosizioni fatti;
    Transaction transaction(archive);
    for (auto cambio = cambi.rbegin(); cambio != cambi.rend(); ++cambio) {
        if (Confermata(archive, cambio->localita) != cambio->dopo) continue;
        if (cambio->prima) {
            ConfermaPosizione(archive, cambio->localita, *cambio->prima);
        } else {
            DimenticaPosizione(archive, cambio->localita);
        }
        fatti.push_back({cambio->localita, cambio->dopo, cambio->prima});
    }
    transaction.Commit();
    return fatti;
}

}  // namespace cronovia
