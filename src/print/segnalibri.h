// SPDX-License-Identifier: GPL-3.0-or-later
// Bookmarks for PDF files, which Qt's writer does not know.
#pragma once

#include <QByteArray>

#include "print/pagina.h"

namespace cronovia {

/// What is to be put behind the bytes of a PDF file, as Qt writes them, so that its reader shows the document's
/// bookmarks: an outline, and a new version of the file's root. Nothing without bookmarks, or when the file is laid out
/// in another way.
QByteArray SegnalibriInCoda(const QByteArray& pdf, const Stampato& documento);

}  // namespace cronovia
