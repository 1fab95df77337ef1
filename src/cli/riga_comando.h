// SPDX-License-Identifier: GPL-3.0-or-later
// The program as a command.
#pragma once

#include <QStringList>
#include <QTextStream>
#include <optional>

#include "cli/terminale.h"
#include "cli/verbi.h"

namespace cronovia {

/// What a line without a verb asks of the window: a data folder, an exchange file to import, each empty when not named.
struct RichiestaFinestra {
    QString cartella;
    QString file;
};

/// Nothing when the line is one for `EseguiRigaDiComando`.
std::optional<RichiestaFinestra> RichiestaDellaFinestra(const QStringList& riga);

/// Whether the line draws a PDF file: that needs fonts, with them a QGuiApplication, and someone who can draw.
bool VuoleCaratteri(const QStringList& riga);

/// Runs one command line, the program's name first. Returns 0 when done, 1 when refused or failed (one sentence in
/// `errori`, nothing changed), 2 when the line cannot be understood. `stampe` may be empty for a line that draws
/// nothing.
int EseguiRigaDiComando(const QStringList& riga, const Stampe& stampe, const Terminale& terminale, QTextStream& uscita,
                        QTextStream& errori);

}  // namespace cronovia
