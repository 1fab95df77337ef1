// SPDX-License-Identifier: GPL-3.0-or-later
// A route becomes a stretch of an itinerary that has stages already.
#pragma once

#include <QString>
#include <optional>
#include <vector>

#include "exchange/navigatori/importa_navigatore.h"
#include "itinerary/spostamenti.h"

namespace cronovia {

/// What is put in, and where; all of it must outlive the call.
struct RichiestaInserisciPercorso {
    Archive& archive;
    Gazzettino& gazzettino;
    const RigheItinerario& righe;  ///< of the itinerary that is there
    int dove = 1;  ///< the row, from 1, before which the route stands then; behind the last one when there is none
    const PercorsoNavigatore& percorso;  ///< with one stage at least
    QString nazione;                     ///< of the trip
};

/// A leg between the route and what was there: from where to where; its kilometres are guessed where one knows how both
/// lie, else they are to be told.
struct Giunzione {
    QString da;
    QString a;
    std::optional<int> km;
};

/// The itinerary with the route in it.
struct PercorsoInserito {
    EsitoSpostamento esito;       ///< its `tratto` ends before it begins when the itinerary had all places already
    std::optional<QString> dopo;  ///< the locality that the route follows; nothing when it begins the itinerary
    bool primaUnita = false;      ///< the route begins at that locality, which stands there once
    bool ultimaUnita = false;     ///< it ends at the locality behind it, which keeps its stop and gets the route's road
    std::vector<Giunzione> giunzioni;  ///< in travel order, two at most
};

/// Puts the route in; nothing is stored, and what others set for stages stays with them. A `Failure` when the itinerary
/// gets more stages than it can hold.
PercorsoInserito InserisciPercorso(const RichiestaInserisciPercorso& richiesta);

/// Where it goes and what becomes of the legs around it, in lines.
QString TestoInserimento(const PercorsoInserito& inserito);

}  // namespace cronovia
