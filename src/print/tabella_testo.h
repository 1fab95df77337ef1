// SPDX-License-Identifier: GPL-3.0-or-later
// The schedule as a text file that spreadsheets read.
#pragma once

#include <QString>
#include <memory>

#include "files/file_intero.h"
#include "print/dati_stampa.h"

namespace cronovia {

/// Where the table of a data folder lies.
QString FileTabella(const QString& cartella);

/// A `Failure` when that is the file of the table, or belongs to the archive, under whatever name.
void RifiutaFileTabella(const QString& path, const QString& cartella);

/// The new table of a data folder, whole on the disk beside its place, which it takes when it is closed. A `Failure`
/// when it cannot be written.
std::unique_ptr<FileIntero> PreparaTabella(const DatiStampa& dati, const QString& cartella);

/// Replaces the table of a data folder: the destination, an empty line, the headings and the rows, tab-separated, in
/// Windows-1252; where there are any, behind another empty line, how the end stands to when one has to be home, and
/// what the trip costs. A `Failure` when it cannot be written; the old one stays then.
void ScriviTabella(const DatiStampa& dati, const QString& cartella);

}  // namespace cronovia
