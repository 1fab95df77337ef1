// SPDX-License-Identifier: GPL-3.0-or-later
// Routes of navigators and web planners: GPX 1.0 and 1.1, KML and KMZ, ITN, GeoJSON, told by what the file holds.
#pragma once

#include <QString>
#include <optional>
#include <vector>

#include "places/posizione.h"

class QIODevice;

namespace cronovia {

/// A point of a file; its name is empty when it only shapes the way.
struct PuntoLetto {
    QString nome;
    Posizione posizione;
    QString tipo = {};  ///< what kind of place it is, and what else is told of it, each on one line
    QString note = {};
};

/// What a file holds, each list in its order.
struct FileNavigatore {
    std::vector<PuntoLetto> rotta;   ///< of routes
    std::vector<PuntoLetto> luoghi;  ///< points by themselves
    std::vector<Posizione> traccia;  ///< of tracks and lines
};

/// The most points that a file may have, and its bytes, also once it is unpacked.
inline constexpr std::size_t kMassimiPuntiNavigatore = 1'000'000;
inline constexpr qint64 kMassimiByteNavigatore = 200'000'000;

/// Nothing when the file is of another kind. A `Failure` when it is one of these and damaged or too large, nested
/// deeper than any of them, with definitions of its own, or has coordinates that are none. Reading needs memory for the
/// points and, of GeoJSON and KMZ, for the file.
std::optional<FileNavigatore> LeggiNavigatore(const QString& path);

/// The same from a device, of which `path` is the file; without a file no KMZ can be read.
std::optional<FileNavigatore> LeggiNavigatore(QIODevice& device, const QString& path);

}  // namespace cronovia
