// SPDX-License-Identifier: GPL-3.0-or-later
// A journey as navigators read it.
#pragma once

#include <QByteArray>
#include <QString>
#include <vector>

#include "places/posizione.h"

namespace cronovia {

/// A place on the way, or one that the guide tells of.
struct PuntoPercorso {
    QString nome;
    QString descrizione;  ///< empty where there is nothing to tell
    Posizione posizione;
};

/// What a file for navigators holds.
struct PercorsoDaScrivere {
    QString nome;
    std::vector<PuntoPercorso> tappe;  ///< in travel order
    std::vector<PuntoPercorso> guida;  ///< entries at their localities; not in every format
};

/// The kinds of file that are written.
enum class FormatoPercorso { Gpx, Kml, Itn };

/// The whole file, in UTF-8. GPX 1.1: one route, the entries of the guide as waypoints. KML 2.2: placemarks, and the
/// way as a line. ITN: the stages alone, the first one as departure, the last one as destination.
QByteArray ScriviPercorso(const PercorsoDaScrivere& percorso, FormatoPercorso formato);

/// "gpx", "kml", "itn".
QString Estensione(FormatoPercorso formato);

}  // namespace cronovia
