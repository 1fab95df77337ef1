// SPDX-License-Identifier: GPL-3.0-or-later
// Texts as cells of the files and answers that spreadsheets read.
#pragma once

#include <QString>

namespace cronovia {

/// The text on one line, `Visibile`, and for a spreadsheet never more than a text: one that begins like a formula, with
/// "=", "+", "-" or "@", behind blanks too, has "'" before it, unless it is a number or the note of a rest.
QString InCella(const QString& testo);

/// Lines of cells that tabs part as a table for those who read HTML.
QString TabellaHtml(const QString& testo);

}  // namespace cronovia
