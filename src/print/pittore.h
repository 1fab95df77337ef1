// SPDX-License-Identifier: GPL-3.0-or-later
// Paints a document: on a printer, into a PDF file, for the preview.
#pragma once

#include <QPagedPaintDevice>

#include "interaction/progress.h"
#include "print/pagina.h"

namespace cronovia {

/// Paints all pages, each on a sheet of its own, and tells which one. A `Failure` when the device cannot be painted on,
/// has no sheets as large as the document's, or refuses a page.
void Dipingi(const Stampato& documento, QPagedPaintDevice& dispositivo, Progress& progress);

}  // namespace cronovia
