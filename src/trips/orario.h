// SPDX-License-Identifier: GPL-3.0-or-later
// The rules that keep a trip's daily timetable consistent.
#pragma once

#include "trips/meta.h"

namespace cronovia {

/// The parameters with a timetable in an order that can be kept: breakfast less than an hour before lunch goes to hour
/// 0, a lunch that ends less than an hour before dinner to 11, a dinner that ends after the night's start to 18, their
/// minutes stay; again and again until a round changes nothing. Then visits are kept between breakfast and night.
ParametriViaggio InOrdine(const ParametriViaggio& digitati);

/// Whether both have the same hours: of the day, of meals and visits, of a ferry.
bool StessiOrari(const ParametriViaggio& uni, const ParametriViaggio& altri);

/// The parameters as a calculation takes them; the one way to them is to correct those that were typed or stored. Who
/// holds a trip does so, once, and hands on the result: whatever computes from it tells the same day lengths.
class OrarioCorretto {
  public:
    /// Of the standard parameters.
    OrarioCorretto() : OrarioCorretto(ParametriViaggio()) {}

    /// `InOrdine`, then each hour within its own limits. The day lengths are those before the limits.
    explicit OrarioCorretto(const ParametriViaggio& digitati);

    /// The same hours and day lengths with what else `altri` tells.
    [[nodiscard]] OrarioCorretto Con(const ParametriViaggio& altri) const;
    /// As the next pass of a calculation takes it: what the limits put out of order is put in order, and the day
    /// lengths are those within the limits.
    [[nodiscard]] OrarioCorretto PassataDopo() const { return OrarioCorretto(parametri_); }

    /// The corrected ones.
    [[nodiscard]] const ParametriViaggio& Parametri() const { return parametri_; }
    /// Driving time of one day, from breakfast to night without the meals: the day length of driving totals.
    [[nodiscard]] Centesimi GuidaGiorno() const { return guidaGiorno_; }
    /// Visiting time of one day: the day length of stops. 0 or less when visits end before they begin.
    [[nodiscard]] Centesimi VisitaGiorno() const { return visitaGiorno_; }
    /// The short rest, to the nearest whole hundredth of an hour.
    [[nodiscard]] Centesimi Riposo() const { return riposo_; }
    friend bool operator==(const OrarioCorretto&, const OrarioCorretto&) = default;

  private:
    ParametriViaggio parametri_;
    Centesimi guidaGiorno_;
    Centesimi visitaGiorno_;
    Centesimi riposo_;
};

}  // namespace cronovia
