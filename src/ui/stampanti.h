// The printers of this machine, and the PDF file that is always one of them.
#pragma once

#include <QString>
#include <QStringList>
#include <QWidget>

#include "interaction/interaction.h"
#include "interaction/progress.h"
#include "print/pagina.h"

namespace cronovia {

/// Names to choose from: the system's printers in its order, at the end "File PDF".
QStringList NomiStampanti();
/// The name of the printer that is to be chosen at first.
QString StampantePredefinita();
bool UnFilePdf(const QString& stampante);

/// Asks for the file of a PDF printout; empty when the person gave up.
QString ChiediFilePdf(QWidget& finestra, const QString& titolo);

/// Replaces the file, whole or not at all. A `Failure` when that cannot be done.
void StampaSuFile(const Documento& documento, const QString& path, Progress& progress);

/// Prints on a system printer; on the current one, which the person is told, when it has gone meanwhile. A `Failure`
/// when there is none, or it does not print.
void StampaSuStampante(const Documento& documento, const QString& stampante, Interaction& interaction,
                       Progress& progress);

/// Shows the pages on screen; from there they can be printed as well.
void MostraAnteprima(const Documento& documento, QWidget& finestra, Interaction& interaction);

}  // namespace cronovia
