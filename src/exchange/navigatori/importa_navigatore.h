// SPDX-License-Identifier: GPL-3.0-or-later
// The stages of a navigator's route.
#pragma once

#include <optional>
#include <span>
#include <utility>
#include <vector>

#include "exchange/lettore_navigatore.h"
#include "interaction/progress.h"
#include "itinerary/modifiche.h"
#include "places/confermate.h"
#include "places/gazzettino.h"
#include "store/archive.h"

namespace cronovia {

/// A route as an itinerary, and where its localities lie as the file says.
struct PercorsoNavigatore {
    RigheItinerario tappe;
    std::vector<std::pair<QString, Posizione>> posizioni;  ///< by locality, as the stages name it
};

/// Named points of a route are stages, unnamed ones between them shape the way; a route without names has its two ends.
/// Without a route the points by themselves are stages: along the track, when there is one, in the order in which it
/// passes them, else as they follow each other. Kilometres are those along the track; without one, or where it is no
/// more than a straight line from place to place, they are guessed. An end without a name is called as the nearest
/// place within 25 km, else by its coordinates. The roads are of a kind that fits their length, to be corrected. Names
/// are in capitals. No stages when there are fewer than two points.
PercorsoNavigatore TappeDelNavigatore(const FileNavigatore& file, Gazzettino& gazzettino);

/// The same of a file; nothing when it is no navigator's. A `Failure` when it has fewer than two points, or more stages
/// than an itinerary can hold.
std::optional<PercorsoNavigatore> LeggiPercorsoNavigatore(const QString& path, Gazzettino& gazzettino);

/// The same of a file of whichever program, which may not tell positions; nothing when it is none that is known.
std::optional<PercorsoNavigatore> LeggiOgniPercorso(const QString& path, Gazzettino& gazzettino, Progress& progress);

/// The localities lie where the file says, from now on and for all trips; what that changed.
CambiPosizioni ConfermaPosizioni(Archive& archive, const PercorsoNavigatore& percorso);

/// The kind of road that a leg of that length mostly takes.
TipoStrada TipoPerKm(int km);

/// That kilometres are a guess, in a sentence; empty when none is.
QString TestoKmStimati(std::span<const Tappa> tappe);

}  // namespace cronovia
