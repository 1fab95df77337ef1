// SPDX-License-Identifier: GPL-3.0-or-later
// Hours, days and numbers as people type them, more freely than files have them.
#pragma once

#include <QString>
#include <optional>

#include "calendar/date.h"

namespace cronovia {

/// The minutes of "22", "22:00", "22.00" or "2200", up to 99 hours; nothing for any other text.
std::optional<int> LeggiMinutiDigitati(const QString& testo);

/// The day of "28/06/2027", "28.6.27" or "28062027"; nothing when it is none.
std::optional<NumeroGiorno> LeggiDataDigitata(const QString& testo);

/// A number without sign, times ten to the power of `decimali`, of which it has no more digits behind its comma:
/// "1.234,5" and "1234.5" with 2 are 123450. A single point with three digits behind it parts nothing: "1.234" is
/// refused but with three decimals. Nothing for any other text, nor for more than 9 digits in all.
std::optional<int> LeggiDecimale(const QString& testo, int decimali);

/// The same of a sum of money, which the sign of the euro may stand before or behind: "1,95 €".
std::optional<int> LeggiEuro(const QString& testo, int decimali);

/// Such a number in the words of people: "1.234,50"; of its decimals at least `minimi` are shown.
QString TestoDecimale(int numero, int decimali, int minimi);

/// An amount of money: "1.234,50 €".
QString TestoEuro(int centesimi);

/// Why a text is refused as an hour, a length of time or a day.
QString NonOra(const QString& testo);
QString NonData(const QString& testo);

}  // namespace cronovia
