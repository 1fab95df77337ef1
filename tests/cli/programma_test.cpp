// What no transcript can say of the program.
#include "programma.h"
#include "exchange/scambio.h"

namespace cronovia {
namespace {

using namespace Qt::StringLiterals;
using prova::Programma;

TEST(Programma, AResultThatCannotBeWrittenIsNoSuccess) {
    if (!QFile::exists(u"/dev/full"_s)) GTEST_SKIP() << "this system has no device that is always full";
    const Programma programma;
    programma.ImportaEsempio(u"provenza"_s);
    QProcess processo;
    processo.setStandardOutputFile(u"/dev/full"_s);
    processo.start(QStringLiteral(CRONOVIA_PROGRAM),
                   {u"--cartella"_s, programma.Cartella().Percorso(), u"calcola"_s, u"3"_s});
    ASSERT_TRUE(processo.waitForFinished());
    EXPECT_EQ(processo.exitCode(), 1);
    EXPECT_EQ(QString::fromUtf8(processo.readAllStandardError()), u"Il risultato non si può scrivere.\n"_s);
}

TEST(Programma, WhatDrawsIsMissedOnlyByWhatDraws) {
    const Programma programma;
    programma.ImportaEsempio(u"provenza"_s);
    const QTemporaryDir altrove;
    const QString solo = altrove.filePath(u"cronovia"_s);
    ASSERT_TRUE(QFile::copy(QStringLiteral(CRONOVIA_PROGRAM), solo));
    const auto esegui = [&](const QStringList& argomenti) {
        QProcess processo;
        processo.start(solo, QStringList{u"--cartella"_s, programma.Cartella().Percorso()} + argomenti);
        EXPECT_TRUE(processo.waitForFinished());
        const QString errori = QString::fromUtf8(processo.readAllStandardError());
        return std::pair{processo.exitCode(), errori.section(u':', 0, 0)};
    };
    const QString manca = u"La parte di Cronovia per la finestra e le stampe non si può caricare"_s;
    const QString pdf = altrove.filePath(u"x.pdf"_s);
    EXPECT_EQ(esegui({u"elenca"_s}), (std::pair{0, QString()}));
    EXPECT_EQ(esegui({}), (std::pair{1, manca}));
    EXPECT_EQ(esegui({u"stampa"_s, u"3"_s, u"--pdf"_s, pdf}), (std::pair{1, manca}));
    EXPECT_EQ(esegui({u"--formato"_s, u"json"_s, u"guida"_s, u"--pdf"_s, pdf}), (std::pair{1, manca}));
}

// Beginnings that are wildcards, and an apostrophe near the beginning: none is found by what stands before them.
TEST(Programma, ManyNamesThatNoIndexOfTheTableFindsTakeSeconds) {
    const Programma programma;
    programma.Cartella().Crea();
    QByteArray mete;
    QByteArray voci;
    for (int i = 1; i <= 20'000; ++i) {
        const QByteArray numero = QByteArray::number(i).rightJustified(6, '0');
        const char* inizio = i % 3 == 0 ? "*" : i % 3 == 1 ? "?" : "L'";
        mete += numero + "|" + inizio + numero + "|I\n";
        voci += "ROMA|01|L'" + numero + "\n";
    }
    const QString file = programma.Cartella().Percorso() + u"/tante.iei"_s;
    prova::ScriviFile(file, prova::Mete(mete) + prova::Tappe("000001|0001|ROMA\n") + prova::Guida(voci));
    EXPECT_TRUE(programma.Uscita({u"importa"_s, file}).contains(u"20.000 mète/itinerari;"_s));
}

}  // namespace
}  // namespace cronovia
