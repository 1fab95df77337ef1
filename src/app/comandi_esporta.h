// SPDX-License-Identifier: GPL-3.0-or-later
// The commands that write the open journey to files for others.
#pragma once

#include "app/postazione.h"

namespace cronovia::comandi {

/// Ask for a file and write the open trip, as it is on screen, with its schedule; what stands against that is told.
void PaginaTelefono(Postazione& p);

}  // namespace cronovia::comandi
