// SPDX-License-Identifier: GPL-3.0-or-later
// The plane of the maps.
#pragma once

#include "places/posizione.h"

namespace cronovia {

/// In kilometres from the middle of Europe: x to the east, y to the south, as screens count.
struct PuntoMappa {
    double x = 0;
    double y = 0;
};

/// Lambert's conformal conic projection of the sphere with the parallels 38° and 66° north and the meridian 12° east,
/// which keeps shapes from Sicily to the North Cape: J. P. Snyder, Map Projections, 1987, formulas 15-1 to 15-5.
/// Latitudes below -60° or above 89.9° count as that. `Ricava` is the way back.
PuntoMappa Proietta(const Posizione& posizione);
Posizione Ricava(const PuntoMappa& punto);

}  // namespace cronovia
