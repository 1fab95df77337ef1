// SPDX-License-Identifier: GPL-3.0-or-later
// The verbs that move whole stretches of an itinerary. A leg whose stage comes to follow another place than before has
// kilometres that are to be told anew; none are guessed. Rows are counted from 1.
#pragma once

#include <optional>

#include "itinerary/tratti.h"

namespace cronovia {

/// An itinerary after rows were moved.
struct EsitoSpostamento {
    RigheItinerario righe;
    Tratto tratto;       ///< where the rows that it was about are now; the one behind them when they are gone
    int daIndicare = 0;  ///< legs whose kilometres got lost

    friend bool operator==(const EsitoSpostamento&, const EsitoSpostamento&) = default;
};

// `tratto` has `da` <= `a`; what of it lies behind the last row does not count, and of an empty one nothing is done.

/// Puts rows before row `dove`, behind the last one when there is none of that number; nothing within themselves.
EsitoSpostamento SpostaRighe(const RigheItinerario& righe, Tratto tratto, int dove);
/// Puts copies of rows right behind them.
EsitoSpostamento DuplicaRighe(const RigheItinerario& righe, Tratto tratto);
/// Takes rows away.
EsitoSpostamento TogliRighe(const RigheItinerario& righe, Tratto tratto);
/// Puts stages before row `dove`. `prima` is the place that the first of them is driven to from; nothing: the
/// kilometres that it has hold here.
EsitoSpostamento InserisciRighe(const RigheItinerario& righe, int dove, const RigheItinerario& nuove,
                                const std::optional<QString>& prima);

/// The place that the stage of a row is driven to from; empty for the departure.
QString LuogoPrecedente(const RigheItinerario& righe, int riga);

/// Puts a place on the way to the stage of a row, so many kilometres from its beginning; the rest is left to the stage,
/// of the same road. Nothing for the departure, without such kilometres, and when the leg is no longer than that.
std::optional<RigheItinerario> DividiTappa(RigheItinerario righe, int riga, const QString& localita, int km);

}  // namespace cronovia
