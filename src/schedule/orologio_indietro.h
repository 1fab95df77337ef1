// SPDX-License-Identifier: GPL-3.0-or-later
// A clock that runs backwards through driving, meals, nights and ferries: from when one has to be somewhere to until
// when one could be further back.
#pragma once

#include "calendar/ora_fissa.h"
#include "itinerary/vincoli.h"
#include "trips/orario.h"

namespace cronovia {

/// A clock that goes back from an arrival to when one has to leave for it.
class OrologioIndietro {
  public:
    /// `orario` must outlive the clock.
    OrologioIndietro(Istante da, const OrarioCorretto& orario);

    /// Where it has come to.
    [[nodiscard]] Istante Momento() const { return ora_; }

    /// Meals whose hour has passed by now are still to come backwards.
    void GuardaPasti();

    /// Driving, which may run into another day: `PastiENotti` puts that right.
    void Guida(Centesimi tempo) { ora_.ora -= tempo; }
    /// The meals and nights that the driving ran into.
    void PastiENotti();

    /// Back to the last departure of a ferry that lands by now, and on to when one has to be at the quay. One with a
    /// date that lands later is taken as if it left in time.
    void Salpa(const TraghettoAOrario& traghetto);
    /// The same of a ferry whose hours are not known.
    void Attraversa(const TraghettoAOrario& traghetto);

  private:
    bool Pasto(Centesimi pasto, Centesimi durata, bool& fatto);
    bool Notte();
    void AlMolo(Istante entro);

    Istante ora_;
    const ParametriViaggio& p_;
    bool cenaFatta_ = false;
    bool pranzoFatto_ = false;
};

}  // namespace cronovia
