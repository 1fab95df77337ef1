// The program as a command.
#pragma once

#include <QStringList>
#include <QTextStream>

namespace cronovia {

/// Runs one command line, the program's name first. Returns 0 when done, 1 when refused or failed (one sentence in
/// `errori`, nothing changed), 2 when the line cannot be understood.
int EseguiRigaDiComando(const QStringList& riga, QTextStream& uscita, QTextStream& errori);

}  // namespace cronovia
