// SPDX-License-Identifier: GPL-3.0-or-later
#include "cli/processo.h"

#include <QTextStream>
#include <cstdio>

#include "cli/riga_comando.h"

namespace cronovia {

namespace {

// Before the program speaks, Qt has nothing to say to a person.
void Taci(QtMsgType /*type*/, const QMessageLogContext& /*context*/, const QString& /*message*/) {}

}  // namespace

QStringList Riga(int argc, char* argv[]) {
    QStringList riga;
    for (int i = 0; i < argc; ++i) riga += QString::fromLocal8Bit(argv[i]);
    return riga;
}

int EseguiProcesso(int argc, char* argv[], CreaApplicazione crea, const Stampe& stampe) {
    qInstallMessageHandler(Taci);
    const auto applicazione = crea(argc, argv);
    qInstallMessageHandler(nullptr);
    QCoreApplication::setApplicationName(QStringLiteral("Cronovia"));
    QCoreApplication::setApplicationVersion(QStringLiteral(CRONOVIA_VERSION));
    QTextStream uscita(stdout);
    QTextStream errori(stderr);
    return EseguiRigaDiComando(QCoreApplication::arguments(), stampe, Terminale::DelProcesso(), uscita, errori);
}

}  // namespace cronovia
