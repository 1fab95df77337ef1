// SPDX-License-Identifier: GPL-3.0-or-later
// The verbs that draw pages.
#pragma once

#include "cli/verbi.h"

namespace cronovia {

/// Schedule, guide and days as PDF files.
Stampe StampeInPdf();

}  // namespace cronovia
