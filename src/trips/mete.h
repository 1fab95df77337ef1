// Trips in the archive: reading, creating, the personal defaults and the current trip.
#pragma once

#include <QString>
#include <optional>
#include <span>
#include <vector>

#include "store/archive.h"
#include "trips/meta.h"

namespace cronovia {

/// The trip with that code, or nothing.
std::optional<Meta> CaricaDatiAnagraficiMeta(Archive& archive, QStringView codice);

/// The code for a new trip: 1 when there is none, the lowest free number else, in six digits. `codici` in any order.
QString NuovoCodiceMeta(std::span<const QString> codici);

/// All codes in use, in rising order.
std::vector<QString> CodiciDelleMete(Archive& archive);

/// Saves a new trip and makes it the current one; returns its code. A destination that names a motorway is stored in
/// small letters. Refused without destination or country, and when a trip has that destination already.
QString InserisciMeta(Archive& archive, const Meta& nuova);

/// The personal defaults; an archive that has none gets the standard ones stored. `ripristina` puts the standard ones
/// in the place of the stored ones first.
ParametriViaggio CaricaDefaultMeta(Archive& archive, bool ripristina = false);
void MemorizzaVariabiliMeta(Archive& archive, const ParametriViaggio& parametri);

/// Code of the trip that was current last; when it is gone, the highest code; the empty text without any trip.
QString RicercaMetaCorrente(Archive& archive);
void SalvaIlCodiceMetaCorrente(Archive& archive, const QString& codice);

}  // namespace cronovia
