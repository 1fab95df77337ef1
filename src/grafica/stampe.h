// The verbs that draw pages.
#pragma once

#include "cli/verbi.h"

namespace cronovia {

/// Schedule and guide as PDF files.
Stampe StampeInPdf();

}  // namespace cronovia
