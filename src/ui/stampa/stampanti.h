// SPDX-License-Identifier: GPL-3.0-or-later
// The printers of this machine, the PDF file that can always be had instead, and the preview.
#pragma once

#include <QString>
#include <QStringList>
#include <QWidget>

#include "interaction/interaction.h"
#include "interaction/progress.h"
#include "print/pagina.h"

namespace cronovia {

/// The system's printers, in its order.
QStringList NomiStampanti();
/// The one that the system would take; empty when there is none.
QString StampantePredefinita();

/// Asks for the file of a PDF printout; empty when the person gave up.
QString ChiediFilePdf(QWidget& finestra, const QString& titolo);

/// Replaces the file, whole or not at all. A `Failure` when that cannot be done.
void StampaSuFile(const Stampato& documento, const QString& path, Progress& progress);

/// Prints on a system printer; on the current one, which the person is told, when it has gone meanwhile. A `Failure`
/// when there is none, or it does not print.
void StampaSuStampante(const Stampato& documento, const QString& stampante, Interaction& interaction,
                       Progress& progress);

/// Shows the pages on screen, and nothing but that.
void MostraAnteprima(const Stampato& documento, QWidget& finestra, Interaction& interaction);

}  // namespace cronovia
