// SPDX-License-Identifier: GPL-3.0-or-later
// The question where a place lies.
#pragma once

#include <QString>
#include <optional>

#include "places/posizione.h"

class QWidget;

namespace cronovia {

/// The position that the person types for a place, in any usual form; nothing when it is not wanted.
std::optional<Posizione> ChiediCoordinate(QWidget& finestra, const QString& localita);

}  // namespace cronovia
