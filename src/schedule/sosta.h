// The stop at a stage, spread over the visiting hours of as many days as it takes.
#pragma once

#include "calendar/date.h"
#include "schedule/riga_cronovia.h"
#include "trips/orario.h"

namespace cronovia {

/// The travelling clock.
struct Orologio {
    NumeroGiorno data;
    Centesimi ora;
    bool pranzoFatto = false;  ///< lunch of the day taken, or not to be taken
    bool cenaFatta = false;
    Centesimi inizioGuida;      ///< when the continuous driving began
    NumeroGiorno ultimoRiposo;  ///< day from which the rest days count

    /// The next morning: nothing eaten, nothing driven.
    void NuovoGiorno(Centesimi ripresa);
};

struct RichiestaSosta {
    Durata sosta;  ///< before scaling; its days are visiting days
    bool fineGiorno = false;
    bool traghetto = false;
    float fattore = 1;
};

struct EsitoSosta {
    Orologio orologio;
    Motivo motivo = Motivo::Nessuno;  ///< none: nothing happened, the clock stands as before
    Durata sosta;                     ///< after scaling, without the ferry; what the next pass starts from
};

/// Takes the clock through a stop. The visiting hours must not be empty.
EsitoSosta CalcolaLaSosta(const RichiestaSosta& richiesta, const OrarioCorretto& orario, const Orologio& inizio);

}  // namespace cronovia
