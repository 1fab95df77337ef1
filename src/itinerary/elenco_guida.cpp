// SPDX-License-Identifier: GPL-3.0-or-later
#include "itinerary/elenco_guida.h"

#include <set>

namespace cronovia {

using namespace Qt::StringLiterals;

TestiGuida IntestazioniGuida() {
    return {u"Num."_s, u"Tappa"_s, u"Sosta"_s, u"Descrizione segnalazione"_s, u"Tempo"_s, u"Tipo nota"_s};
}

TestiGuida ColonneGuida(int numero, const RigaGuida& riga) {
    if (!riga.voce) return {QString::number(numero), riga.localita, riga.sosta, {}, {}, {}};
    const VoceGuida& voce = *riga.voce;
    return {QString::number(numero), riga.localita, {}, voce.descrizione, TestoTempoVisita(voce.tempo), voce.tipo};
}

LocalitaDellaMeta LocalitaDellItinerario(Archive& archive, const QString& codiceMeta) {
    LocalitaDellaMeta localita;
    const Search ricerca{Table::Itinerari, {{itinerari::CodiceMeta, NamePattern::Exactly(codiceMeta)}}};
    std::set<QString> viste;
    const std::vector<Record> tappe = archive.Select(ricerca, {itinerari::Localita, itinerari::Sequenza});
    for (const Record& tappa : tappe) {
        const QString nome = tappa[itinerari::Localita].trimmed();
        if (nome.isEmpty() || !viste.insert(nome.toCaseFolded()).second) continue;
        localita.nomi.push_back(nome);
        localita.soste.push_back(tappa[itinerari::TempoSosta].trimmed());
    }
    return localita;
}

Message SenzaTappeMemorizzate() {
    return {u"Impossibile... non esistono tappe memorizzate!"_s, u"Guida Città"_s, Icon::Exclamation};
}

std::vector<RigaGuida> ElencoDellaGuida(Archive& archive, const QString& codiceMeta) {
    const ReadSnapshot momento(archive);
    const LocalitaDellaMeta localita = LocalitaDellItinerario(archive, codiceMeta);
    std::vector<VociGuida> voci = VociDelleLocalita(archive, localita.nomi);
    std::size_t numero = localita.nomi.size();
    for (const VociGuida& trovate : voci) numero += trovate.size();
    std::vector<RigaGuida> righe;
    righe.reserve(numero);
    for (std::size_t i = 0; i < localita.nomi.size(); ++i) {
        righe.push_back({localita.nomi[i], localita.soste[i], std::nullopt});
        for (VoceGuida& voce : voci[i]) righe.push_back({localita.nomi[i], {}, std::move(voce)});
    }
    return righe;
}

}  // namespace cronovia
