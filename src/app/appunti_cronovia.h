// SPDX-License-Identifier: GPL-3.0-or-later
// The schedule as text for the clipboard.
#pragma once

#include <QString>
#include <span>
#include <vector>

#include "schedule/giornate.h"
#include "trips/meta.h"

namespace cronovia {

/// Rows of the schedule under the grid's headings, a line each, their cells parted by tabs. `righe` are positions.
QString TestoDelleRighe(const Cronovia& cronovia, std::span<const int> righe);

/// The days for a message: the trip, then a line for each day, with what is late or put off below it.
QString TestoPerMessaggio(const Meta& meta, const Cronovia& cronovia, const std::vector<Giornata>& giornate);

}  // namespace cronovia
