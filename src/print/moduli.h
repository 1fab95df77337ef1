// SPDX-License-Identifier: GPL-3.0-or-later
// The companion program that prints blank forms for the logbook.
#pragma once

#include <QString>
#include <QStringList>

#include "print/dati_stampa.h"

namespace cronovia {

/// Starts the program from the first of the folders that has it, without waiting for it. Its one argument is the
/// destination, the first and the last day as day/month/year, with commas between. A `Failure` names the file that is
/// missing, or that does not start.
void AvviaModuli(const DatiStampa& dati, const QStringList& cartelle);

}  // namespace cronovia
