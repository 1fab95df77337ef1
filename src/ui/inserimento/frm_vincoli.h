// SPDX-License-Identifier: GPL-3.0-or-later
// What others set for a stage, typed.
#pragma once

#include <optional>

#include "itinerary/tappa.h"

class QWidget;

namespace cronovia {

/// Hours, notes and prices of a stage; nothing when the person leaves them as they are.
std::optional<VincoliTappa> ChiediVincoli(QWidget& finestra, const Tappa& tappa);

}  // namespace cronovia
