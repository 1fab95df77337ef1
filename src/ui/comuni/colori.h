// SPDX-License-Identifier: GPL-3.0-or-later
// Colours that stay legible, whatever theme is on.
#pragma once

#include <QLineEdit>
#include <QPalette>

namespace cronovia {

/// The contrast of two colours, 1 to 21.
double Contrasto(const QColor& a, const QColor& b);

/// The first colour with so many hundredths of the second one.
QColor Misto(const QColor& da, const QColor& a, int centesimi);

/// The palette with texts of disabled controls, examples in empty boxes, and what is selected, that can be read: a
/// contrast of 4.5 at least.
QPalette ConDisabilitatiLeggibili(QPalette palette);

/// Gives the boxes to be ticked within a window an outline that tells itself from its ground, by a contrast of 3 at
/// least, where the style takes it from the palette.
void MostraLeSpunte(const QWidget& finestra);

/// The colour of what is late, on a ground of these: a red with a contrast of 4.5 at least, in dark themes too.
QColor ColoreRitardo(const QPalette& palette, QPalette::ColorRole sfondo, QPalette::ColorRole testo);

/// Gives a box the colours of what is around it, disabled or not; follows when they change.
void ComeIntorno(QLineEdit& casella);

}  // namespace cronovia
