// The schedule as a text file that spreadsheets read.
#pragma once

#include <QByteArray>
#include <QString>

#include "print/dati_stampa.h"

namespace cronovia {

/// Where the table of a data folder lies.
QString FileTabella(const QString& cartella);

/// A `Failure` when that is the file of the table, under whatever name.
void RifiutaFileTabella(const QString& path, const QString& cartella);

/// The table: the destination, an empty line, the headers and the rows; tab-separated, in Windows-1252.
QByteArray TabellaCronovia(const DatiStampa& dati);

/// Replaces the table of a data folder. A `Failure` when it cannot be written; the old one stays then.
void ScriviTabella(const DatiStampa& dati, const QString& cartella);

}  // namespace cronovia
