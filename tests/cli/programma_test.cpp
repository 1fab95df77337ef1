// SPDX-License-Identifier: GPL-3.0-or-later
// What no transcript can say of the program.
#include <QRegularExpression>

#include "exchange/scambio.h"
#include "itinerary/celle_tappa.h"
#include "programma.h"

namespace cronovia {
namespace {

using namespace Qt::StringLiterals;
using prova::Programma;
using prova::Risposta;

TEST(Programma, AResultThatCannotBeWrittenIsNoSuccess) {
    if (!QFile::exists(u"/dev/full"_s)) GTEST_SKIP() << "this system has no device that is always full";
    const Programma programma;
    programma.ImportaEsempio(u"provenza"_s);
    QProcess processo;
    processo.setStandardOutputFile(u"/dev/full"_s);
    processo.start(QStringLiteral(CRONOVIA_PROGRAM),
                   {u"--cartella"_s, programma.Cartella().Path(), u"calcola"_s, u"3"_s});
    ASSERT_TRUE(processo.waitForFinished());
    EXPECT_EQ(processo.exitCode(), 1);
    EXPECT_EQ(
        QString::fromUtf8(processo.readAllStandardError()),
        u"Il risultato non si può scrivere: il disco è pieno, o nessuno lo legge. Ciò che il verbo doveva cambiare è cambiato.\n"_s);
}

TEST(Programma, WhatDrawsIsMissedOnlyByWhatDraws) {
    const Programma programma;
    programma.ImportaEsempio(u"provenza"_s);
    const QTemporaryDir altrove;
    const QString solo = altrove.filePath(u"cronovia"_s);
    ASSERT_TRUE(QFile::copy(QStringLiteral(CRONOVIA_PROGRAM), solo));
    const auto esegui = [&](const QStringList& argomenti) {
        QProcess processo;
        processo.start(solo, QStringList{u"--cartella"_s, programma.Cartella().Path()} + argomenti);
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

TEST(Programma, AFolderWhoseNameIsNoTextIsRefused) {
    const QTemporaryDir altrove;
    QProcess processo;
    processo.setWorkingDirectory(altrove.path());
    const QString riga = u"exec \"$0\" --cartella \"$(printf 'a\\377b')\" elenca"_s;
    processo.start(u"sh"_s, {u"-c"_s, riga, QStringLiteral(CRONOVIA_PROGRAM)});
    ASSERT_TRUE(processo.waitForFinished());
    EXPECT_EQ(processo.exitCode(), 2);
    EXPECT_TRUE(processo.readAllStandardError().startsWith("Il nome dato all'opzione --cartella non è un testo"));
    EXPECT_TRUE(QDir(altrove.path()).isEmpty());
}

TEST(Programma, OfManyRoutesAtOnceOneFindsTheItineraryEmpty) {
    const Programma programma;
    EXPECT_EQ(programma.Uscita({u"nuova"_s, u"CORSICA"_s, u"FRANCIA"_s}), u"000001\n"_s);
    const QString percorso = QStringLiteral(CRONOVIA_EXAMPLES) + u"/percorsi/livorno-ajaccio.txt"_s;
    std::vector<std::unique_ptr<QProcess>> processi;
    for (int i = 0; i < 16; ++i) {
        processi.push_back(std::make_unique<QProcess>());
        processi.back()->start(QStringLiteral(CRONOVIA_PROGRAM),
                               {u"--cartella"_s, programma.Cartella().Path(), u"percorso"_s, u"1"_s, percorso});
    }
    int riusciti = 0;
    for (const auto& processo : processi) {
        ASSERT_TRUE(processo->waitForFinished(60'000));
        if (processo->exitCode() == 0) ++riusciti;
    }
    EXPECT_EQ(riusciti, 1);
    const QString tappe = programma.Uscita({u"itinerario"_s, u"1"_s, u"--formato"_s, u"tsv"_s});
    EXPECT_EQ(tappe.count(u"PORTO DI LIVORNO"_s), 1);
}

TEST(Programma, APrintoutWithoutRoomLeavesTheOldTable) {
    const Programma programma;
    EXPECT_EQ(programma.Uscita({u"nuova"_s, u"CORSICA"_s, u"FRANCIA"_s, u"--inizio"_s, u"5/6/2027 8:00"_s}),
              u"000001\n"_s);
    const QString percorso = QStringLiteral(CRONOVIA_EXAMPLES) + u"/percorsi/livorno-ajaccio.txt"_s;
    EXPECT_NE(programma.Uscita({u"percorso"_s, u"1"_s, percorso}), QString());
    EXPECT_NE(programma.Uscita({u"calcola"_s, u"1"_s, u"--tabella"_s}), QString());
    const QString tabella = programma.Cartella().Path() + u"/Vandtabl.txt"_s;
    const QByteArray prima = prova::LeggiFile(tabella);
    const rlim_t spazio = 2 * static_cast<rlim_t>(prima.size());  // enough for a table, not for pages
    Risposta risposta;
    prova::ConDiscoPieno(spazio, [&] {
        risposta = programma.Esegui(
            {u"stampa"_s, u"1"_s, u"--giorni"_s, u"3"_s, u"--pdf"_s, programma.Cartella().Path() + u"/x.pdf"_s});
    });
    EXPECT_EQ(risposta.codice, 1);
    EXPECT_TRUE(risposta.errori.contains(u"x.pdf non è stato scritto"_s)) << risposta.errori.toStdString();
    EXPECT_EQ(prova::LeggiFile(tabella), prima);
    EXPECT_EQ(programma.Cartella().Contenuto(), (QStringList{u"Copie"_s, u"VandroCronovia.mdb"_s, u"Vandtabl.txt"_s}));
}

// A name that can be typed and that no help tells is found by nobody.
TEST(Programma, TheHelpTellsEveryNameOfWhatCanBeChanged) {
    const Programma programma;
    EXPECT_EQ(programma.Uscita({u"nuova"_s, u"ROMA"_s, u"ITALIA"_s}), u"000001\n"_s);
    const QString aiutoMeta = programma.Uscita({u"parametri"_s, u"--help"_s});
    const QString meta = programma.Uscita({u"parametri"_s, u"1"_s, u"--formato"_s, u"tsv"_s});
    const QStringList righe = meta.split(u'\n', Qt::SkipEmptyParts).sliced(1);
    EXPECT_GT(righe.size(), 20);
    const auto detto = [](const QString& aiuto, const QString& nome) {
        return aiuto.contains(
            QRegularExpression(u"^  (.*, )?%1(,.*)?$"_s.arg(nome), QRegularExpression::MultilineOption));
    };
    for (const QString& riga : righe) EXPECT_TRUE(detto(aiutoMeta, riga.section(u'\t', 0, 0))) << riga.toStdString();
    const QString aiutoTappa = programma.Uscita({u"tappe"_s, u"--help"_s});
    for (int i = cella::Vincoli; i < kCelle; ++i) {
        const QString nome = NomiDellaCella(i).first();
        EXPECT_TRUE(detto(aiutoTappa, nome)) << nome.toStdString();
    }
}

// What was chosen in the window's preferences: the sheet, and how many copies stay.
TEST(Programma, GoesByThePreferencesOfItsFolder) {
    const Programma programma;
    programma.ImportaEsempio(u"provenza"_s);
    const QString cartella = programma.Cartella().Path();
    prova::ScriviFile(cartella + u"/Cronovia.ini"_s, "[General]\ncarta=Letter\ncopie=3\n");
    const QString pdf = cartella + u"/lettera.pdf"_s;
    EXPECT_NE(programma.Uscita({u"stampa"_s, u"3"_s, u"--pdf"_s, pdf}), QString());
    EXPECT_TRUE(prova::LeggiFile(pdf).contains("/MediaBox [0 0 612.000000 792.000000]"));
    const QDir copie(cartella + u"/Copie"_s);
    copie.mkpath(u"."_s);
    const auto vecchia = [](int giorno) { return u"VandroCronovia 2001-01-0%1 10.00.00.mdb"_s.arg(giorno); };
    for (int giorno = 1; giorno <= 6; ++giorno) prova::ScriviFile(copie.filePath(vecchia(giorno)), "vecchia");
    programma.ImportaEsempio(u"sicilia"_s);
    const QStringList restano = copie.entryList(QDir::Files, QDir::Name);
    EXPECT_EQ(restano.size(), 3) << restano.join(u'\n').toStdString();
    EXPECT_EQ(restano.mid(0, 2), (QStringList{vecchia(5), vecchia(6)}));
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
    const QString file = programma.Cartella().Path() + u"/tante.iei"_s;
    prova::ScriviFile(file, prova::Mete(mete) + prova::Tappe("000001|0001|ROMA\n") + prova::Guida(voci));
    EXPECT_TRUE(programma.Uscita({u"importa"_s, file}).contains(u"20.000 mète/itinerari;"_s));
}

}  // namespace
}  // namespace cronovia
