// SPDX-License-Identifier: GPL-3.0-or-later
// The question where to part the leg to a stage.
#pragma once

#include <optional>

#include "app/postazione.h"

class QWidget;

namespace cronovia {

/// A place on the way from `da` to the stage, and its kilometres; nothing when the person does not want to part it. The
/// stage must have two kilometres at least.
std::optional<Divisione> ChiediDivisione(QWidget& finestra, const QString& da, const Tappa& tappa);

}  // namespace cronovia
