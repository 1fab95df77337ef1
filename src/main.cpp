#include <QCoreApplication>
#include <QTextStream>
#include <cstdio>

#include "cli/riga_comando.h"

namespace {

// Before the program speaks, Qt has nothing to say to a person.
void Silence(QtMsgType /*type*/, const QMessageLogContext& /*context*/, const QString& /*message*/) {}

}  // namespace

int main(int argc, char* argv[]) {
    qInstallMessageHandler(Silence);
    const QCoreApplication application(argc, argv);
    qInstallMessageHandler(nullptr);
    QCoreApplication::setApplicationName(QStringLiteral("Cronovia"));
    QCoreApplication::setApplicationVersion(QStringLiteral(CRONOVIA_VERSION));

    QTextStream output(stdout);
    QTextStream errors(stderr);
    return cronovia::EseguiRigaDiComando(QCoreApplication::arguments(), output, errors);
}
