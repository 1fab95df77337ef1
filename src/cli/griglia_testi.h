// SPDX-License-Identifier: GPL-3.0-or-later
// Rows of the main grid and totals as the command line writes them.
#pragma once

#include <QString>
#include <vector>

#include "cli/json.h"
#include "cli/uscita.h"
#include "schedule/calcola_cronovia.h"
#include "schedule/colonne.h"
#include "schedule/costi.h"
#include "trips/meta.h"

namespace cronovia {

/// All columns of the grid, in its order.
TabellaTesti TestiDellaGriglia(const RigaGriglia& intestazioni, const std::vector<RigaGriglia>& righe);

/// The same rows as an array of arrays of texts.
void ScriviRighe(const std::vector<RigaGriglia>& righe, ScrittoreJson& json);

/// "CAPO NORD (NORVEGIA), partenza Sab 05/06/2027 ore 08:30".
QString TitoloMeta(const Meta& meta);

/// Kilometres, driving time and ferries in one line.
QString RigaTotali(const TestiTotali& totali);

/// What a schedule comes to: that line, the end of the trip when it has one, and how it stands to when one has to be
/// home.
void ScriviTotaliEFine(const EsitoCalcolo& esito, QTextStream& uscita);

/// What the journey costs, in a line; nothing when nothing has a price. And as an object, of a day too.
void ScriviCosti(const std::vector<Giornata>& giornate, QTextStream& uscita);
void ScriviCosti(const Costi& costi, ScrittoreJson& json);

/// What is said instead of the rows of an empty itinerary.
QString SenzaTappe();

}  // namespace cronovia
