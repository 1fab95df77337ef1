// SPDX-License-Identifier: GPL-3.0-or-later
// Writes the page of the manual while the program is built: cronovia_manuale FILE DATE.
#include <QFile>

#include "cli/pagina_manuale.h"

int main(int argc, char* argv[]) {
    if (argc != 3) return 2;
    QFile file(QString::fromLocal8Bit(argv[1]));
    const QString pagina =
        cronovia::PaginaDelManuale(QStringLiteral(CRONOVIA_VERSION), QString::fromLocal8Bit(argv[2]));
    return file.open(QIODevice::WriteOnly | QIODevice::Truncate) && file.write(pagina.toUtf8()) >= 0 && file.flush()
               ? 0
               : 1;
}
