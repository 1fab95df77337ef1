// SPDX-License-Identifier: GPL-3.0-or-later
// A line with a verb is run here; the window, and what draws pages, are in a library that only they need.
#include <QCoreApplication>
#include <QDir>
#include <QLibrary>
#include <cstdio>
#include <memory>

#include "cli/processo.h"
#include "cli/riga_comando.h"
#include "grafica/grafica.h"

namespace {

using namespace Qt::StringLiterals;

QString CartellaDelProgramma(int argc, char* argv[]) {
    const QCoreApplication application(argc, argv);
    return QCoreApplication::applicationDirPath();
}

// Beside the program, as it is built and carried along, or where an installation puts it.
int RunWithGraphics(int argc, char* argv[]) {
    const QDir programma(CartellaDelProgramma(argc, argv));
    QLibrary library;
    for (const QString& cartella : {u"."_s, QStringLiteral(CRONOVIA_LIBRARY_FOLDER)}) {
        library.setFileName(QDir::cleanPath(programma.filePath(cartella + u"/" CRONOVIA_GRAFICA ""_s)));
        if (library.load()) break;
    }
    const auto run = reinterpret_cast<EseguiConLaGrafica>(library.resolve("CronoviaGrafica"));
    if (run != nullptr) return run(argc, argv);
    const QString message =
        u"La parte di Cronovia per la finestra e le stampe non si può caricare: reinstalla il programma. Gli altri "
        "comandi da terminale funzionano lo stesso: cronovia --help\n(%1)\n"_s.arg(library.errorString());
    std::fputs(message.toUtf8().constData(), stderr);
    return 1;
}

std::unique_ptr<QCoreApplication> MakeApplication(int& argc, char* argv[]) {
    return std::make_unique<QCoreApplication>(argc, argv);
}

}  // namespace

int main(int argc, char* argv[]) {
    const QStringList line = cronovia::Riga(argc, argv);
    if (cronovia::RichiestaDellaFinestra(line) || cronovia::VuoleCaratteri(line)) return RunWithGraphics(argc, argv);
    return cronovia::EseguiProcesso(argc, argv, &MakeApplication, {});
}
