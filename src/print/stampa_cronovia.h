// SPDX-License-Identifier: GPL-3.0-or-later
// The schedule on paper: one line per row under a line for its day, and a header that names the trip.
#pragma once

#include <array>

#include "interaction/progress.h"
#include "print/dati_stampa.h"
#include "print/foglio.h"

namespace cronovia {

/// The borders of the schedule's columns, in millimetres.
inline constexpr std::array<double, 16> kBordiCronovia = {5,   11,  71,  86,  94,  99,  109, 119,
                                                          131, 139, 147, 155, 175, 178, 186, 193};

/// The pages of a schedule; none when no row has a locality. The first page repeats the trip's characteristics, the
/// others only its name. A stage stays on one page with its stop and guide entries, and a day's line with the first of
/// them, unless they would fill a third of the page. What a row tells by its weight: bold are days, the places where
/// one stops or sleeps, nights, rests, the time of a visit, and what a person marked in a name: with a code of the
/// logbook (Ps, Cs, Rs, Cm, Gp), which also gets a box to tick, or with a first character of `> \ *`.
Stampato StampaCronovia(const DatiStampa& dati, const PieDiPagina& piede, Progress& progress);

}  // namespace cronovia
