#include <QCoreApplication>
#include <QTextStream>
#include <cstdio>

#include "cli/riga_comando.h"
#include "ui/avvio.h"

namespace {

// Before the program speaks, Qt has nothing to say to a person.
void Silence(QtMsgType /*type*/, const QMessageLogContext& /*context*/, const QString& /*message*/) {}

int RunCommand(int argc, char* argv[]) {
    qInstallMessageHandler(Silence);
    const QCoreApplication application(argc, argv);
    qInstallMessageHandler(nullptr);
    QCoreApplication::setApplicationName(QStringLiteral("Cronovia"));
    QCoreApplication::setApplicationVersion(QStringLiteral(CRONOVIA_VERSION));

    QTextStream output(stdout);
    QTextStream errors(stderr);
    return cronovia::EseguiRigaDiComando(QCoreApplication::arguments(), output, errors);
}

}  // namespace

int main(int argc, char* argv[]) {
    QStringList line;
    for (int i = 0; i < argc; ++i) line += QString::fromLocal8Bit(argv[i]);
    if (const auto folder = cronovia::CartellaDellaFinestra(line)) return cronovia::ApriFinestra(argc, argv, *folder);
    return RunCommand(argc, argv);
}
