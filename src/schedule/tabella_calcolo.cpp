// SPDX-License-Identifier: GPL-3.0-or-later
#include "schedule/tabella_calcolo.h"

namespace cronovia {

using namespace Qt::StringLiterals;

namespace {

struct Soste {
    Centesimi itinerario;
    Centesimi guida;
    bool fineGiorno = false;
};

Soste ApplicaCalcoloSoste(CalcoloSoste calcolo, Soste soste) {
    auto& [itinerario, guida, fineGiorno] = soste;
    switch (calcolo) {
        case CalcoloSoste::SosteItinerario:
            guida = 0_cent;
            break;
        case CalcoloSoste::SosteGuida:
            itinerario = 0_cent;
            fineGiorno = false;
            break;
        case CalcoloSoste::SostaMaggiore:  // at a tie the itinerary's stop stays
            (guida <= itinerario ? guida : itinerario) = 0_cent;
            break;
        case CalcoloSoste::SostaMinore:  // a guide time of 0 never wins, an itinerary's stop of 0 does
            if (guida >= itinerario) {
                guida = 0_cent;
            } else if (guida > 0_cent) {
                itinerario = 0_cent;
            }
            break;
        case CalcoloSoste::NessunaSosta:
            return {};
    }
    return soste;
}

}  // namespace

TabellaCalcolo PreparaTabellaPerCalcoloCronovia(std::span<const Tappa> tappe, const OrarioCorretto& orario,
                                                LettoreGuida& guida, Progress& progress) {
    progress.Title(u"Elaborazione delle soste e guida città"_s);
    const Centesimi giorno = orario.VisitaGiorno();
    TabellaCalcolo tabella;
    tabella.righe.reserve(tappe.size());
    guida.Anticipa(LocalitaDelleTappe(tappe));
    guida.Ricomincia();
    for (const Tappa& tappa : tappe) {
        if (tappa.localita.isEmpty()) continue;
        RigaCalcolo riga;
        riga.tappa = tappa;
        riga.voci = guida.Voci(tappa.localita);
        Soste soste{InCentesimi(tappa.sosta, giorno), guida.PrendiTempoVisite(tappa.localita), tappa.fineGiorno};
        riga.tappa.guida = InDurata(soste.guida, giorno);
        if (soste.itinerario > 0_cent || soste.guida > 0_cent) {
            soste = ApplicaCalcoloSoste(orario.Parametri().calcoloSoste, soste);
        }
        riga.fineGiorno = soste.fineGiorno;
        riga.sostaItinerario = InDurata(soste.itinerario, giorno);
        riga.sostaGuida = InDurata(soste.guida, giorno);
        riga.sosta = InDurata(soste.itinerario + soste.guida, giorno);
        tabella.totaleSoste += soste.itinerario + soste.guida;
        tabella.righe.push_back(std::move(riga));
        progress.Advance(static_cast<double>(tabella.righe.size()), static_cast<double>(tappe.size()));
    }
    return tabella;
}

}  // namespace cronovia
