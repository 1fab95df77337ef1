// SPDX-License-Identifier: GPL-3.0-or-later
// One pass over a trip: from the calculation table to timed rows.
#pragma once

#include <span>
#include <vector>

#include "interaction/progress.h"
#include "schedule/riga_cronovia.h"
#include "trips/orario.h"

namespace cronovia {

/// What one pass works on; all of it must outlive the pass.
struct RichiestaPassata {
    const TabellaCalcolo& tabella;
    std::span<const Durata> soste;  ///< the stop of each stage, as the pass before left it; as many as the table's rows
    NumeroGiorno dataPartenza;
    Centesimi oraPartenza;  ///< time of day
    const OrarioCorretto& orario;
    float fattoreSoste = 1;  ///< scales every stop; 0 leaves none
};

/// What one pass came to.
struct Passata {
    std::vector<RigaCronovia> righe;  ///< without marks of the return
    std::vector<Fascia> fasce;
    std::vector<Rinvio> rinvii;
    std::vector<EsitoOra> ore;  ///< not yet since which stage
    std::vector<Durata> soste;  ///< after scaling, as many as the table's rows; where the next pass starts from
    std::optional<FineViaggio> fine;
    Totali totali;      ///< of what was driven, piece by piece: times may differ from the itinerary's by rounding
    NumeroGiorno data;  ///< the clock where the simulation ended
    Centesimi ora;
    bool interrotta = false;  ///< a stop was requested; nothing else counts then
};

/// Walks the stages on a clock that starts with the trip. Every road type in use needs a speed, the visiting hours must
/// not be empty. The same input gives the same rows.
Passata SimulaPassata(const RichiestaPassata& richiesta, Progress& progress);

}  // namespace cronovia
