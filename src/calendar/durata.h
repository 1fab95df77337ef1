// SPDX-License-Identifier: GPL-3.0-or-later
// Durations as people write them, and their way into hundredths of an hour and back.
#pragma once

#include <QString>
#include <QStringView>

#include "calendar/centesimi.h"

namespace cronovia {

/// A duration in days, hours and minutes. What a day is worth is not part of it: 2400 hundredths on the clock, the
/// driving or the visiting hours of one day in totals. Any number of days fits, whatever two digits can show.
struct Durata {
    int giorni = 0;
    int ore = 0;
    int minuti = 0;

    /// No time at all.
    [[nodiscard]] bool Nulla() const { return giorni == 0 && ore == 0 && minuti == 0; }
    friend bool operator==(const Durata&, const Durata&) = default;
};

/// Reads "gg:hh:mm". A shorter text is padded on the left with zeros, so "1:30" is an hour and a half; of a longer one
/// the last eight characters count; what is no number counts as 0.
Durata LeggiDurata(QStringView testo);

/// Whether a text holds nothing but digits, colons and blanks, so that no part of it would count as 0 unseen.
bool DurataLeggibile(QStringView testo);

/// "gg:hh:mm", two digits each; the empty text for no time at all.
QString Testo(const Durata& durata);

/// "hh:mm" without the days; the empty text for no time at all.
QString TestoOre(const Durata& durata);

/// Hundredths of a duration whose days are worth `giorno` each. Minutes are rounded half up to whole hundredths.
Centesimi InCentesimi(const Durata& durata, Centesimi giorno);

/// Whole days of `giorno` hundredths, hours and minutes; minutes are rounded half up and sixty of them are an hour.
/// Negative times take the floor, so their days are negative. A day that is not positive counts as 2400.
Durata InDurata(Centesimi centesimi, Centesimi giorno);

/// "gg:hh:mm" of hundredths, whose days are worth `giorno` each; the empty text below half a minute.
QString Testo(Centesimi centesimi, Centesimi giorno);

/// A time of day as "hh:mm"; the empty text at hour 0.
QString TestoOrologio(Centesimi ora);

/// The value that hundredths have once they were written down to the minute and read again.
Centesimi ArrotondaAlMinuto(Centesimi centesimi, Centesimi giorno);

}  // namespace cronovia
