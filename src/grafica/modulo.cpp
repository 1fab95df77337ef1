// SPDX-License-Identifier: GPL-3.0-or-later
// What the program finds in the library.
#include <QGuiApplication>
#include <memory>

#include "cli/processo.h"
#include "cli/riga_comando.h"
#include "grafica/stampe.h"
#include "ui/avvio.h"

namespace {

// A verb that draws into a file needs fonts, but no display. Each platform is tried in turn: where fonts come with a
// window system that is always there, that is taken, else the one without any.
std::unique_ptr<QCoreApplication> ConCaratteri(int& argc, char* argv[]) {
    qputenv("QT_QPA_PLATFORM", "windows;cocoa;offscreen");
    return std::make_unique<QGuiApplication>(argc, argv);
}

}  // namespace

extern "C" Q_DECL_EXPORT int CronoviaGrafica(int argc, char* argv[]) {
    if (const auto finestra = cronovia::RichiestaDellaFinestra(cronovia::Riga(argc, argv))) {
        return cronovia::ApriFinestra(argc, argv, finestra->cartella, finestra->file);
    }
    return cronovia::EseguiProcesso(argc, argv, &ConCaratteri, cronovia::StampeInPdf());
}
