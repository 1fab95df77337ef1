// SPDX-License-Identifier: GPL-3.0-or-later
// Trips in the archive: reading, creating, the personal defaults and the current trip.
#pragma once

#include <QString>
#include <map>
#include <optional>
#include <span>
#include <vector>

#include "interaction/progress.h"
#include "store/archive.h"
#include "trips/meta.h"

namespace cronovia {

/// The trip with that code, or nothing.
std::optional<Meta> CaricaMeta(Archive& archive, QStringView codice);

/// What a row of `Scadenze` tells of a trip, its deadline and prices; returns how many of them cannot be. And the row
/// of a trip; none where neither is told.
int LeggiAggiunti(std::span<const QString> valori, Meta& meta);
std::vector<QString> ValoriAggiunti(const Meta& meta);
/// Stores that row in the place of the one before; within a transaction of the caller. Saving a trip does.
void ScriviAggiunti(Archive& archive, const Meta& meta);

/// The code for a new trip: the lowest number that is none of `codici`, in six digits. A `Failure` when all are taken.
QString NuovoCodiceMeta(std::span<const QString> codici);

/// All codes in use, in rising order.
std::vector<QString> CodiciDelleMete(Archive& archive);

/// The code for a new trip of the archive: none in use, nor one of a trip that was deleted since it was opened.
QString CodiceLibero(Archive& archive);

/// What saving a trip will do.
struct Salvataggio {
    bool nuova = false;  ///< a new trip; else the stored one with `codice` is changed
    QString codice;      ///< of the trip that is written
};

/// A trip with a code is changed. One without is new, unless a trip with its destination is stored: then that one is
/// changed. All that save refuse, as this does, with the message of `DifettoDellaMeta`, and a destination that another
/// trip has, as the archive matches names; a stored trip may keep the one that it has.
Salvataggio DecidiSalvataggio(Archive& archive, const Meta& meta);

/// Carries it out, makes the trip the current one and returns its code, another one when a second window took that of
/// the new trip meanwhile. A destination that names a motorway is stored in small letters.
QString SalvaMeta(Archive& archive, const Meta& meta, const Salvataggio& salvataggio);

/// Saves a new trip, makes it the current one and returns its code. Refused when a trip has that destination already.
QString InserisciMeta(Archive& archive, const Meta& nuova);

/// A trip in a list to choose from, of the archive or of a file.
struct MetaInElenco {
    QString codice;
    QString localita;
    QString nazione;
    std::optional<NumeroGiorno> dataInizio = {};  ///< nothing when it is not known
    bool presente = false;                        ///< a trip of a file whose destination the archive has already
    Centesimi oraInizio = {};                     ///< of a trip of the archive, as what follows
    int giorniAdeguamento = 0;                    ///< wanted, 0 for as many as needed

    friend bool operator==(const MetaInElenco&, const MetaInElenco&) = default;
};

/// Which trips a list has.
enum class QualiMete { Tutte, ConTappe };

/// The trips by their destinations, all of them or those that have a destination and stored stages.
std::vector<MetaInElenco> ElencoMete(Archive& archive, QualiMete quali = QualiMete::Tutte);

/// The same list with the trips that name a motorway behind the others.
std::vector<MetaInElenco> AutostradeInFondo(std::vector<MetaInElenco> elenco);

/// A trip that was deleted, with its itinerary, as the rows that it had.
struct MetaCancellata {
    std::vector<Record> meta;
    std::vector<Record> tappe;
    std::map<Table, std::vector<Record>> aggiunte = {};  ///< of `TripTablesOnDemand`
};

/// Deletes a trip with its itinerary, whole or not at all. No new trip gets its code while the archive is open.
MetaCancellata CancellaMeta(Archive& archive, const QString& codice, Progress& progress);
/// Puts it back, makes it the current trip and returns its code, another one when that was taken meanwhile. Refused
/// when a trip has its destination by now.
QString RimettiMeta(Archive& archive, const MetaCancellata& cancellata);

/// The personal defaults; the standard ones when none are stored.
ParametriViaggio CaricaDefaultMeta(Archive& archive);
/// Stores personal defaults in the place of those before. Refused with the message of `DifettoDeiParametri`.
void MemorizzaDefaultMeta(Archive& archive, const ParametriViaggio& parametri);
/// Makes the standard defaults the personal ones and returns them.
ParametriViaggio RipristinaDefaultMeta(Archive& archive);
/// Stores the standard defaults in an archive that has none.
void CompletaDefaultMeta(Archive& archive);

/// Code of the trip that was current last; when it is gone, the highest code; the empty text without any trip.
QString RicercaMetaCorrente(Archive& archive);
/// Remembers which trip is current; within a transaction of the caller, or as a change of its own.
void SalvaIlCodiceMetaCorrente(Archive& archive, const QString& codice);

}  // namespace cronovia
