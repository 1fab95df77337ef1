// SPDX-License-Identifier: GPL-3.0-or-later
// Where the stages of a journey lie.
#pragma once

#include <QString>
#include <QStringList>
#include <optional>
#include <span>
#include <vector>

#include "itinerary/tappa.h"
#include "places/scelta_luoghi.h"

namespace cronovia {

/// One for each stage, in their order; see `ScegliLuoghi`. `nazione` is that of the trip. Reads the file of places when
/// a locality has no confirmed position.
std::vector<PosizioneTappa> PosizioniDelViaggio(const PosizioniConfermate& confermate, Gazzettino& gazzettino,
                                                std::span<const Tappa> tappe, const QString& nazione);

/// Of these stages, the localities of which nobody knows where they lie, each once.
QStringList LocalitaSenzaPosizione(std::span<const Tappa> tappe, std::span<const PosizioneTappa> posizioni);

/// How many times longer a road of that type is than the straight way; 1.3 for an unknown one.
double FattoreStrada(std::optional<TipoStrada> tipo);

/// The kilometres of road that a straight way stands for, as one would guess them: to 1 km, to 5 km from 20 km on, to
/// 10 km from 100 km on; at least 1.
int KmStimati(double distanzaKm, std::optional<TipoStrada> tipo);

}  // namespace cronovia
