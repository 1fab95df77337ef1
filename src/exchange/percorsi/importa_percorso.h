// SPDX-License-Identifier: GPL-3.0-or-later
// Import of a route that another program has computed: the stages of a new itinerary.
#pragma once

#include <QString>
#include <optional>
#include <span>

#include "interaction/progress.h"
#include "itinerary/modifiche.h"

class QIODevice;

namespace cronovia {

/// The stages of a route planner's export; nothing when the file is none that is known. A `Failure` when it cannot be
/// read, changes while it is read, or has no stage or more than an itinerary can hold.
std::optional<RigheItinerario> LeggiPercorso(const QString& path, Progress& progress);

/// The same from a device, which may also have no stage. `path` is its name in messages.
std::optional<RigheItinerario> LeggiPercorso(QIODevice& device, const QString& path, Progress& progress);

/// What was recognised, in two lines: how many stages, from where to where; how far, with how many ferries. There must
/// be a stage.
QString RiassuntoPercorso(std::span<const Tappa> tappe);

}  // namespace cronovia
