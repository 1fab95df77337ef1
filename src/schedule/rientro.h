// SPDX-License-Identifier: GPL-3.0-or-later
// The quick return: up to when one can drive on, or turn back, and still be home in time.
#pragma once

#include <span>

#include "interaction/progress.h"
#include "schedule/riga_cronovia.h"
#include "trips/orario.h"

namespace cronovia {

/// Marks the rows of a finished schedule. First from `fine`, its end or when one has to be home, upwards: each driving
/// row gets the latest moment at which, driving on without stops, one is there in time. Then, with the clock that
/// reached the top and the meals that are still to come by it, downwards: rows from which turning back at once still
/// reaches home in time get that latest moment instead, until the first row whose mark's day, with the row's own hour,
/// is not before the clock. Times count as the rows show them, to the minute; both ways the clock runs backwards
/// through meals and nights. Ferries with their own hours count as rows that are driven: onwards with the departure
/// that is still in time, back with the time that they take. `tabella` is the one that the rows came from.
void SegnaRientro(std::span<RigaCronovia> righe, const TabellaCalcolo& tabella, Istante fine,
                  const OrarioCorretto& orario, Progress& progress);

/// The driving time of a row as it shows it, to the minute.
Centesimi TempoMostrato(const RigaCronovia& riga);

}  // namespace cronovia
