// SPDX-License-Identifier: GPL-3.0-or-later
// Coasts and borders of Europe and what is around it, for maps.
#pragma once

#include <QString>
#include <vector>

#include "places/posizione.h"

namespace cronovia {

/// The points of a line, in degrees.
using LineaCosta = std::vector<Posizione>;

/// The background of a map.
struct Coste {
    std::vector<LineaCosta> terre;    ///< rings, filled together by the odd-even rule; cut where the known part ends
    std::vector<LineaCosta> confini;  ///< lines
};

/// The part of the earth that they cover: what is cut off runs along its rim.
inline constexpr Posizione kAngoloSudOvest{26, -26};
inline constexpr Posizione kAngoloNordEst{74, 62};

/// Empty when there is no such file, or it is none.
Coste LeggiCoste(const QString& file);

}  // namespace cronovia
