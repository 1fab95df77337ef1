// SPDX-License-Identifier: GPL-3.0-or-later
// The sun over the days of a journey, where one knows the places.
#pragma once

#include <QString>
#include <optional>
#include <span>
#include <vector>

#include "itinerary/posizioni.h"
#include "schedule/giornate.h"

namespace cronovia {

/// In minutes since midnight of the Italian clock, which the schedule goes by too.
struct SoleGiornata {
    std::optional<int> alba;      ///< where the day begins; nothing where the place is not known, or there is none
    std::optional<int> tramonto;  ///< where it ends, in the same way
    QString arrivoAlBuio;         ///< the locality that is reached after the sun has set there; empty for none
};

/// One for each day. `posizioni` are those of the stages of the calculation table; guesses count as not known.
std::vector<SoleGiornata> SoleDelleGiornate(const std::vector<Giornata>& giornate, const Cronovia& cronovia,
                                            std::span<const PosizioneTappa> posizioni);

/// The stages of the calculation table, whose positions are asked for.
std::vector<Tappa> TappeCalcolate(const Cronovia& cronovia);

/// The reasons of a day and behind them, when it ends in the dark, "arrivo a ALTA dopo il tramonto (21:07)".
QStringList TestiRinvii(const Giornata& giornata, const Cronovia& cronovia, const SoleGiornata& sole);

}  // namespace cronovia
