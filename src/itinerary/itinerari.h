// SPDX-License-Identifier: GPL-3.0-or-later
// The stages of a trip in the archive.
#pragma once

#include <QString>
#include <optional>
#include <span>
#include <vector>

#include "guide/guida_citta.h"
#include "interaction/progress.h"
#include "itinerary/tappa.h"
#include "store/archive.h"
#include "trips/orario.h"

namespace cronovia {

/// The rows of a trip's itinerary in travel order, as they are stored.
std::vector<Record> RecordDellItinerario(Archive& archive, const QString& codiceMeta);

/// The stages of a trip in travel order, without the guide's visit times; rows without locality are left out.
std::vector<Tappa> TappeMemorizzate(Archive& archive, const QString& codiceMeta);
/// The stages of a trip in travel order. `guida`'s visit times stand at the first stage of their locality.
std::vector<Tappa> CaricaTappeItinerario(Archive& archive, const QString& codiceMeta, const OrarioCorretto& orario,
                                         LettoreGuida& guida);

/// Puts the guide's visit times anew, after stages changed; a locality that occurs again gets none there.
void RicalcolaVisite(Archive& archive, std::span<Tappa> tappe, const OrarioCorretto& orario);
void RicalcolaVisite(LettoreGuida& guida, std::span<Tappa> tappe, const OrarioCorretto& orario);

/// The stages with the guide's visit times added to their stops; a locality that occurs again gets none there. The ends
/// of days stay.
std::vector<Tappa> ConSosteDellaGuida(Archive& archive, std::vector<Tappa> tappe, const OrarioCorretto& orario,
                                      Progress& progress);

/// What saving an itinerary did.
struct EsitoMemorizzazione {
    int record = 0;          ///< rows written; a stage longer than 999 km takes several
    int nomiAccorciati = 0;  ///< localities stored with their first 29 characters, roads with their first 64
};

/// What the person is told when names were shortened.
QString TestoNomiAccorciati(const EsitoMemorizzazione& esito);

/// Replaces the stored itinerary of a trip, whole or not at all; free rows are left out. A `Failure` when it takes more
/// than 9,999 rows.
EsitoMemorizzazione MemorizzaTappeItinerario(Archive& archive, const QString& codiceMeta, std::span<const Tappa> tappe,
                                             const OrarioCorretto& orario, Progress& progress);

/// The same for a trip that has no stages yet; nothing, and nothing done, when it has some by now. A `Failure` also
/// when the trip is no more.
std::optional<EsitoMemorizzazione> MemorizzaPrimeTappe(Archive& archive, const QString& codiceMeta,
                                                       std::span<const Tappa> tappe, const OrarioCorretto& orario,
                                                       Progress& progress);

}  // namespace cronovia
