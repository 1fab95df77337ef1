// SPDX-License-Identifier: GPL-3.0-or-later
// Sunrise and sunset, by the solar calculator of the NOAA Global Monitoring Laboratory, which follows Jean Meeus,
// Astronomical Algorithms.
#pragma once

#include <optional>

#include "calendar/date.h"
#include "places/posizione.h"

namespace cronovia {

/// In minutes since midnight of the clock asked for; below 0 or beyond 24 hours when that clock is on another day.
struct Sole {
    std::optional<int> alba;      ///< nothing when the sun does not rise on that day
    std::optional<int> tramonto;  ///< nothing when it does not set
};

/// To the nearest minute, for an open horizon at sea level; the clock is so many minutes before UTC.
Sole SoleDi(NumeroGiorno giorno, const Posizione& posizione, int minutiDaUtc);

/// How many minutes the clocks of Italy are before UTC by day: 120 in summer time, from the last Sunday of March to the
/// last one of October, else 60. A journey keeps that clock wherever it goes.
int MinutiDaUtcInItalia(NumeroGiorno giorno);

}  // namespace cronovia
