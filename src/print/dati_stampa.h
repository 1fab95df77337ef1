// What the printouts of a schedule are made from: a snapshot of trip and schedule as texts.
#pragma once

#include <QString>
#include <array>
#include <vector>

#include "itinerary/riepilogo.h"
#include "schedule/colonne.h"
#include "schedule/riga_cronovia.h"
#include "trips/meta.h"

namespace cronovia {

struct DatiStampa {
    Meta meta;
    OrarioCorretto orario;           ///< as the calculation took it
    std::vector<RigaGriglia> righe;  ///< rows of the grid; one without a locality is not printed
    std::array<QString, 7> fine;     ///< as `TestiFine`
    TestiTotali totali;
};

DatiStampa PreparaStampa(const Meta& meta, const Cronovia& cronovia);

}  // namespace cronovia
