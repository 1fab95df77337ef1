// SPDX-License-Identifier: GPL-3.0-or-later
#include "schedule/rientro.h"

#include "calendar/durata.h"
#include "schedule/orologio_indietro.h"

namespace cronovia {

using namespace Qt::StringLiterals;

namespace {

// The hour as the row shows it: on the clock of its day, to the minute.
Centesimi OraMostrata(const RigaCronovia& riga) {
    Durata ora = InDurata(riga.ora, kGiornoOrologio);
    ora.giorni = 0;
    return InCentesimi(ora, kGiornoOrologio);
}

LimiteRitorno Limite(bool prosecuzione, const OrologioIndietro& orologio) {
    return {prosecuzione, orologio.Momento().data, orologio.Momento().ora};
}

// Nothing for rows of which the way does not consist.
const TraghettoAOrario* TraghettoDi(const RigaCronovia& riga, const TabellaCalcolo& tabella) {
    if (riga.genere != GenereRiga::Traghetto) return nullptr;
    return &*tabella.righe[static_cast<std::size_t>(riga.tappa)].tappa.vincoli->traghetto;
}

void SegnaProsecuzione(std::span<RigaCronovia> righe, const TabellaCalcolo& tabella, OrologioIndietro& orologio) {
    righe.back().limite = Limite(true, orologio);
    bool guidato = false;  // rows below this one were driven
    for (auto riga = righe.rbegin(); riga != righe.rend(); ++riga) {
        const Centesimi tempo = TempoMostrato(*riga);
        const TraghettoAOrario* traghetto = TraghettoDi(*riga, tabella);
        if (tempo == 0_cent && traghetto == nullptr) continue;
        if (guidato) riga->limite = Limite(true, orologio);
        if (traghetto != nullptr) {
            orologio.Salpa(*traghetto);
        } else {
            orologio.Guida(tempo);
            orologio.PastiENotti();
        }
        guidato = true;
    }
}

// Whether turning back at the end of a row is too late: its mark's day, with its own hour, is not before the clock.
bool TroppoLontana(const RigaCronovia& riga, Istante orologio) {
    if (!riga.limite) return false;
    const NumeroGiorno limite = riga.limite->data;
    return limite > orologio.data || (limite == orologio.data && orologio.ora <= OraMostrata(riga));
}

void SegnaRitorno(std::span<RigaCronovia> righe, const TabellaCalcolo& tabella, OrologioIndietro& orologio) {
    for (RigaCronovia& riga : righe.subspan(1)) {
        const Centesimi tempo = TempoMostrato(riga);
        const TraghettoAOrario* traghetto = TraghettoDi(riga, tabella);
        if (tempo == 0_cent && traghetto == nullptr) continue;
        if (traghetto != nullptr) {
            orologio.Attraversa(*traghetto);
        } else {
            orologio.Guida(tempo);
        }
        if (TroppoLontana(riga, orologio.Momento())) break;
        orologio.PastiENotti();
        riga.limite = Limite(false, orologio);
    }
}

}  // namespace

Centesimi TempoMostrato(const RigaCronovia& riga) { return ArrotondaAlMinuto(riga.tempo, kGiornoOrologio); }

void SegnaRientro(std::span<RigaCronovia> righe, const TabellaCalcolo& tabella, Istante fine,
                  const OrarioCorretto& orario, Progress& progress) {
    if (righe.empty()) return;
    progress.Title(u"Calcolo del rientro rapido (prosecuzione)"_s);
    OrologioIndietro orologio(fine, orario);
    SegnaProsecuzione(righe, tabella, orologio);
    progress.Title(u"Calcolo del rientro rapido (ritorno)"_s);
    orologio.GuardaPasti();
    SegnaRitorno(righe, tabella, orologio);
}

}  // namespace cronovia
