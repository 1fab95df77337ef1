// SPDX-License-Identifier: GPL-3.0-or-later
// The stop at a stage, spread over the visiting hours of as many days as it takes.
#pragma once

#include <optional>
#include <vector>

#include "calendar/date.h"
#include "calendar/ora_fissa.h"
#include "itinerary/vincoli.h"
#include "schedule/riga_cronovia.h"
#include "trips/orario.h"

namespace cronovia {

/// The travelling clock.
struct Orologio {
    NumeroGiorno data;
    Centesimi ora;              ///< of that day; while one drives or eats into the night also beyond its 24 hours
    bool pranzoFatto = false;   ///< lunch of the day taken, or not to be taken
    bool cenaFatta = false;     ///< and dinner
    Centesimi inizioGuida;      ///< when the continuous driving began
    NumeroGiorno ultimoRiposo;  ///< day from which the rest days count

    [[nodiscard]] Istante Momento() const { return {data, ora}; }
    /// The next day at that hour, nothing eaten; when the driving began is for the caller to set.
    void NuovoGiorno(Centesimi ripresa);
    /// To a later moment; a new day has no meals yet.
    void Va(Istante momento);
};

/// A stop to be made.
struct RichiestaSosta {
    Durata sosta;                            ///< before scaling; its days are visiting days
    bool fineGiorno = false;                 ///< the journey goes on the next morning
    bool traghetto = false;                  ///< the average time of a ferry comes on top, not scaled
    float fattore = 1;                       ///< what the stop is multiplied by; no stop grows beyond 999 visiting days
    std::optional<OreDiVisita> visite = {};  ///< its own visiting hours, instead of the trip's
    bool pastiOgniGiorno = false;            ///< a day that it ends on later has its own meals
};

/// The clock after a stop.
struct EsitoSosta {
    Orologio orologio;
    Motivo motivo = Motivo::Nessuno;  ///< none: nothing happened, the clock stands as before
    Durata sosta;                     ///< after scaling, without the ferry; what the next pass starts from
    std::vector<Fascia> fasce;        ///< the ferry first, then the visits, day by day; a meal that the stop ran into
    Centesimi ritardo;                ///< past the visiting hours, when it had to wait for the next day; else 0
    int giorni = 0;                   ///< days on which the ferry or visits are
};

/// Takes the clock through a stop: visits wait for the beginning of the visiting hours, after their end for the next
/// day, and fill as many days as they take; within 2 hundredths of the end the day's visits are over. Meals whose hour
/// passed meanwhile count as taken, on the days that follow too unless each has its own. A stop of a visiting day or
/// more, with its ferry, counts as a rest. The end of the day alone, without stop or ferry, does nothing. The visiting
/// hours must not be empty. A stop that ends when its own visiting hours do leaves the rest of the day for driving.
EsitoSosta CalcolaLaSosta(const RichiestaSosta& richiesta, const OrarioCorretto& orario, const Orologio& inizio);

}  // namespace cronovia
