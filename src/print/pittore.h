// Paints a document: on a printer, into a PDF file, for the preview.
#pragma once

#include <QPagedPaintDevice>

#include "print/pagina.h"

namespace cronovia {

/// Paints all pages, each on a sheet of its own. A `Failure` when the device cannot be painted on, or refuses a page.
void Dipingi(const Documento& documento, QPagedPaintDevice& dispositivo);

}  // namespace cronovia
