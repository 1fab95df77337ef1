// SPDX-License-Identifier: GPL-3.0-or-later
// The rules that keep a trip's daily timetable consistent.
#pragma once

#include "trips/meta.h"

namespace cronovia {

/// The parameters with a timetable in an order that can be kept: breakfast less than an hour before lunch goes to hour
/// 0, a lunch that ends less than an hour before dinner to 11, a dinner that ends after the night's start to 18, their
/// minutes stay; again and again until a round changes nothing. Then visits are kept between breakfast and night.
ParametriViaggio InOrdine(const ParametriViaggio& digitati);

/// The parameters as a calculation takes them; the one way to them is to correct those that were typed or stored.
class OrarioCorretto {
  public:
    /// Of the standard parameters.
    OrarioCorretto() : OrarioCorretto(ParametriViaggio()) {}

    /// `InOrdine`, then each hour within its own limits. The day lengths are those before the limits; a timetable that
    /// the limits change may change again, with its day lengths, when its result is corrected once more.
    explicit OrarioCorretto(const ParametriViaggio& digitati);

    /// The corrected ones.
    [[nodiscard]] const ParametriViaggio& Parametri() const { return parametri_; }
    /// Driving time of one day, from breakfast to night without the meals: the day length of driving totals.
    [[nodiscard]] Centesimi GuidaGiorno() const { return guidaGiorno_; }
    /// Visiting time of one day: the day length of stops. 0 or less when visits end before they begin.
    [[nodiscard]] Centesimi VisitaGiorno() const { return visitaGiorno_; }
    /// The short rest, to the nearest whole hundredth of an hour.
    [[nodiscard]] Centesimi Riposo() const { return riposo_; }

  private:
    ParametriViaggio parametri_;
    Centesimi guidaGiorno_;
    Centesimi visitaGiorno_;
    Centesimi riposo_;
};

}  // namespace cronovia
