// The companion program that prints blank forms for the logbook.
#pragma once

#include <QString>
#include <QStringList>

#include "print/dati_stampa.h"

namespace cronovia {

/// What the program is told: the destination, the first and the last day as day/month/year, with commas between.
QString ArgomentoModuli(const DatiStampa& dati);

/// Starts the program from the first of the folders that has it, with that one argument and without waiting for it. A
/// `Failure` names the file that is missing, or that does not start.
void AvviaModuli(const DatiStampa& dati, const QStringList& cartelle);

}  // namespace cronovia
