// SPDX-License-Identifier: GPL-3.0-or-later
// When one has to be home, and the prices of a trip, typed.
#pragma once

#include <optional>

#include "trips/meta.h"

class QWidget;

namespace cronovia {

/// The trip with another deadline and other prices; nothing when the person leaves them as they are.
std::optional<Meta> ChiediScadenza(QWidget& finestra, const Meta& meta);

}  // namespace cronovia
