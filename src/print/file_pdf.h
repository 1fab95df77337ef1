// SPDX-License-Identifier: GPL-3.0-or-later
// Printouts as PDF files.
#pragma once

#include "files/file_intero.h"
#include "interaction/progress.h"
#include "print/pagina.h"

namespace cronovia {

/// Writes a document into a file that the caller then closes: with its title, its bookmarks, its fonts and texts that
/// can be marked and copied. A `Failure` when that fails.
void ScriviPdf(const Stampato& documento, FileIntero& file, Progress& progress);

}  // namespace cronovia
