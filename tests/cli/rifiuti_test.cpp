// What the program refuses: one sentence, exit code 1, nothing changed.
#include <SQLiteCpp/Database.h>

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
    const QString esempio = Programma::FileEsempio(u"provenza"_s);
    const QString senzaCodice = u"Non esiste nessuna mèta con il codice %1."_s;
    const auto nuova = [](const QString& localita, const QString& nazione) {
        return QStringList{u"nuova"_s, localita, nazione};
    };
    struct Caso {
        QStringList argomenti;
        QString messaggio;
    };
    const std::vector<Caso> casi = {
        {{u"calcola"_s, u"99"_s}, senzaCodice.arg(u"000099"_s)},
        {{u"itinerario"_s, u"PROVENZA"_s}, senzaCodice.arg(u"PROVENZA"_s)},
        {{u"calcola"_s, u"00000?"_s}, senzaCodice.arg(u"00000?"_s)},
        {{u"importa"_s, assente}, u"Il file %1 non esiste."_s.arg(assente)},
        {{u"importa"_s, cartella}, cartella + u" è una cartella, non un file."_s},
        {{u"importa"_s, estraneo},
         u"Il file %1 non è un file di scambio: non contiene la sezione delle mète."_s.arg(estraneo)},
        {{u"importa"_s, esempio, u"3"_s, u"77"_s}, u"Nel file non c'è la mèta con il codice 000077."_s},
        {{u"esporta"_s, estraneo}, u"Il file %1 esiste già: non è stato ricoperto."_s.arg(estraneo)},
        {{u"esporta"_s, programma.Cartella().Archivio(), u"--sovrascrivi"_s},
         u"Il file %1 è un archivio: non è stato ricoperto."_s.arg(programma.Cartella().Archivio())},
        {{u"esporta"_s, assente, u"3"_s, u"99"_s},
         u"Non c'è nessuna mèta con il codice 000099: niente è stato esportato."_s},
        {{u"esporta"_s, cartella + u"/manca/x.iei"_s},
         u"Il file %1/manca/x.iei non si può scrivere: controlla la cartella e i permessi."_s.arg(cartella)},
        {nuova(u"provenza"_s, u"FRANCIA"_s), u"Esiste già la mèta PROVENZA con il codice 000003."_s},
        {nuova(u"  "_s, u"FRANCIA"_s), u"Campo Località: obbligatorio!"_s},
        {nuova(u"CORSICA"_s, u" "_s), u"Campo Nazione: obbligatorio!"_s},
        {nuova(u"CORSICA"_s, QString(20, u'Ñ')), u"Il nome della nazione è troppo lungo: al massimo 19 caratteri."_s},
        {nuova(QString(31, u'É'), u"FRANCIA"_s), u"Il nome della località è troppo lungo: al massimo 30 caratteri."_s},
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

TEST(Rifiuti, FilesThatAreNoArchiveAreLeftAlone) {
    const std::vector<std::pair<QByteArray, QString>> casi = {
        {"questo non e' un archivio", u"il file non è un archivio di Cronovia; è rimasto com'era."_s},
        {QByteArray("\x00\x01\x00\x00Standard Jet DB\0", 20) + QByteArray(2028, 'x'),
         u"è un archivio Jet dell'edizione precedente, che Cronovia non può usare; il file è rimasto com'era."_s},
        {QByteArray("SQLite format 3\0", 16) + QByteArray(4080, '\xAA'), u"il file non è un archivio di Cronovia."_s},
    };
    for (const auto& [byte, motivo] : casi) {
        const Programma programma;
        programma.Cartella().Crea();
        prova::ScriviFile(programma.Cartella().Archivio(), byte);
        AttesoRifiuto(programma.Esegui({u"elenca"_s}),
                      u"Errore apertura database %1: %2"_s.arg(programma.Cartella().Archivio(), motivo));
        EXPECT_TRUE(programma.ByteArchivio() == byte);
        EXPECT_EQ(programma.Cartella().Contenuto().size(), 1);
    }
}

TEST(Rifiuti, AnArchiveInUseByAnotherProgram) {
    const Programma programma;
    programma.ImportaEsempio(u"provenza"_s);
    const QByteArray prima = programma.ByteArchivio();
    SQLite::Database altro(programma.Cartella().Archivio().toStdString(), SQLite::OPEN_READWRITE);
    altro.exec("BEGIN EXCLUSIVE");
    const Risposta risposta = programma.Esegui({u"elenca"_s});
    altro.exec("ROLLBACK");
    AttesoRifiuto(risposta,
                  u"Errore apertura database %1: l'archivio è in uso da un altro programma; riprova tra poco."_s.arg(
                      programma.Cartella().Archivio()));
    EXPECT_TRUE(programma.ByteArchivio() == prima);
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
