// SPDX-License-Identifier: GPL-3.0-or-later
// The records of the earlier release's three kinds of files, and what becomes of them in the tables.
#pragma once

#include <QString>
#include <optional>
#include <span>
#include <vector>

#include "exchange/vecchi/lettore_record.h"
#include "store/schema.h"

namespace cronovia {

/// What a record turned out to be.
enum class StatoRecord {
    Valido,   ///< can be taken over
    Vuoto,    ///< left free by the earlier release
    Saltato,  ///< deleted by the earlier release, or of no locality
    Guasto,   ///< cannot be what it should
};

/// Trips, one per record: the form of their records, and what one of them is.
const FormaRecord& FormaVecchieMete();
StatoRecord StatoVecchiaMeta(const RecordFisso& record);
/// The code of the trip of a valid record.
QString CodiceVecchiaMeta(const RecordFisso& record);

/// The first fields of `MeteVandro`, from the code to `FineVisita`.
struct VecchiaMeta {
    std::vector<QString> valori;          ///< one blank for an empty one
    std::vector<mete::Field> sostituiti;  ///< could not be read and have the value of `predefiniti`
};
/// Those of a valid record. `predefiniti` are all fields of a trip that nobody has changed yet.
VecchiaMeta LeggiVecchiaMeta(const RecordFisso& record, std::span<const QString> predefiniti);

/// Stages: a head, then one stage per record.
const FormaRecord& FormaVecchieTappe();
/// How many stages the head announces; nothing when it does not tell the same number twice.
std::optional<int> NumeroVecchieTappe(const RecordFisso& testa);
/// A record that names no locality in capital letters is passed over.
StatoRecord StatoVecchiaTappa(const RecordFisso& record);
/// The fields of `Itinerari` from `Localita` to `TempoSosta`, as a valid record has them.
std::vector<QString> ValoriVecchiaTappa(const RecordFisso& record);

/// Guide entries, one per record: the form of their records, and what one of them is.
const FormaRecord& FormaVecchiaGuida();
StatoRecord StatoVecchiaVoce(const RecordFisso& record);
/// All fields of `GuidaCitta`, as a valid record has them.
std::vector<QString> ValoriVecchiaVoce(const RecordFisso& record);

/// A visit time as "hh:mm": "0130", "130" and "1:30" are all "01:30"; what is none is "00:00".
QString TempoVisita(const QString& vecchio);

}  // namespace cronovia
