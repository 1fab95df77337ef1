// SPDX-License-Identifier: GPL-3.0-or-later
// Stages made from stages that exist already: the way back, and stretches of other trips. Rows are counted from 1.
#pragma once

#include <optional>
#include <span>

#include "itinerary/modifiche.h"

namespace cronovia {

/// An itinerary after a command, with the row that is current then.
struct ItinerarioConTratto {
    RigheItinerario righe;
    int rigaCorrente = 1;
    bool trovata = true;  ///< false when `Ritorno` found no place of the last stage's name: nothing was added
};

/// Goes back to the departure place over the stages passed on the way out, from the place nearest to the end that is
/// the last stage's too; each leg has the road and the kilometres of the same leg of the way out, and no stop. Free
/// rows go. The row of that place is the current one; where the last stage is a place not passed before, nothing is
/// added and the last stage is.
ItinerarioConTratto Ritorno(std::span<const Tappa> righe);

/// Consecutive rows of an itinerary, `da` first; `da` beyond `a` is the stretch driven the other way.
struct Tratto {
    int da = 1;
    int a = 1;  ///< included

    friend bool operator==(const Tratto&, const Tratto&) = default;
};

/// The rows from the assigned first to the assigned last stage, in rising order and widened to hold the row `corrente`,
/// which stands for an end that is not assigned.
Tratto TrattoEvidenziato(std::optional<int> inizio, std::optional<int> fine, int corrente);

/// Puts a stretch of `sorgente`, which must have its rows, after the stage of row `riga`, or before it when that row is
/// free. A leg driven the other way has the road and kilometres of the stage that follows in the source; behind its
/// last stage there is none. Stops, with the ends of days and what others set, come along with `conSoste`, but for
/// dates and for the ferries of a leg driven the other way. The first new row is the current one.
ItinerarioConTratto CopiaTratto(RigheItinerario righe, int riga, std::span<const Tappa> sorgente, Tratto tratto,
                                bool conSoste);

}  // namespace cronovia
