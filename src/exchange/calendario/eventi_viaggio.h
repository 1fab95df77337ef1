// SPDX-License-Identifier: GPL-3.0-or-later
// A schedule as the events of a calendar.
#pragma once

#include <QString>
#include <optional>
#include <span>
#include <vector>

#include "itinerary/posizioni.h"
#include "schedule/riga_cronovia.h"

namespace cronovia {

/// One event, in words.
struct Evento {
    QString chiave;       ///< what it is about, the same as long as the journey has it; no two events have one
    QString titolo;       ///< on one line
    QString luogo;        ///< empty where one is on the way
    QString descrizione;  ///< several lines, or empty
    Istante inizio;
    std::optional<Istante> fine = {};         ///< nothing: a moment
    bool tuttoIlGiorno = false;               ///< the day of its begin, whatever the hours
    std::optional<int> minutiAvviso = {};     ///< how long before it one is to be reminded
    std::optional<Posizione> posizione = {};  ///< of the place, where it is known
};

/// Drives, stops, ferries, nights, days of rest, the hours that others set, and with `giornate` each day as a whole,
/// in the order of time. `posizioni` are those of the schedule's stages; none when they are not known.
std::vector<Evento> EventiDelViaggio(const Cronovia& cronovia, NumeroGiorno partenza,
                                     std::span<const PosizioneTappa> posizioni, bool giornate);

}  // namespace cronovia
