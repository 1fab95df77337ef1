// SPDX-License-Identifier: GPL-3.0-or-later
// The days of a journey on paper: a table with a strip of 24 hours for each.
#pragma once

#include "interaction/progress.h"
#include "print/dati_stampa.h"
#include "print/foglio.h"

namespace cronovia {

/// The pages of the days, one for up to a month; none without days.
Stampato StampaGiornate(const DatiStampa& dati, const PieDiPagina& piede, Progress& progress);

}  // namespace cronovia
