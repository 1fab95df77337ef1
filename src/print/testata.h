// SPDX-License-Identifier: GPL-3.0-or-later
// The head of the pages of a trip.
#pragma once

#include "print/dati_stampa.h"
#include "print/foglio.h"

namespace cronovia {

/// Where frames and rules begin and end.
inline constexpr double kSinistraFoglio = 2;
inline constexpr double kDestraFoglio = 193;

/// Opens a page with the trip's name and its characteristics; leaves the line at their end.
void ApriPrimaPagina(const DatiStampa& dati, Foglio& foglio);

/// Opens a page with the trip's name, its period and the page's number in one line; leaves the line there.
void ApriPaginaSeguente(const DatiStampa& dati, Foglio& foglio);

/// The trip's characteristics from the open page's line on; leaves the line at their end.
void StampaCaratteristiche(const DatiStampa& dati, Foglio& foglio);

}  // namespace cronovia
