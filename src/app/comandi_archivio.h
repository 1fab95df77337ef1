// SPDX-License-Identifier: GPL-3.0-or-later
// What is done to the archive as a whole.
#pragma once

#include "app/postazione.h"

namespace cronovia::comandi {

/// Puts a copy that the person chooses into the archive's place, after telling what would change.
void Ripristina(Postazione& p);

/// Looks through the archive, tells what of a damaged one can be saved, and puts that into its place when it is wanted.
void Ripara(Postazione& p);

}  // namespace cronovia::comandi
