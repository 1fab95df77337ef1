// The program as a command.
#pragma once

#include <QStringList>
#include <QTextStream>
#include <optional>

namespace cronovia {

/// The data folder that a line without a verb names for the window, empty when it names none; nothing when the line
/// is one for `EseguiRigaDiComando`.
std::optional<QString> CartellaDellaFinestra(const QStringList& riga);

/// Whether the line draws a PDF file: that needs fonts, and with them a QGuiApplication.
bool VuoleCaratteri(const QStringList& riga);

/// Runs one command line, the program's name first. Returns 0 when done, 1 when refused or failed (one sentence in
/// `errori`, nothing changed), 2 when the line cannot be understood.
int EseguiRigaDiComando(const QStringList& riga, QTextStream& uscita, QTextStream& errori);

}  // namespace cronovia
