// SPDX-License-Identifier: GPL-3.0-or-later
// Small signs, drawn in the colours of the theme, that tell the rows of the grid apart.
#pragma once

#include <QIcon>

#include "ui/griglia/segno.h"

namespace cronovia {

/// A moon, a plate, a cup, a flag, a book, a clock or a triangle; a null icon for a row without a sign.
QIcon IconaDellaRiga(Segno segno);

}  // namespace cronovia
