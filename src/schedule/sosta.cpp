// SPDX-License-Identifier: GPL-3.0-or-later
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

// Takes the clock through a stop and notes what its time is spent on.
class Percorrenza {
  public:
    Percorrenza(const OrarioCorretto& orario, const RichiestaSosta& richiesta, Centesimi traghetto, EsitoSosta& esito)
        : p_(orario.Parametri()),
          orePosto_(richiesta.visite.has_value()),
          inizioVisita_(orePosto_ ? richiesta.visite->Apre() : p_.inizioVisita),
          fineVisita_(orePosto_ ? richiesta.visite->Chiude() : p_.fineVisita),
          traghetto_(traghetto),
          esito_(esito),
          orologio_(esito.orologio) {}

    void AspettaLeVisite() {
        if (orologio_.ora < inizioVisita_) orologio_.ora = inizioVisita_;
        if (orologio_.ora <= fineVisita_) return;
        esito_.ritardo = orologio_.ora - fineVisita_;
        orologio_.NuovoGiorno(inizioVisita_);
    }

    void DistribuisciSuiGiorni(Centesimi resto) {
        while (resto > 0_cent) {
            Centesimi parte = resto;
            if (orologio_.ora + parte > fineVisita_) parte = fineVisita_ - orologio_.ora;
            Annota(parte);
            orologio_.ora += parte;
            if (orologio_.ora >= fineVisita_ - kFineVisiteVicina && !(orePosto_ && parte == resto)) {
                orologio_.data += 1;
                orologio_.ora = parte == resto ? p_.oraColazione : inizioVisita_;
            }
            resto -= parte;
        }
    }

    void PastoPassato(GenereFascia pasto, Centesimi inizio, Centesimi durata, bool& fatto) {
        if (orologio_.ora <= inizio) return;
        if (orologio_.ora < inizio + durata && !fatto) {
            esito_.fasce.push_back({pasto, 0, orologio_.data, orologio_.ora, inizio + durata});
            orologio_.ora = inizio + durata;
        }
        fatto = true;
    }

  private:
    // The ferry comes before the visits.
    void Annota(Centesimi parte) {
        if (parte <= 0_cent) return;
        const Centesimi inMare = std::min(parte, traghetto_);
        const Centesimi sbarco = orologio_.ora + inMare;
        if (inMare > 0_cent)
            esito_.fasce.push_back({GenereFascia::Traghetto, 0, orologio_.data, orologio_.ora, sbarco});
        if (parte > inMare) {
            esito_.fasce.push_back({GenereFascia::Visita, 0, orologio_.data, sbarco, orologio_.ora + parte});
        }
        traghetto_ -= inMare;
        ++esito_.giorni;
    }

    const ParametriViaggio& p_;
    bool orePosto_;  // the visiting hours are the place's own
    Centesimi inizioVisita_;
    Centesimi fineVisita_;
    Centesimi traghetto_;  // still to come
    EsitoSosta& esito_;
    Orologio& orologio_;
};

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

void Orologio::Va(Istante momento) {
    if (momento.data > data) NuovoGiorno(momento.ora);
    data = momento.data;
    ora = momento.ora;
}

EsitoSosta CalcolaLaSosta(const RichiestaSosta& richiesta, const OrarioCorretto& orario, const Orologio& inizio) {
    const ParametriViaggio& p = orario.Parametri();
    const Centesimi scalata = Scalata(richiesta, orario.VisitaGiorno());
    EsitoSosta esito{inizio, Motivo::Nessuno, richiesta.sosta, {}, {}, 0};
    if (scalata == 0_cent && !richiesta.traghetto) return esito;

    esito.motivo = MotivoDi(richiesta);
    esito.sosta = InDurata(scalata, orario.VisitaGiorno());
    const Centesimi traghetto = richiesta.traghetto ? p.oreTraghetti : 0_cent;
    const Centesimi durata = scalata + traghetto;
    Orologio& orologio = esito.orologio;
    Percorrenza percorrenza(orario, richiesta, traghetto, esito);
    percorrenza.AspettaLeVisite();
    percorrenza.DistribuisciSuiGiorni(durata);
    if (richiesta.fineGiorno) {
        orologio.data += 1;
        orologio.ora = p.oraColazione;
    }
    if (richiesta.pastiOgniGiorno && orologio.data > inizio.data) orologio.pranzoFatto = orologio.cenaFatta = false;
    percorrenza.PastoPassato(GenereFascia::Pranzo, p.oraPranzo, p.durataPranzo, orologio.pranzoFatto);
    percorrenza.PastoPassato(GenereFascia::Cena, p.oraCena, p.durataCena, orologio.cenaFatta);
    if (durata >= orario.VisitaGiorno()) orologio.ultimoRiposo = orologio.data;
    return esito;
}

}  // namespace cronovia
