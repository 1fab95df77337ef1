// SPDX-License-Identifier: GPL-3.0-or-later
// Stored records as a table of texts.
#pragma once

#include <vector>

#include "cli/uscita.h"
#include "store/archive.h"

namespace cronovia {

/// All fields of the records under their names; blanks at the rim of a value go.
TabellaTesti TestiDeiRecord(Table tabella, const std::vector<Record>& record);

}  // namespace cronovia
