// The schedule on paper: one line per row, under a header that names the trip and repeats its characteristics.
#pragma once

#include <array>

#include "interaction/progress.h"
#include "print/dati_stampa.h"
#include "print/foglio.h"

namespace cronovia {

/// The borders of the schedule's columns, in millimetres.
inline constexpr std::array<int, 16> kBordiCronovia = {5,   11,  71,  86,  94,  99,  109, 119,
                                                       131, 139, 147, 155, 175, 178, 186, 193};

/// Where the frames and rules begin: left of the first border, for numbers reach over it.
inline constexpr double kSinistraCronovia = 2;

/// The pages of a schedule; none when no row has a locality. Bold are stops, guide entries, rests and what a person
/// marked in a name: with a code of the logbook (Ps, Cs, Rs, Cm, Gp), which also gets a box to tick, or with a first
/// character of `> \ *`.
Stampato StampaCronovia(const DatiStampa& dati, const PieDiPagina& piede, Progress& progress);

/// The trip's characteristics in the page header, from the open page's line on; leaves the line at their end.
void StampaCaratteristiche(const DatiStampa& dati, Foglio& foglio);

}  // namespace cronovia
