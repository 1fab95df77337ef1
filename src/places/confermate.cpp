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

}  // namespace

// A row that tells no position is passed over: it may be damaged, or from another hand.
PosizioniConfermate::PosizioniConfermate(Archive& archive) {
    for (const Record& record : archive.Select({Table::Posizioni, {}})) {
        const auto posizione = LeggiPosizione(record[posizioni::Latitudine], record[posizioni::Longitudine]);
        if (posizione) perLocalita_[Chiave(record[posizioni::Localita])] = *posizione;
    }
}

std::optional<Posizione> PosizioniConfermate::Di(const QString& localita) const {
    const auto trovata = perLocalita_.find(Chiave(localita));
    return trovata == perLocalita_.end() ? std::nullopt : std::optional(trovata->second);
}

void ConfermaPosizione(Archive& archive, const QString& localita, const Posizione& posizione) {
    const QString chiave = Chiave(localita);
    const std::array valori = {chiave, TestoGradi(posizione.latitudine), TestoGradi(posizione.longitudine)};
    Transaction transaction(archive);
    DimenticaPosizione(archive, chiave);
    archive.Insert(Table::Posizioni, valori);
    transaction.Commit();
}

bool DimenticaPosizione(Archive& archive, const QString& localita) {
    Progress muto;
    return archive.DeleteMatching(Table::Posizioni, ConfermataDi(Chiave(localita)).conditions.front(), muto) > 0;
}

}  // namespace cronovia
