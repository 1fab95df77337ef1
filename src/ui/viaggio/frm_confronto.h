// SPDX-License-Identifier: GPL-3.0-or-later
// What a trip would come to with other stops or days, to choose from.
#pragma once

#include <optional>
#include <vector>

#include "schedule/alternative.h"

class QWidget;

namespace cronovia {

/// Position of the one that is chosen, with a click or Enter; nothing when none is.
std::optional<std::size_t> ScegliAlternativa(QWidget& finestra, const std::vector<Alternativa>& alternative);

}  // namespace cronovia
