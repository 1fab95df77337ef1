// SPDX-License-Identifier: GPL-3.0-or-later
// The window killed at any moment while somebody types: what was typed more than two seconds before is not lost. Some
// kills per run of the tests; CRONOVIA_UCCISIONI names another number.
#include <QDateTime>
#include <QIODevice>
#include <QJsonDocument>
#include <QJsonObject>
#include <QProcess>
#include <QRandomGenerator>
#include <QThread>
#include <algorithm>
#include <future>
#include <iostream>

#include "cli/programma.h"
#include "support/prova.h"

namespace cronovia {
namespace {

using namespace Qt::StringLiterals;

constexpr int kInsieme = 4;

struct Perdita {
    qint64 millisecondi = 0;
    int battuti = 0;  // keys until then
};

// The country of the trip as the recovery file has it; empty without one.
QString Recuperata(const QString& cartella) {
    QFile file(cartella + u"/Cronovia.recupero"_s);
    if (!file.open(QIODevice::ReadOnly)) return {};
    const QJsonObject json = QJsonDocument::fromJson(file.readAll()).object();
    EXPECT_FALSE(json.isEmpty()) << "torn";
    return json["campi"_L1]["Nazione"_L1].toString().trimmed();
}

// How long before the end the oldest key was typed that is lost.
Perdita Uccidi() {
    const prova::CartellaDiProva cartella;
    prova::Programma::EseguiNudo({u"--cartella"_s, cartella.Path(), u"nuova"_s, u"ROMA"_s, u"X"_s});
    QProcess finestra;
    finestra.start(QCoreApplication::applicationFilePath(), {u"--scrive"_s, cartella.Path()});
    EXPECT_TRUE(finestra.waitForReadyRead(20'000));
    QThread::msleep(QRandomGenerator::global()->bounded(4000U));
    finestra.kill();
    const qint64 fine = QDateTime::currentMSecsSinceEpoch();
    finestra.waitForFinished();
    const QString salva = Recuperata(cartella.Path());
    const QStringList battute = QString::fromUtf8(finestra.readAllStandardOutput()).split(u'\n', Qt::SkipEmptyParts);
    Perdita perdita{0, static_cast<int>(battute.size())};
    for (auto battuta = battute.rbegin(); battuta != battute.rend(); ++battuta) {
        if (battuta->section(u' ', 1) == salva) return perdita;
        perdita.millisecondi = fine - battuta->section(u' ', 0, 0).toLongLong();
    }
    EXPECT_EQ(salva, u""_s) << "never typed";
    return perdita;
}

TEST(UccisioniFinestra, NothingOlderThanTwoSecondsIsLost) {
    const int chieste = qEnvironmentVariableIntValue("CRONOVIA_UCCISIONI");
    const int uccisioni = chieste > 0 ? chieste : kInsieme;
    std::vector<qint64> perdite;
    int battuti = 0;
    while (static_cast<int>(perdite.size()) < uccisioni) {
        std::vector<std::future<Perdita>> insieme(kInsieme);
        for (auto& una : insieme) una = std::async(std::launch::async, &Uccidi);
        for (auto& una : insieme) {
            const Perdita perdita = una.get();
            EXPECT_LE(perdita.millisecondi, 2000);
            perdite.push_back(perdita.millisecondi);
            battuti += perdita.battuti;
        }
    }
    std::sort(perdite.begin(), perdite.end());
    std::cout << "windows killed: " << perdite.size() << ", keys " << battuti << ", lost in ms: half "
              << perdite[perdite.size() / 2] << ", most " << perdite.back() << '\n';
    EXPECT_GT(battuti, 0);
}

}  // namespace
}  // namespace cronovia
