#include "print/dati_stampa.h"

namespace cronovia {

namespace {

std::vector<RigaStampata> Righe(const Cronovia& cronovia) {
    std::vector<RigaStampata> righe;
    righe.reserve(cronovia.righe.size());
    for (std::size_t i = 0; i < cronovia.righe.size(); ++i) {
        const RigaCronovia& riga = cronovia.righe[i];
        righe.push_back({riga.genere, riga.eventi.riposo, TestiDellaRiga(cronovia, i)});
    }
    return righe;
}

}  // namespace

DatiStampa PreparaStampa(const Meta& meta, const Cronovia& cronovia) {
    return {meta, cronovia.orario, Righe(cronovia), TestiFine(cronovia),
            Testi(cronovia.totali, cronovia.orario.GuidaGiorno())};
}

}  // namespace cronovia
