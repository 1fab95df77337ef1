#include "schedule/sosta.h"

#include <algorithm>

namespace cronovia {

namespace {

// This close to the end of the visiting hours, the day's visits are over.
constexpr Centesimi kFineVisiteVicina = 2_cent;

// No stop is scaled beyond this: a stop behind the last piece of road does not count for the trip's days, so that the
// passes would stretch it again and again.
constexpr float kMassimoGiorni = 999;

Centesimi Scalata(const RichiestaSosta& richiesta, Centesimi giorno) {
    return std::min(InCentesimi(richiesta.sosta, giorno) * richiesta.fattore, giorno * kMassimoGiorni);
}

void DistribuisciSuiGiorni(Centesimi resto, const ParametriViaggio& p, Orologio& orologio) {
    while (resto > 0_cent) {
        Centesimi parte = resto;
        if (orologio.ora + parte > p.fineVisita) parte = p.fineVisita - orologio.ora;
        orologio.ora += parte;
        if (orologio.ora >= p.fineVisita - kFineVisiteVicina) {
            orologio.data += 1;
            orologio.ora = parte == resto ? p.oraColazione : p.inizioVisita;
        }
        resto -= parte;
    }
}

void PastoPassato(Centesimi pasto, Centesimi durata, bool& fatto, Centesimi& ora) {
    if (ora <= pasto) return;
    if (ora < pasto + durata && !fatto) ora = pasto + durata;
    fatto = true;
}

Motivo MotivoDi(const RichiestaSosta& richiesta) {
    if (richiesta.traghetto) return Motivo::TraghettoVisita;
    return richiesta.fineGiorno ? Motivo::VisitaFineGiorno : Motivo::Visita;
}

}  // namespace

void Orologio::NuovoGiorno(Centesimi ripresa) {
    data += 1;
    ora = ripresa;
    pranzoFatto = false;
    cenaFatta = false;
}

EsitoSosta CalcolaLaSosta(const RichiestaSosta& richiesta, const OrarioCorretto& orario, const Orologio& inizio) {
    const ParametriViaggio& p = orario.Parametri();
    const Centesimi scalata = Scalata(richiesta, orario.VisitaGiorno());
    EsitoSosta esito{inizio, Motivo::Nessuno, richiesta.sosta};
    if (scalata == 0_cent && !richiesta.traghetto) return esito;

    esito.motivo = MotivoDi(richiesta);
    esito.sosta = InDurata(scalata, orario.VisitaGiorno());
    const Centesimi durata = scalata + (richiesta.traghetto ? p.oreTraghetti : 0_cent);
    Orologio& orologio = esito.orologio;
    if (orologio.ora < p.inizioVisita) orologio.ora = p.inizioVisita;
    if (orologio.ora > p.fineVisita) orologio.NuovoGiorno(p.inizioVisita);
    DistribuisciSuiGiorni(durata, p, orologio);
    if (richiesta.fineGiorno) {
        orologio.data += 1;
        orologio.ora = p.oraColazione;
    }
    PastoPassato(p.oraPranzo, p.durataPranzo, orologio.pranzoFatto, orologio.ora);
    PastoPassato(p.oraCena, p.durataCena, orologio.cenaFatta, orologio.ora);
    if (durata >= orario.VisitaGiorno()) orologio.ultimoRiposo = orologio.data;
    return esito;
}

}  // namespace cronovia
