// SPDX-License-Identifier: GPL-3.0-or-later
// What can be chosen for the timetable and the rests of a trip.
#pragma once

#include <array>

#include "trips/meta.h"

namespace cronovia {

/// The first and the last hour that a time can have, with any quarter of it.
struct LimitiOrario {
    mete::Field campo;                    ///< where it is stored
    Centesimi ParametriViaggio::*valore;  ///< and held
    int primaOra;
    int ultimaOra;
};
inline constexpr std::array<LimitiOrario, 9> kLimitiOrari = {{
    {mete::OraColazione, &ParametriViaggio::oraColazione, 0, 11},
    {mete::OraPranzo, &ParametriViaggio::oraPranzo, 11, 15},
    {mete::OraCena, &ParametriViaggio::oraCena, 18, 21},
    {mete::OraNotte, &ParametriViaggio::oraNotte, 20, 24},
    {mete::DurataPranzo, &ParametriViaggio::durataPranzo, 0, 2},
    {mete::DurataCena, &ParametriViaggio::durataCena, 0, 2},
    {mete::InizioVisita, &ParametriViaggio::inizioVisita, 0, 11},
    {mete::FineVisita, &ParametriViaggio::fineVisita, 16, 24},
    {mete::OreTraghetti, &ParametriViaggio::oreTraghetti, 1, 24},
}};

/// The lengths of a short rest, in minutes; the most hours between two of them; the most days of rest, and between
/// them.
inline constexpr std::array<int, 8> kMinutiDiRiposo = {0, 5, 10, 15, 20, 30, 45, 60};
inline constexpr int kMassimeOreTraRiposi = 8;
inline constexpr int kMassimiGiorniDiRiposo = 5;
inline constexpr int kMassimiGiorniTraRiposi = 10;

}  // namespace cronovia
