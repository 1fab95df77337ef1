// SPDX-License-Identifier: GPL-3.0-or-later
// The printers of this machine, the PDF file that can always be had instead, and the preview.
#pragma once

#include <QString>
#include <QStringList>
#include <QWidget>
#include <functional>
#include <memory>

#include "interaction/interaction.h"
#include "interaction/progress.h"
#include "print/pagina.h"

class QPrinter;

namespace cronovia {

/// The printers that there are; tests put others in their place.
struct Stampanti {
    std::function<QStringList()> nomi;                                   ///< in the system's order
    std::function<QString()> predefinita;                                ///< the system's own choice; empty without one
    std::function<std::unique_ptr<QPrinter>(const QString& nome)> apri;  ///< one of them, to be printed on
};

/// Those of this machine.
Stampanti StampantiDelSistema();

/// Asks for the file of a PDF printout; empty when the person gave up.
QString ChiediFilePdf(QWidget& finestra, const QString& titolo);

/// Replaces the file, whole or not at all. A `Failure` when that cannot be done.
void StampaSuFile(const Stampato& documento, const QString& path, Progress& progress);

/// Prints on one of the printers; on the system's own choice, which the person is told, when it has gone meanwhile. A
/// `Failure` when there is none, or it does not print.
void StampaSuStampante(const Stampato& documento, const QString& stampante, const Stampanti& stampanti,
                       Interaction& interaction, Progress& progress);

/// Shows the pages on screen, and nothing but that.
void MostraAnteprima(const Stampato& documento, QWidget& finestra, Interaction& interaction);

}  // namespace cronovia
