// SPDX-License-Identifier: GPL-3.0-or-later
// Computing a trip's schedule, fitted to the days wanted.
#pragma once

#include <QString>
#include <optional>
#include <span>

#include "guide/guida_citta.h"
#include "interaction/progress.h"
#include "itinerary/tappa.h"
#include "schedule/ricerca_giorni.h"
#include "schedule/riga_cronovia.h"
#include "trips/meta.h"
#include "trips/orario.h"

namespace cronovia {

/// The passes made at most to fit a trip to its days.
inline constexpr int kMassimoTentativi = 11;

/// What a calculation came to.
struct EsitoCalcolo {
    std::optional<Cronovia> cronovia;           ///< nothing when the person stopped the calculation
    int tentativi = 0;                          ///< passes made
    QString messaggio;                          ///< closing message for the person; empty when no days were wanted
    std::optional<RicercaGiorni> ricerca = {};  ///< what comes nearest when the days wanted were not reached
};

/// What is done when the passes end without the days wanted.
enum class SeNonRiesce {
    Cerca,   ///< those that can be had are looked for, and the message goes on with them
    Lascia,  ///< nothing
};

/// Computes the schedule of a trip with the start and `giorniAdeguamento` of `meta` and the parameters of `orario`,
/// which are those of `meta` corrected. When days are wanted and the stages have kilometres, all stops are scaled
/// before each pass by days wanted / days of the pass before, cut to three decimals, until the trip takes that long;
/// before the first pass its days are guessed from driving and stops. After `kMassimoTentativi` the last pass stays.
/// When it would be late home, the stops of the stages are all scaled to the longest with which one is in time, if
/// there are any; the closing message says so, and days that are not the ones wanted then count as not reached. The
/// limits of the return count from when one has to be home. A `Failure` names what is missing: the start date, the
/// kilometres of stages, the speed of a road type in use, visiting hours.
EsitoCalcolo CalcolaCronovia(const Meta& meta, const OrarioCorretto& orario, std::span<const Tappa> tappe,
                             LettoreGuida& guida, Progress& progress, SeNonRiesce altrimenti = SeNonRiesce::Cerca);

}  // namespace cronovia
