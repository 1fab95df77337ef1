// The options of the verbs that compute a schedule.
#pragma once

#include <vector>

#include "cli/verbi.h"

namespace cronovia {

/// --giorni and --soste.
std::vector<Opzione> OpzioniDelCalcolo();

/// Their values; `WrongUsage` when one is out of its limits.
OpzioniCalcolo LeggiOpzioniCalcolo(const Richiesta& richiesta);

/// Tells that the table of a data folder was written.
QString RigaTabellaScritta(const QString& cartella);

}  // namespace cronovia
