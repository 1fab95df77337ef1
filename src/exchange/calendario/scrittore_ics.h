// SPDX-License-Identifier: GPL-3.0-or-later
// Calendars in the form that all programs for calendars read (RFC 5545).
#pragma once

#include <QByteArray>
#include <span>

#include "exchange/calendario/eventi_viaggio.h"

class QDateTime;

namespace cronovia {

/// The calendar of a trip, named after its destination, which the identities of its events come from too: they stay the
/// same when it is written again, so that a second import changes the events of the first. Hours are those of the clock
/// of whoever travels, of no time zone. `adesso` is when it is written.
QByteArray CalendarioIcs(const QString& destinazione, std::span<const Evento> eventi, const QDateTime& adesso);

}  // namespace cronovia
