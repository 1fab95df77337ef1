// SPDX-License-Identifier: GPL-3.0-or-later
// The hours that others set, against the journey: the ferry that is reached, and since when one is late.
#pragma once

#include <optional>

#include "itinerary/vincoli.h"
#include "schedule/riga_cronovia.h"

namespace cronovia {

/// The departure of a ferry that is taken.
struct Imbarco {
    Istante partenza;
    Centesimi ritardo;   ///< past the departure that was missed, or the one that is kept waiting; 0 in time
    bool perso = false;  ///< the ferry before this one was missed
    std::optional<Centesimi> margine;  ///< how much later one could be at the quay; nothing when late
};

/// What someone takes who is at the quay: without a date the next departure that leaves time for boarding; with one
/// that departure, kept waiting when it must be. One counts as missed when it left on the day of the arrival or later,
/// less than 12 hours before one could have boarded.
Imbarco ImbarcoPer(const TraghettoAOrario& traghetto, Istante alMolo);

/// Compares the end of a schedule with the hour at which one has to be home, which is nothing when there is none; a
/// schedule without moments stays as it is.
void ConfrontaScadenza(const std::optional<Istante>& entro, Cronovia& cronovia);

/// Finds out since which stage each late hour, home too, could not be met any more.
void SegnaRitardi(Cronovia& cronovia);

}  // namespace cronovia
