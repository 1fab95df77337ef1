#include <QCoreApplication>
#include <QGuiApplication>
#include <QTextStream>
#include <cstdio>
#include <memory>

#include "cli/riga_comando.h"
#include "ui/avvio.h"

namespace {

// Before the program speaks, Qt has nothing to say to a person.
void Silence(QtMsgType /*type*/, const QMessageLogContext& /*context*/, const QString& /*message*/) {}

// A verb that draws into a file needs fonts, but no display. Each platform is tried in turn: where fonts come with a
// window system that is always there, that is taken, else the one without any.
std::unique_ptr<QCoreApplication> MakeApplication(int& argc, char* argv[], bool withFonts) {
    if (!withFonts) return std::make_unique<QCoreApplication>(argc, argv);
    qputenv("QT_QPA_PLATFORM", "windows;cocoa;offscreen");
    return std::make_unique<QGuiApplication>(argc, argv);
}

int RunCommand(int argc, char* argv[], bool withFonts) {
    qInstallMessageHandler(Silence);
    const auto application = MakeApplication(argc, argv, withFonts);
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
    if (const auto window = cronovia::RichiestaDellaFinestra(line)) {
        return cronovia::ApriFinestra(argc, argv, window->cartella, window->file);
    }
    return RunCommand(argc, argv, cronovia::VuoleCaratteri(line));
}
