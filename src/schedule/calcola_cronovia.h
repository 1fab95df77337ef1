// Computing a trip's schedule, fitted to the days wanted.
#pragma once

#include <QString>
#include <optional>
#include <span>

#include "guide/guida_citta.h"
#include "interaction/progress.h"
#include "itinerary/tappa.h"
#include "schedule/riga_cronovia.h"
#include "trips/meta.h"

namespace cronovia {

/// The passes made at most to fit a trip to its days.
inline constexpr int kMassimoTentativi = 11;

struct EsitoCalcolo {
    std::optional<Cronovia> cronovia;  ///< nothing when the person stopped the calculation
    int tentativi = 0;                 ///< passes made
    QString messaggio;                 ///< closing message, empty when no days were wanted
};

/// Computes the schedule of a trip with the start, the parameters and `giorniAdeguamento` of `meta`. When days are
/// wanted, the stops are scaled from pass to pass until the trip takes that long. A `Failure` names what is missing:
/// the start date, the speed of a road type in use, visiting hours.
EsitoCalcolo CalcolaCronovia(const Meta& meta, std::span<const Tappa> tappe, LettoreGuida& guida, Progress& progress);

}  // namespace cronovia
