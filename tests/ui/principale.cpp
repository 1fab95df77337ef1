// SPDX-License-Identifier: GPL-3.0-or-later
// The window's tests run without a display. "ui_test --avvio FOLDER" starts the program's window as the program does,
// "--scrive FOLDER" with somebody who types in it.
#include <gtest/gtest.h>

#include <QApplication>
#include <QDateTime>
#include <QLineEdit>
#include <QMessageBox>
#include <QRandomGenerator>
#include <QTest>
#include <QTimer>
#include <cstdio>
#include <cstring>

#include "ui/avvio.h"

namespace {

bool soloAvvio = false;
bool cheScrive = false;

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

// Types into the country of the trip, without end, fast and slowly, and tells when it held what.
void Scrivi() {
    static int battuti = 0;
    for (QWidget* controllo : QApplication::allWidgets()) {
        if (controllo->objectName() != QLatin1String("txtNazione")) continue;
        if (++battuti % 12 == 0) QTest::keyClick(controllo, Qt::Key_A, Qt::ControlModifier);
        QTest::keyClick(controllo, static_cast<char>('A' + battuti % 23));
        const QString adesso = qobject_cast<QLineEdit*>(controllo)->text();
        std::printf("%lld %s\n", QDateTime::currentMSecsSinceEpoch(), qPrintable(adesso));
        std::fflush(stdout);
    }
    QTimer::singleShot(QRandomGenerator::global()->bounded(10, 300), qApp, &Scrivi);
}

void PersonaCheChiude() {
    if (cheScrive) {
        QMetaObject::invokeMethod(
            qApp, [] { QTimer::singleShot(300, qApp, &Scrivi); }, Qt::QueuedConnection);
    }
    if (!soloAvvio) return;
    QMetaObject::invokeMethod(
        qApp, [] { QTimer::singleShot(100, qApp, &ChiudiTutto); }, Qt::QueuedConnection);
}
Q_COREAPP_STARTUP_FUNCTION(PersonaCheChiude)

// What Qt warns of is a fault of the window, but for what a display that is none cannot do.
void FallisciSuAvviso(QtMsgType tipo, const QMessageLogContext& /*contesto*/, const QString& avviso) {
    if (tipo == QtDebugMsg || tipo == QtInfoMsg || avviso.startsWith(QLatin1String("This plugin does not support")))
        return;
    ADD_FAILURE() << avviso.toStdString();
}

}  // namespace

int main(int argc, char* argv[]) {
    qputenv("QT_QPA_PLATFORM", "offscreen");
    soloAvvio = argc == 3 && std::strcmp(argv[1], "--avvio") == 0;
    cheScrive = argc == 3 && std::strcmp(argv[1], "--scrive") == 0;
    if (soloAvvio || cheScrive) return cronovia::ApriFinestra(argc, argv, QString::fromLocal8Bit(argv[2]));
    testing::InitGoogleTest(&argc, argv);
    const QApplication application(argc, argv);
    QCoreApplication::setApplicationName(QStringLiteral("Cronovia"));
    qInstallMessageHandler(FallisciSuAvviso);
    return RUN_ALL_TESTS();
}
