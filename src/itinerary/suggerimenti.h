// SPDX-License-Identifier: GPL-3.0-or-later
// Hints beside the entry of a stage: what its fields will not do as one may expect. None of them is a refusal.
#pragma once

#include <QString>
#include <vector>

#include "itinerary/modifiche.h"

namespace cronovia {

/// What a stage as it is typed will not do.
enum class Suggerimento {
    TraghettoSenzaTempo,   ///< a ferry without kilometres and stop takes no time
    FineGiornoSenzaSosta,  ///< the day's end does nothing without a stop or a ferry
    TrattaOltreIlGiorno,   ///< the leg is longer than a day's driving
};

/// Those for the fields of row `riga`, counted from 1; none for the departure and for fields without a locality. The
/// kilometres are those of the stage; `guidaGiorno` is the driving time of one day, 0 when it is unknown.
std::vector<Suggerimento> SuggerimentiTappa(const CampiTappa& campi, int riga, const ParametriViaggio& parametri,
                                            Centesimi guidaGiorno);

/// As the person reads it.
QString Testo(Suggerimento suggerimento);

/// What a stage gets of progressive kilometres, as the person reads it; empty when those typed are its own.
QString SuggerimentoProgressivi(int digitati, int kmDellaTappa);

/// What is odd about kilometres beside the straight way of their leg, as the person reads it: they cannot be fewer, and
/// are rarely more than three times as many. Empty for nothing, without kilometres, and for a ferry.
QString SuggerimentoDistanza(const CampiTappa& campi, double direttaKm);

}  // namespace cronovia
