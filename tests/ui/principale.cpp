// The window's tests run without a display. "ui_test --avvio FOLDER" starts the program's window as the program does.
#include <gtest/gtest.h>

#include <QApplication>
#include <QMessageBox>
#include <QTimer>
#include <cstdio>
#include <cstring>

#include "ui/avvio.h"

namespace {

bool soloAvvio = false;

// Reads the language of the standard buttons out, then a box, which it closes; else it closes the window.
void ChiudiTutto() {
    std::puts(qPrintable(QCoreApplication::translate("QPlatformTheme", "Cancel")));
    if (auto* box = qobject_cast<QMessageBox*>(QApplication::activeModalWidget())) {
        std::puts(qPrintable(box->text()));
        box->accept();
    } else {
        QApplication::closeAllWindows();
    }
}

void PersonaCheChiude() {
    if (!soloAvvio) return;
    QMetaObject::invokeMethod(
        qApp, [] { QTimer::singleShot(100, qApp, &ChiudiTutto); }, Qt::QueuedConnection);
}
Q_COREAPP_STARTUP_FUNCTION(PersonaCheChiude)

// What Qt warns of is a fault of the window, but for what a display that is none cannot do.
void FallisciSuAvviso(QtMsgType tipo, const QMessageLogContext& /*contesto*/, const QString& avviso) {
    if (tipo == QtDebugMsg || tipo == QtInfoMsg || avviso.contains(QLatin1String("propagateSizeHints"))) return;
    ADD_FAILURE() << avviso.toStdString();
}

}  // namespace

int main(int argc, char* argv[]) {
    qputenv("QT_QPA_PLATFORM", "offscreen");
    soloAvvio = argc == 3 && std::strcmp(argv[1], "--avvio") == 0;
    if (soloAvvio) return cronovia::ApriFinestra(argc, argv, QString::fromLocal8Bit(argv[2]));
    testing::InitGoogleTest(&argc, argv);
    const QApplication application(argc, argv);
    QCoreApplication::setApplicationName(QStringLiteral("Cronovia"));
    qInstallMessageHandler(FallisciSuAvviso);
    return RUN_ALL_TESTS();
}
