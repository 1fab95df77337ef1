// SPDX-License-Identifier: GPL-3.0-or-later
// Whole itineraries as tables of texts or as JSON, as `itinerario` writes them, a spreadsheet saves them or a person
// types them.
#pragma once

#include <QByteArray>
#include <QStringList>

#include "itinerary/modifiche.h"

class QIODevice;

namespace cronovia {

/// The most bytes that are read of such a file.
inline constexpr qint64 kMassimoFileTappe = 32 * 1024 * 1024;

/// What such a file tells.
struct TappeLette {
    RigheItinerario tappe;
    QStringList ignorate;  ///< names of columns, or of members, that no stage has
};

/// The stages of JSON, or of a table whose first line names the columns, parted by tabs, ";" or ",". A `Failure` names
/// the line and the column that cannot be read; another one tells of no stages at all, or of too large a file. What
/// `itinerario` wrote gives the stages that it was written from.
TappeLette LeggiTabellaTappe(QIODevice& device);

}  // namespace cronovia
