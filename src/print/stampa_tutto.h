// SPDX-License-Identifier: GPL-3.0-or-later
// The print run: the table file, the pages, the forms for the logbook.
#pragma once

#include <QString>
#include <functional>

#include "interaction/interaction.h"
#include "interaction/progress.h"
#include "print/dati_stampa.h"
#include "print/foglio.h"

namespace cronovia {

/// Which pages are wanted.
struct PagineScelte {
    bool cronovia = false;
    bool giornate = false;
};

/// The pages that were chosen in one document: the days, the maps if the data have one, the schedule. With maps all
/// pages are counted through, else each part counts its own.
Stampato StampaLeScelte(const DatiStampa& dati, const PieDiPagina& piede, PagineScelte scelte, Progress& progress);

/// A print run; `dati` must outlive it.
struct RichiestaStampa {
    const DatiStampa& dati;
    PieDiPagina piede;
    QString cartella;                             ///< where the table file lies
    PagineScelte pagine;                          ///< what goes to the printer
    bool moduli = false;                          ///< forms for the logbook are wanted
    std::function<void(const Stampato&)> stampa;  ///< prints on what was chosen; may throw a `Failure`
    std::function<void()> avviaModuli;            ///< starts the logbook program; may throw a `Failure`
};

/// Always writes the table file. What goes wrong with one of the three is told and does not keep the others from being
/// done; at the end the person hears what was done.
void StampaTutto(const RichiestaStampa& richiesta, Interaction& interaction, Progress& progress);

}  // namespace cronovia
