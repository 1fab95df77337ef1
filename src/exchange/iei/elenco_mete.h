// SPDX-License-Identifier: GPL-3.0-or-later
// The trips that an exchange file holds.
#pragma once

#include <QString>
#include <functional>
#include <optional>
#include <vector>

#include "exchange/iei/lettore_iei.h"
#include "interaction/progress.h"
#include "trips/mete.h"

class QIODevice;

namespace cronovia {

/// The trips that can be imported, in the file's order, their codes as the file has them, those marked that an import
/// would leave out as the archive has them; nothing when the person stopped the reading. A `Failure` when the file is
/// no exchange file.
std::optional<std::vector<MetaInElenco>> LeggiElencoMete(Archive& archive, const QString& path, Progress& progress);

/// Whether a record of the trips section can be imported: it has a destination and a code of a bearable length.
bool MetaImportabile(const RigaIei& riga);

/// Visits those records, from the beginning of the device. `path` is its name in messages. A `Failure` when it is no
/// exchange file, `Stopped` on a stop.
void ScorriMete(QIODevice& device, const QString& path, const Lettura& lettura, Progress& progress,
                const std::function<void(const RigaIei&)>& visita);

}  // namespace cronovia
