// SPDX-License-Identifier: GPL-3.0-or-later
// What people are told of a check and of a repair.
#pragma once

#include <QString>
#include <vector>

#include "store/archive_check.h"
#include "store/repair.h"

namespace cronovia {

/// That an archive is not damaged, and what is odd about it all the same.
QString TestoInOrdine(const std::vector<Finding>& segnalazioni);

/// What a repair saves and what is lost, as lines of text.
QString TestoRiparazione(const Repair& riparazione);

/// What became of the rows of a table: "della mèta corrente: salvate 1".
QString TestoTabellaRiparata(const RepairedTable& tabella);

/// That it was done, and where the damaged file is.
QString TestoRiparata(const QString& daParte);

}  // namespace cronovia
