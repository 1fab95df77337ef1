// SPDX-License-Identifier: GPL-3.0-or-later
// A journey as one page for the phone: read without a network, without a program, on paper too.
#pragma once

#include <QByteArray>

#include "schedule/riga_cronovia.h"
#include "trips/meta.h"

namespace cronovia {

/// The page of a trip and its schedule as HTML in UTF-8: the trip in short, then a card for each day with its 24 hours,
/// its stages and stops, the guide's entries, what was noted and what is late. It refers to nothing outside itself. A
/// `Failure` without a start date or without rows.
QByteArray PaginaTelefono(const Meta& meta, const Cronovia& cronovia);

}  // namespace cronovia
