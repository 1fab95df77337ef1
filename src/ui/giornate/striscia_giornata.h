// SPDX-License-Identifier: GPL-3.0-or-later
// Draws the 24 hours of a day as bars.
#pragma once

#include <QPainter>
#include <QPalette>
#include <QRect>
#include <utility>

#include "schedule/strisce.h"

namespace cronovia {

/// What the strip of a day shows besides its bars.
struct AspettoStriscia {
    std::pair<Centesimi, Centesimi> visite;        ///< hours that are shaded
    int rigaSegnata = PezzoDelGiorno::kSenzaRiga;  ///< the row of the schedule whose bars are framed
    QPalette colori;
};

/// Bars, hours and names of places that fit, within a rectangle as wide as 24 hours.
void DipingiStriscia(QPainter& painter, const QRect& area, const StrisciaDelGiorno& striscia,
                     const AspettoStriscia& aspetto);
/// A bar's filling alone, as legends show it.
void DipingiBarra(QPainter& painter, const QRectF& area, GenerePezzo genere, const QPalette& colori);

/// Where an hour lies in such a rectangle.
double AscissaDellOra(const QRect& area, Centesimi ora);
/// The bar at a point of it; null when there is none.
const PezzoDelGiorno* PezzoIn(const QRect& area, const StrisciaDelGiorno& striscia, const QPoint& punto);

}  // namespace cronovia
