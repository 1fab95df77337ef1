// SPDX-License-Identifier: GPL-3.0-or-later
// Calendar dates as texts and as day numbers.
#pragma once

#include <QString>
#include <QStringView>
#include <compare>
#include <optional>

namespace cronovia {

/// A day of the calendar: months count from 1, the year has all its digits. Nothing keeps it to days that exist.
struct Gma {
    int giorno = 0;
    int mese = 0;
    int anno = 0;

    friend bool operator==(const Gma&, const Gma&) = default;
};

/// Number of a day: grows by one each day, 730135 is 1 January 2000. A true calendar from 1901 to 2099.
class NumeroGiorno {
  public:
    constexpr NumeroGiorno() = default;
    /// The day of that number, whether the calendar has it or not.
    constexpr explicit NumeroGiorno(int numero) : numero_(numero) {}

    [[nodiscard]] constexpr int Numero() const { return numero_; }

    /// A day and a number of days make a day, two days the number of days between them.
    constexpr NumeroGiorno& operator+=(int giorni) {
        numero_ += giorni;
        return *this;
    }
    friend constexpr NumeroGiorno operator+(NumeroGiorno g, int giorni) { return g += giorni; }
    friend constexpr NumeroGiorno operator-(NumeroGiorno g, int giorni) { return g += -giorni; }
    friend constexpr int operator-(NumeroGiorno a, NumeroGiorno b) { return a.numero_ - b.numero_; }
    friend constexpr auto operator<=>(NumeroGiorno, NumeroGiorno) = default;

  private:
    int numero_ = 0;
};

/// The text ddmmyyyy of a day.
QString TestoGma(const Gma& gma);

/// Number of a day, after the formula d + [30.57 m] + [365.25 y - 395.25], less 1 after February and less another one
/// after the February of a common year; [] is the floor. `GmaDelGiorno` is its inverse.
NumeroGiorno NumeroDelGiorno(const Gma& gma);
Gma GmaDelGiorno(NumeroGiorno giorno);

QString DataMemorizzata(NumeroGiorno giorno);  ///< the day as ddmmyyyy
QString TestoData(NumeroGiorno giorno);        ///< the day as dd/mm/yyyy

/// Days in a month, after the Gregorian rule; 28 for a month that does not exist.
int GiorniMese(int anno, int mese);

/// "Sab", "Dom", "Lun", "Mar", "Mer", "Gio" or "Ven".
QString GiornoSettimana(NumeroGiorno giorno);

/// The first and the last day that a journey may have.
inline constexpr Gma kPrimoGiorno{1, 1, 1901};
inline constexpr Gma kUltimoGiorno{31, 12, 2099};

/// The day of a text ddmmyyyy, or nothing when it is no day of the years 1901 to 2099.
std::optional<NumeroGiorno> LeggiData(QStringView data);

/// What a text ddmmyyyy tells of a date, be it one or not. Each part is within its own limits, the day within those of
/// the month: it ends with the longest one that is possible where month or year is missing.
struct PartiData {
    std::optional<int> giorno;
    std::optional<int> mese;
    std::optional<int> anno;

    /// The day that all three of them make; nothing when one is missing.
    [[nodiscard]] std::optional<NumeroGiorno> Giorno() const;
    friend bool operator==(const PartiData&, const PartiData&) = default;
};

/// The parts of a text: "31022027" has the day 28, "15002027" no month, an empty one none at all. A day below 1 is 1,
/// one behind the month's end is the last of the month; a month or year outside its limits is missing.
PartiData LeggiPartiData(QStringView data);

}  // namespace cronovia
