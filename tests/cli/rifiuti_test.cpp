// What the program refuses: one sentence, exit code 1, nothing changed.
#include <QFile>
#include <QTemporaryDir>
#include <utility>

#include "programma.h"

namespace cronovia {
namespace {

using namespace Qt::StringLiterals;
using prova::Programma;
using prova::Risposta;

void AttesoRifiuto(const Risposta& risposta, const QString& messaggio) {
    EXPECT_EQ(risposta.codice, 1);
    EXPECT_EQ(risposta.uscita, QString());
    EXPECT_EQ(risposta.errori, messaggio + u'\n');
}

TEST(Rifiuti, TheArchiveAndTheFilesStayAsTheyWere) {
    const Programma programma;
    programma.ImportaEsempio(u"provenza"_s);
    const QString cartella = programma.Cartella().Percorso();
    const QString estraneo = cartella + u"/già qui.txt"_s;
    const QString assente = cartella + u"/non c'è.iei"_s;
    prova::ScriviFile(estraneo, "Lista della spesa\r\n");
    const QString tabella = cartella + u"/Vandtabl.txt"_s;
    const QString esempio = Programma::FileEsempio(u"provenza"_s);
    const QString archivio = programma.Cartella().Archivio();
    struct Caso {
        QStringList argomenti;
        QString messaggio;
    };
    const std::vector<Caso> casi = {
        {{u"calcola"_s, u"99"_s}, u"Non esiste nessuna mèta con il codice 000099."_s},
        {{u"itinerario"_s, u"PROVENZA"_s}, u"Non esiste nessuna mèta con il codice PROVENZA."_s},
        {{u"importa"_s, assente}, u"Il file %1 non esiste."_s.arg(assente)},
        {{u"importa"_s, estraneo},
         u"Il file %1 non è un file di scambio: non contiene la sezione delle mète."_s.arg(estraneo)},
        {{u"importa"_s, esempio, u"3"_s, u"77"_s}, u"Nel file non c'è la mèta con il codice 000077."_s},
        {{u"esporta"_s, estraneo}, u"Il file %1 esiste già: non è stato ricoperto."_s.arg(estraneo)},
        {{u"esporta"_s, archivio, u"--sovrascrivi"_s},
         u"Il file %1 è un archivio: non è stato ricoperto."_s.arg(archivio)},
        {{u"esporta"_s, assente, u"3"_s, u"99"_s},
         u"Non c'è nessuna mèta con il codice 000099: niente è stato esportato."_s},
        {{u"stampa"_s, u"3"_s, u"--pdf"_s, estraneo}, u"Il file %1 esiste già: non è stato ricoperto."_s.arg(estraneo)},
        {{u"stampa"_s, u"99"_s, u"--pdf"_s, assente}, u"Non esiste nessuna mèta con il codice 000099."_s},
        {{u"stampa"_s, u"3"_s, u"--pdf"_s, assente + u"/x.pdf"_s},
         u"Il file %1/x.pdf non si può scrivere: controlla la cartella e i permessi."_s.arg(assente)},
        {{u"stampa"_s, u"3"_s, u"--pdf"_s, tabella, u"--sovrascrivi"_s},
         u"Il file %1 è la tabella della cronovia: per le pagine scegli un altro nome."_s.arg(tabella)},
        {{u"nuova"_s, u"provenza"_s, u"FRANCIA"_s}, u"Esiste già la mèta PROVENZA con il codice 000003."_s},
        {{u"nuova"_s, u"CORSICA"_s, u" "_s}, u"Campo Nazione: obbligatorio!"_s},
        {{u"nuova"_s, QString(31, u'É'), u"FRANCIA"_s},
         u"Il nome della località è troppo lungo: al massimo 30 caratteri."_s},
    };
    const QByteArray prima = programma.ByteArchivio();
    const QStringList contenuto = programma.Cartella().Contenuto();
    for (const Caso& caso : casi) {
        SCOPED_TRACE(caso.argomenti.join(u' ').toStdString());
        AttesoRifiuto(programma.Esegui(caso.argomenti), caso.messaggio);
        ASSERT_TRUE(programma.ByteArchivio() == prima);
        ASSERT_EQ(programma.Cartella().Contenuto(), contenuto);
    }
    EXPECT_EQ(prova::LeggiFile(estraneo), "Lista della spesa\r\n");
}

TEST(Rifiuti, APrintoutOfWhichAPartFailsLeavesNone) {
    const Programma programma;
    programma.ImportaEsempio(u"provenza"_s);
    const QString tabella = programma.Cartella().Percorso() + u"/Vandtabl.txt"_s;
    ASSERT_TRUE(QDir().mkdir(tabella));
    const QString messaggio = tabella + u" è una cartella, non un file."_s;
    AttesoRifiuto(programma.Esegui({u"calcola"_s, u"3"_s, u"--tabella"_s}), messaggio);
    const QString pdf = programma.Cartella().Percorso() + u"/viaggio.pdf"_s;
    prova::ScriviFile(pdf, "prezioso");
    AttesoRifiuto(programma.Esegui({u"stampa"_s, u"3"_s, u"--pdf"_s, pdf, u"--sovrascrivi"_s}), messaggio);
    EXPECT_EQ(prova::LeggiFile(pdf), "prezioso");
    EXPECT_EQ(programma.Cartella().Contenuto().size(), 3);
}

TEST(Rifiuti, WhatDrawsIsMissedOnlyByWhatDraws) {
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

TEST(Rifiuti, AFileThatIsNoArchiveIsLeftAlone) {
    const Programma programma;
    programma.Cartella().Crea();
    const QByteArray jet = QByteArray("\x00\x01\x00\x00Standard Jet DB\0", 20) + QByteArray(2028, 'x');
    prova::ScriviFile(programma.Cartella().Archivio(), jet);
    AttesoRifiuto(programma.Esegui({u"elenca"_s}),
                  u"Errore apertura database %1: è un archivio Jet dell'edizione precedente, che Cronovia non può "
                  "usare; il file è rimasto com'era."_s.arg(programma.Cartella().Archivio()));
    EXPECT_TRUE(programma.ByteArchivio() == jet);
    EXPECT_EQ(programma.Cartella().Contenuto().size(), 1);
}

TEST(Rifiuti, AResultThatCannotBeWrittenIsNoSuccess) {
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

}  // namespace
}  // namespace cronovia
