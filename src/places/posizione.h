// SPDX-License-Identifier: GPL-3.0-or-later
// A point of the earth.
#pragma once

#include <QString>
#include <QStringView>
#include <optional>

namespace cronovia {

/// In degrees: latitude from -90 to 90, north positive; longitude from -180 to below 180, east positive.
struct Posizione {
    double latitudine = 0;
    double longitudine = 0;

    friend bool operator==(const Posizione&, const Posizione&) = default;
};

/// The straight way over the earth, in kilometres.
double DistanzaKm(const Posizione& a, const Posizione& b);

/// The point of the straight way from one to the other that lies after that part of it, 0 to 1.
Posizione Fra(const Posizione& da, const Posizione& a, double parte);

/// A position of two texts, in any usual form: degrees with point or comma ("44.4056", "-8,25"), degrees and minutes
/// or seconds ("44° 24' 20,2\" N", "N 44 24.34"), with N, S, E, O or W before or behind. Nothing when one is none.
std::optional<Posizione> LeggiPosizione(QStringView latitudine, QStringView longitudine);

/// The same of one text that holds both: "44.4056, 8.9463", "44,4056 8,9463", "44°24'20\"N 8°56'47\"E".
std::optional<Posizione> LeggiPosizione(QStringView testo);

/// Degrees for files and the archive: a point, five places.
QString TestoGradi(double gradi);

/// As people read it: "44,4056° N 8,9463° E".
QString Testo(const Posizione& posizione);

}  // namespace cronovia
