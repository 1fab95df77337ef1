#include "print/dati_stampa.h"

#include <algorithm>

namespace cronovia {

namespace {

// Whether its column of stops has a text.
bool ConSosta(const Cronovia& cronovia, const RigaCronovia& riga) {
    if (riga.genere != GenereRiga::Guida) return riga.fineGiorno || !riga.sosta.Nulla();
    const RigaCalcolo& tappa = cronovia.tabella.righe[static_cast<std::size_t>(riga.tappa)];
    return !(*tappa.voci)[static_cast<std::size_t>(riga.voce)].tempo.Nulla();
}

// Behind the last row stands that row itself.
std::vector<RigaStampata> Righe(const Cronovia& cronovia) {
    std::vector<RigaStampata> righe;
    righe.reserve(cronovia.righe.size());
    for (std::size_t i = 0; i < cronovia.righe.size(); ++i) {
        const RigaCronovia& riga = cronovia.righe[i];
        const RigaCronovia& dopo = cronovia.righe[std::min(i + 1, cronovia.righe.size() - 1)];
        const auto limite = riga.limite ? std::optional(Testi(*riga.limite)) : std::nullopt;
        righe.push_back(
            {riga.genere, riga.eventi.riposo, ConSosta(cronovia, dopo), limite, TestiDellaRiga(cronovia, i)});
    }
    return righe;
}

}  // namespace

DatiStampa PreparaStampa(const Meta& meta, const Cronovia& cronovia) {
    return {meta, cronovia.orario, Righe(cronovia), Testi(cronovia.fine),
            Testi(cronovia.totali, cronovia.orario.GuidaGiorno())};
}

}  // namespace cronovia
