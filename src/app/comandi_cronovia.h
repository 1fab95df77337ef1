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

/// Computes the schedule when none is on screen; with one, the choices of its printout come in front.
void Stampa(Postazione& p);
/// The run has begun, nothing else can be given; the choices are left, after the run or without one.
void StampaInCorso(Postazione& p);
void FineStampa(Postazione& p);

}  // namespace cronovia::comandi
