// SPDX-License-Identifier: GPL-3.0-or-later
// The days of a journey seen from its itinerary: where they break, and which stages are those of a day.
#pragma once

#include <optional>
#include <span>
#include <utility>
#include <vector>

#include "itinerary/modifiche.h"
#include "schedule/giornate.h"

namespace cronovia {

/// Days that begin on the way to a stage or at its stop.
struct CambioGiorno {
    int riga = 0;         ///< of the itinerary, from 1
    int da = 0;           ///< number of the first of these days, from 1
    int a = 0;            ///< and of the last
    bool dentro = false;  ///< the first one begins after the leg to the stage has begun, not before it

    friend bool operator==(const CambioGiorno&, const CambioGiorno&) = default;
};

/// What links the rows of an itinerary with the days of the schedule that was computed from just these rows. Rows of
/// the itinerary count from 1, days and rows of the schedule from 0.
class GiorniItinerario {
  public:
    GiorniItinerario() = default;
    /// `giornate` are the days of the schedule, `righe` those of the itinerary with its free rows.
    GiorniItinerario(const Cronovia& cronovia, const std::vector<Giornata>& giornate, std::span<const Tappa> righe);

    /// Each row at most once, in travel order.
    [[nodiscard]] const std::vector<CambioGiorno>& Cambi() const { return cambi_; }
    /// First and last row of the stages that are reached on a day, without the departure; nothing when there is none.
    [[nodiscard]] std::optional<std::pair<int, int>> Righe(int giornata) const;
    /// The last row that is reached on a day, the departure too: where it can be made to end.
    [[nodiscard]] std::optional<int> RigaFinale(int giornata) const;
    /// The day on which a row is reached; nothing without a schedule. A free row is reached with the one above it.
    [[nodiscard]] std::optional<int> GiornataDi(int riga) const;
    /// The row of a stage of the calculation table.
    [[nodiscard]] int Riga(int tappa) const { return rigaDi_[static_cast<std::size_t>(tappa)]; }

  private:
    void Arrivi(const Cronovia& cronovia, NumeroGiorno partenza);
    void Cambi(const Cronovia& cronovia, NumeroGiorno partenza);

    std::vector<int> rigaDi_;  // by stage
    std::vector<int> arrivo_;  // the day, by stage
    std::vector<CambioGiorno> cambi_;
};

}  // namespace cronovia
