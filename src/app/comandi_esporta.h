// SPDX-License-Identifier: GPL-3.0-or-later
// The commands that write the open journey to files for others.
#pragma once

#include "app/postazione.h"

namespace cronovia::comandi {

/// Ask for a file and write the open trip, as it is on screen, with its schedule; what stands against that is told.
void PaginaTelefono(Postazione& p);
void Calendario(Postazione& p);

/// Puts the schedule on the clipboard, all of it or the day of the current row, as the person wants; its days as a
/// text for a message.
void CopiaCronovia(Postazione& p);
void CopiaGiornate(Postazione& p);

}  // namespace cronovia::comandi
