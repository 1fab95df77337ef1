// SPDX-License-Identifier: GPL-3.0-or-later
// The journey on maps: whole, and day by day.
#pragma once

#include "interaction/progress.h"
#include "print/dati_stampa.h"
#include "print/foglio.h"

namespace cronovia {

/// The pages with the map of the data, which must have one: the whole journey as large as its shape allows and, if
/// wanted, below it a small one for each day on which a stage is reached. A sentence when no place of it is known.
Stampato StampaMappe(const DatiStampa& dati, bool perGiorno, const PieDiPagina& piede, Progress& progress);

}  // namespace cronovia
