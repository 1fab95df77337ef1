// SPDX-License-Identifier: GPL-3.0-or-later
// Hours that others set, and moments of the travelling clock.
#pragma once

#include <QString>
#include <QStringView>
#include <compare>
#include <optional>

#include "calendar/centesimi.h"
#include "calendar/date.h"

namespace cronovia {

/// A moment: an hour of a day, which may lie beyond its 24 hours.
struct Istante {
    NumeroGiorno data;
    Centesimi ora;

    /// The time from `b` to `a`, and the moment so much later, whose hour lies within its day.
    friend Centesimi operator-(Istante a, Istante b);
    friend Istante operator+(Istante a, Centesimi tempo);
    friend std::partial_ordering operator<=>(Istante a, Istante b) { return (a - b) <=> 0_cent; }
    friend bool operator==(Istante a, Istante b) { return a - b == 0_cent; }
};

/// An hour that others set: a time of day to the minute, on one day of the calendar or on whichever.
class OraFissa {
  public:
    /// Nothing when the minutes since midnight, or the day, are none.
    static std::optional<OraFissa> Da(int minuti, std::optional<NumeroGiorno> data = {});

    /// Minutes since midnight, its day if it has one, and the same minutes as a time of the calculation.
    [[nodiscard]] int Minuti() const { return minuti_; }
    [[nodiscard]] const std::optional<NumeroGiorno>& Data() const { return data_; }
    [[nodiscard]] Centesimi Ora() const;
    /// Its moment on its own day, or else on `giorno`.
    [[nodiscard]] Istante Il(NumeroGiorno giorno) const { return {data_.value_or(giorno), Ora()}; }
    /// The same on any day.
    [[nodiscard]] OraFissa SenzaData() const;

    friend bool operator==(const OraFissa&, const OraFissa&) = default;

  private:
    OraFissa(int minuti, std::optional<NumeroGiorno> data) : minuti_(minuti), data_(data) {}

    int minuti_;
    std::optional<NumeroGiorno> data_;
};

inline constexpr int kMinutiDelGiorno = 24 * 60;

/// The minutes of "hhmm" or "h:mm", up to 99 hours; nothing for any other text. And so many minutes in the form that
/// is stored, "hhmm", and in the one that people read, "hh:mm".
std::optional<int> LeggiMinuti(QStringView testo);
QString TestoMinutiMemorizzati(int minuti);
QString TestoMinuti(int minuti);

/// A time as "hh:mm", its hours beyond 24 too and with as many digits as they take: "00:00", "216:05".
QString TestoOreLunghe(Centesimi tempo);

/// The day of "ddmmyyyy" or "dd/mm/yyyy"; nothing when it is none.
std::optional<NumeroGiorno> LeggiDataScritta(QStringView testo);

/// "22:00", with its day "lun 28/06/2027 22:00".
QString Testo(const OraFissa& ora);

}  // namespace cronovia
