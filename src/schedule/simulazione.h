// One pass over a trip: from the calculation table to timed rows.
#pragma once

#include <span>
#include <vector>

#include "interaction/progress.h"
#include "schedule/riga_cronovia.h"
#include "trips/orario.h"

namespace cronovia {

struct RichiestaPassata {
    const TabellaCalcolo& tabella;
    std::span<const Durata> soste;  ///< the stop of each stage, as the pass before left it
    NumeroGiorno dataPartenza;
    Centesimi oraPartenza;
    const OrarioCorretto& orario;
    float fattoreSoste = 1;  ///< scales every stop
};

struct Passata {
    std::vector<RigaCronovia> righe;
    std::vector<Durata> soste;  ///< after scaling
    std::optional<FineViaggio> fine;
    Totali totali;
    NumeroGiorno data;  ///< the clock where the simulation ended
    Centesimi ora;
    bool interrotta = false;  ///< a stop was requested; nothing else counts then
};

/// Tolerance around meals and the night, in hundredths.
int Tolleranza(const OrarioCorretto& orario);

/// Walks the stages on a clock that starts with the trip. Every road type in use needs a speed, the visiting hours must
/// not be empty. The same input gives the same rows.
Passata SimulaPassata(const RichiestaPassata& richiesta, Progress& progress);

}  // namespace cronovia
