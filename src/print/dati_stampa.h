// SPDX-License-Identifier: GPL-3.0-or-later
// What the printouts of a schedule are made from: a snapshot of trip and schedule as texts.
#pragma once

#include <QString>
#include <QStringList>
#include <memory>
#include <optional>
#include <span>
#include <vector>

#include "itinerary/riepilogo.h"
#include "places/coste.h"
#include "schedule/colonne.h"
#include "schedule/mappa_viaggio.h"
#include "schedule/riga_cronovia.h"
#include "schedule/strisce.h"
#include "trips/meta.h"

namespace cronovia {

/// A row of the schedule: what it is, and its texts as the grid shows them.
struct RigaStampata {
    GenereRiga genere = GenereRiga::Marcia;
    bool riposo = false;                ///< a short rest follows
    bool notte = false;                 ///< the night follows
    bool sostaDopo = false;             ///< a stop, or a visit with its time, stands in the row that follows
    std::optional<TestiLimite> limite;  ///< until when one can drive on, or must turn back
    RigaGriglia testi;                  ///< without a locality the row is not printed
    int tappa = 0;                      ///< rows of one stage have one number
    std::size_t giorno = 0;             ///< position of its day; those of a day follow each other
    bool inRitardo = false;             ///< an hour that others set is missed
};

/// A day of the schedule.
struct GiornoStampato {
    Giornata giornata;
    QStringList rinvii;          ///< why something is later
    StrisciaDelGiorno striscia;  ///< its 24 hours as bars
};

/// The journey on maps, and what they show around it.
struct MappaStampata {
    MappaViaggio viaggio;
    Coste coste;
    QStringList sconosciute;  ///< localities that are missing on it, since nobody knows where they lie
};

/// A snapshot: nothing in it changes with the trip.
struct DatiStampa {
    Meta meta;
    OrarioCorretto orario;  ///< as the calculation took it
    std::vector<RigaStampata> righe;
    std::vector<GiornoStampato> giorni;
    TestiFine fine;            ///< of the journey
    TestiTotali totali;        ///< of the schedule, by road type
    int traghettiAOrario = 0;  ///< of its ferries, those with their own hours
    QString scadenza = {};     ///< how the end stands to when one has to be home; empty when nothing is set
    QString costi = {};        ///< of the whole trip; empty when nothing has a price
    std::shared_ptr<const MappaStampata> mappa = {};  ///< null when no map is wanted
};

/// What is printed of a trip and its schedule.
DatiStampa PreparaStampa(const Meta& meta, const Cronovia& cronovia);

/// Its map: the rows of the itinerary from which the schedule was computed, and as many positions.
std::shared_ptr<const MappaStampata> PreparaMappa(const DatiStampa& dati, const Cronovia& cronovia,
                                                  std::span<const Tappa> righe,
                                                  std::span<const PosizioneTappa> posizioni, Coste coste);

}  // namespace cronovia
