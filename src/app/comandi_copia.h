// SPDX-License-Identifier: GPL-3.0-or-later
// The commands of the copy screen.
#pragma once

#include "app/postazione.h"

namespace cronovia::comandi {

/// Lists the trips to copy from, beside the entry of stages.
void Duplica(Postazione& p);
/// Does something on the screen; it closes when nothing is left to choose from.
void SullaCopia(Postazione& p, const std::function<void(TavoloCopia&)>& comando);
/// The current stage becomes the first one of the stretch; the last one.
void AssegnaInizio(Postazione& p);
void AssegnaFine(Postazione& p);
/// Copies the stretch that was chosen, after a question; nothing before both its ends are.
void InserisciTratto(Postazione& p);
/// Back to the entry of stages as it was left.
void RinunciaDuplicaItinerario(Postazione& p);

}  // namespace cronovia::comandi
