// SPDX-License-Identifier: GPL-3.0-or-later
// The data that a person gives as nome=valore, as the help of the verbs tells of them.
#pragma once

#include <vector>

#include "cli/verbi.h"

namespace cronovia {

/// Those of a trip, for `parametri`: every name that `DatiDellaMeta` knows is told once.
std::vector<DatoDetto> DatiDetti();
/// Those of a stage, for `tappe`.
std::vector<DatoDetto> DatiDettiDiUnaTappa();

}  // namespace cronovia
