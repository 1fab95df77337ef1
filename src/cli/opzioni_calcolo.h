// SPDX-License-Identifier: GPL-3.0-or-later
// The options of the verbs that compute a schedule.
#pragma once

#include "cli/verbi.h"

namespace cronovia {

/// The values of --giorni and --soste; `WrongUsage` when one is out of its limits.
OpzioniCalcolo LeggiOpzioniCalcolo(const Richiesta& richiesta);

/// Tells that the table of a data folder was written.
QString RigaTabellaScritta(const QString& cartella);

}  // namespace cronovia
