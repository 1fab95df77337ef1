// SPDX-License-Identifier: GPL-3.0-or-later
// The table that a calculation works on: the stages with the stops that the trip's policy retains.
#pragma once

#include <memory>
#include <span>
#include <vector>

#include "guide/guida_citta.h"
#include "interaction/progress.h"
#include "itinerary/tappa.h"
#include "trips/orario.h"

namespace cronovia {

/// One stage as the simulation sees it. Days of stops are visiting days.
struct RigaCalcolo {
    Tappa tappa;                            ///< `tappa.guida` is the guide time found for this calculation
    Durata sostaItinerario;                 ///< what the policy retains of the itinerary's stop
    Durata sostaGuida;                      ///< what it retains of the guide's visit times
    Durata sosta;                           ///< both together
    bool fineGiorno = false;                ///< the day ends here, where the policy leaves that
    std::shared_ptr<const VociGuida> voci;  ///< guide entries to list at this stage; never null
};

/// The stages of a calculation.
struct TabellaCalcolo {
    std::vector<RigaCalcolo> righe;  ///< one for each stage with a locality, in travel order
    Centesimi totaleSoste;           ///< sum of all retained stops
};

/// Joins the stages with the guide and applies the stop policy. A locality gets its guide time at its first stage only,
/// its entries at every one. Where neither itinerary nor guide has a stop, every policy leaves the end of the day as it
/// is; else the guide's alone and no stops at all take it away.
TabellaCalcolo PreparaTabellaPerCalcoloCronovia(std::span<const Tappa> tappe, const OrarioCorretto& orario,
                                                LettoreGuida& guida, Progress& progress);

}  // namespace cronovia
