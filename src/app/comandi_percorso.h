// SPDX-License-Identifier: GPL-3.0-or-later
// The commands that bring the routes of navigators and other programs into the itinerary, after a question that tells
// what they are.
#pragma once

#include "app/postazione.h"

namespace cronovia::comandi {

/// Puts the stages of a route into an empty itinerary.
void AltriPacchetti(Postazione& p);
/// Puts them behind the stage of the current row, or before that row when it is free, as one step; an empty itinerary
/// gets them as it does above.
void ImportaTratto(Postazione& p);

}  // namespace cronovia::comandi
