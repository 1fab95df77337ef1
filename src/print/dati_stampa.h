// What the printouts of a schedule are made from: a snapshot of trip and schedule as texts.
#pragma once

#include <QString>
#include <optional>
#include <vector>

#include "itinerary/riepilogo.h"
#include "schedule/colonne.h"
#include "schedule/riga_cronovia.h"
#include "trips/meta.h"

namespace cronovia {

/// A row of the schedule: what it is, and its texts as the grid shows them.
struct RigaStampata {
    GenereRiga genere = GenereRiga::Marcia;
    bool riposo = false;                ///< a short rest follows
    bool sostaDopo = false;             ///< a stop, or a visit with its time, stands in the row that follows
    std::optional<TestiLimite> limite;  ///< until when one can drive on, or must turn back
    RigaGriglia testi;                  ///< without a locality the row is not printed
};

/// A snapshot: nothing in it changes with the trip.
struct DatiStampa {
    Meta meta;
    OrarioCorretto orario;  ///< as the calculation took it
    std::vector<RigaStampata> righe;
    TestiFine fine;
    TestiTotali totali;  ///< of the schedule, by road type
};

/// What is printed of a trip and its schedule.
DatiStampa PreparaStampa(const Meta& meta, const Cronovia& cronovia);

}  // namespace cronovia
