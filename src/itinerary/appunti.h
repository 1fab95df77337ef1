// SPDX-License-Identifier: GPL-3.0-or-later
// Stages as text between the itinerary and a spreadsheet: a line each, cells parted by tabs, a heading first.
#pragma once

#include <QString>

#include "itinerary/modifiche.h"

namespace cronovia {

/// "Tappa", "Num. Strada", "Km.", "Ts" and "Sosta" of each stage, and which kilometres are a guess, where some are;
/// free rows are left out. No cell is taken for a formula by a spreadsheet.
QString TestoPerAppunti(std::span<const Tappa> righe);

/// The stages of such a text. A heading puts the columns in any order, others among them are passed over; without one
/// they are those above, as many as there are. Kilometres that are not told are to be told, but where a stage can do
/// without: a stop, a ferry. A `Failure` names the first line that does not fit, and why.
RigheItinerario LeggiAppunti(const QString& testo);

}  // namespace cronovia
