// SPDX-License-Identifier: GPL-3.0-or-later
// The commands that compute the schedule, unlock it and print it.
#pragma once

#include "app/postazione.h"

namespace cronovia::comandi {

/// Computes the schedule, or unlocks the one on screen: what it was computed from is in front again.
void Calcola(Postazione& p);
/// Computes it from the entry of stages.
void Ricalcola(Postazione& p);

/// Stages were changed in the schedule: it is computed anew, and unlocking leads to the entry of stages; so does a
/// schedule that cannot be computed, which is told. Nothing happens on other screens.
void RicalcolaSulPosto(Postazione& p);

/// Shows what other stops and days would come to; the one that is chosen is computed.
void Confronta(Postazione& p);

/// Asks when one has to be home, and for the prices of the trip.
void ACasaEntro(Postazione& p);

/// Computes the schedule when none is on screen; then the choices of its printout come in front, also from the
/// printers.
void Stampa(Postazione& p);

// Printing, of the schedule or of the guide, as the screen in front is.
/// From what is to be printed on to the printer; one step back from there.
void ScegliStampante(Postazione& p);
void RinunciaStampa(Postazione& p);
/// Shows the pages; prints them.
void Anteprima(Postazione& p);
void AvviaStampa(Postazione& p);
/// The run has begun, nothing else can be given; it has ended, and what was printed is in front again.
void StampaInCorso(Postazione& p);
void FineStampa(Postazione& p);

}  // namespace cronovia::comandi
