// SPDX-License-Identifier: GPL-3.0-or-later
// Hundredths of an hour, the unit in which travel times are computed.
#pragma once

#include <compare>

namespace cronovia {

/// Hundredths of an hour: 100 is one hour, 2400 a day of the clock. Single precision, as times of day and stops are
/// kept between two computations.
class Centesimi {
  public:
    constexpr Centesimi() = default;
    /// So many hundredths; fractions of them are kept.
    constexpr explicit Centesimi(float valore) : valore_(valore) {}
    constexpr explicit Centesimi(double valore) : valore_(static_cast<float>(valore)) {}
    constexpr explicit Centesimi(int valore) : valore_(static_cast<float>(valore)) {}

    /// The hundredths.
    [[nodiscard]] constexpr float Valore() const { return valore_; }

    /// Times add, subtract and scale; none of it rounds to whole hundredths or ends at midnight.
    constexpr Centesimi& operator+=(Centesimi altro) {
        valore_ += altro.valore_;
        return *this;
    }
    constexpr Centesimi& operator-=(Centesimi altro) {
        valore_ -= altro.valore_;
        return *this;
    }
    friend constexpr Centesimi operator+(Centesimi a, Centesimi b) { return a += b; }
    friend constexpr Centesimi operator-(Centesimi a, Centesimi b) { return a -= b; }
    friend constexpr Centesimi operator*(Centesimi a, float fattore) { return Centesimi(a.valore_ * fattore); }
    friend constexpr auto operator<=>(Centesimi, Centesimi) = default;

  private:
    float valore_ = 0;
};

inline namespace literals {
/// `900_cent` is 9 hours.
constexpr Centesimi operator""_cent(unsigned long long valore) { return Centesimi(static_cast<float>(valore)); }
}  // namespace literals

/// A day of the clock.
inline constexpr Centesimi kGiornoOrologio = 2400_cent;

/// True when `a` lies within `tolleranza` hundredths of `b`.
constexpr bool QuasiUguale(Centesimi a, Centesimi b, int tolleranza) {
    const Centesimi scarto(tolleranza);
    return b - scarto <= a && a <= b + scarto;
}

}  // namespace cronovia
