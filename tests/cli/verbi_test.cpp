// What each verb does and answers.
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

#include "programma.h"
#include "store/schema.h"

namespace cronovia {
namespace {

using namespace Qt::StringLiterals;
using prova::Programma;

QJsonDocument Json(const Programma& programma, QStringList argomenti) {
    argomenti << u"--formato"_s << u"json"_s;
    QJsonParseError errore;
    const QJsonDocument documento = QJsonDocument::fromJson(programma.Uscita(argomenti).toUtf8(), &errore);
    EXPECT_EQ(errore.error, QJsonParseError::NoError) << errore.errorString().toStdString();
    return documento;
}

// Names and values of the objects are those of the table's fields.
void AttesiCampi(const QJsonArray& oggetti, Tabella tabella) {
    QStringList nomi;
    for (const Campo& campo : Definizione(tabella).campi) nomi += campo.nome;
    nomi.sort();
    ASSERT_FALSE(oggetti.isEmpty());
    for (const QJsonValue& oggetto : oggetti) {
        ASSERT_EQ(oggetto.toObject().keys(), nomi);
        for (const QJsonValue& valore : oggetto.toObject()) ASSERT_TRUE(valore.isString());
    }
}

void AttesiTotaliDellaProvenza(const QJsonObject& totali) {
    EXPECT_EQ(totali[u"km"], (QJsonArray{u"636"_s, u""_s, u"556"_s, u"125"_s, u"1.317"_s}));
    EXPECT_EQ(totali[u"tempo"], (QJsonArray{u"00:06:41"_s, u""_s, u"00:10:07"_s, u"00:03:08"_s, u"01:09:26"_s}));
    EXPECT_EQ(totali[u"traghetti"], u"0"_s);
    EXPECT_EQ(totali.size(), 3);
}

TEST(Verbi, AnEmptyArchiveHasItsAnswers) {
    const Programma programma;
    EXPECT_EQ(programma.Uscita({u"elenca"_s}), u"Nessuna mèta nel database!\n"_s);
    EXPECT_EQ(programma.Uscita({u"elenca"_s, u"--formato"_s, u"json"_s}), u"[\n]\n"_s);
    EXPECT_EQ(programma.Uscita({u"guida"_s}), u"Nessuna annotazione nella guida.\n"_s);
    EXPECT_EQ(programma.Esegui({u"esporta"_s, u"x.iei"_s}).errori,
              u"Non ci sono mète da esportare: niente è stato esportato.\n"_s);
}

TEST(Verbi, ListInThreeFormats) {
    const Programma programma;
    programma.ImportaEsempio(u"provenza"_s);
    programma.ImportaEsempio(u"sicilia"_s);
    EXPECT_EQ(programma.Uscita({u"elenca"_s}),
              u"Codice  Mèta                Nazione  Partenza\n"
              "000002  GIRO DELLA SICILIA  ITALIA   Sab 24/04/2027 08:00\n"
              "000003  PROVENZA            FRANCIA  Sab 26/06/2027 08:00\n"_s);
    const QStringList tsv = programma.Uscita({u"elenca"_s, u"--formato"_s, u"tsv"_s}).split(u'\n');
    ASSERT_EQ(tsv.size(), 4);
    EXPECT_TRUE(tsv[0].startsWith(u"CodiceMeta\tLocalita\tNazione\tDataInizio\tOraInizio\t"_s));
    EXPECT_EQ(tsv[2].split(u'\t').join(u'|'),
              u"000003|PROVENZA|FRANCIA|26062027|0800|95|75|55|40|0830|1230|0130|1930|"
              "0130|2200|15|02|01|07|0900|1830|0130|000|3"_s);
    const QJsonArray json = Json(programma, {u"elenca"_s}).array();
    AttesiCampi(json, Tabella::MeteVandro);
    ASSERT_EQ(json.size(), 2);
    EXPECT_EQ(json[1].toObject()[u"Nazione"], u"FRANCIA"_s);
}

TEST(Verbi, ANewTrip) {
    const Programma programma;
    EXPECT_EQ(programma.Uscita({u"nuova"_s, u"forlì"_s, u"italia"_s, u"--inizio"_s, u"5/6/2027 8:30"_s}),
              u"000001\n"_s);
    EXPECT_EQ(programma.Uscita({u"nuova"_s, u"L'Aquila"_s, u"Italia"_s}), u"000002\n"_s);
    const QJsonArray mete = Json(programma, {u"elenca"_s}).array();
    EXPECT_EQ(mete[0].toObject()[u"Localita"], u"FORLÌ"_s);
    EXPECT_EQ(mete[0].toObject()[u"DataInizio"], u"05062027"_s);
    EXPECT_EQ(mete[0].toObject()[u"OraInizio"], u"0830"_s);
    EXPECT_EQ(mete[1].toObject()[u"OraInizio"].toString().right(2).toInt() % 15, 0);
    EXPECT_EQ(programma.Uscita({u"calcola"_s, u"2"_s}).split(u'\n').at(2), u"L'itinerario non ha ancora tappe."_s);
}

TEST(Verbi, ExportedTripsComeBackInAnotherFolder) {
    const Programma programma;
    for (const auto& nome : {u"capo-nord"_s, u"sicilia"_s, u"provenza"_s}) programma.ImportaEsempio(nome);
    const QString file = programma.Cartella().Percorso() + u"/più viaggi.iei"_s;
    const QString esito = u"Le mète esportate si trovano sul file %1\n"_s.arg(file);
    EXPECT_EQ(programma.Uscita({u"esporta"_s, file}), esito);

    const Programma tutto;
    EXPECT_TRUE(tutto.Uscita({u"importa"_s, file}).contains(u"\n3 mète/itinerari;\n236 tratti stradali;\n"_s));
    for (const QStringList& argomenti : {QStringList{u"elenca"_s}, {u"guida"_s}, {u"calcola"_s, u"1"_s}}) {
        const QStringList tsv = argomenti + QStringList{u"--formato"_s, u"tsv"_s};
        EXPECT_EQ(tutto.Uscita(tsv), programma.Uscita(tsv)) << argomenti.first().toStdString();
    }
    const Programma scelte;
    EXPECT_TRUE(scelte.Uscita({u"importa"_s, file, u"3"_s, u"000002"_s}).contains(u"\n2 mète/itinerari;\n88 tratti"_s));
    EXPECT_EQ(programma.Uscita({u"esporta"_s, file, u"2"_s, u"--sovrascrivi"_s}), esito);
    EXPECT_EQ(Programma().Uscita({u"importa"_s, file}).split(u'\n').value(2), u"1 mète/itinerari;"_s);
}

TEST(Verbi, ItineraryAsJson) {
    const Programma programma;
    programma.ImportaEsempio(u"provenza"_s);
    const QJsonObject json = Json(programma, {u"itinerario"_s, u"3"_s}).object();
    EXPECT_EQ(json.keys(), (QStringList{u"giorni_minimi"_s, u"righe"_s, u"tappe"_s, u"totali"_s}));
    EXPECT_EQ(json[u"righe"][13], (QJsonArray{u"14"_s, u"AVIGNON"_s, u"D901"_s, u"24"_s, u"P"_s, u"543"_s, u"00:26"_s,
                                              u"*01:00:00"_s, u"00:05:45"_s, u""_s, u""_s, u""_s, u""_s, u""_s}));
    EXPECT_EQ(json[u"righe"].toArray().size(), 28);
    EXPECT_EQ(json[u"giorni_minimi"], 2);
    AttesiTotaliDellaProvenza(json[u"totali"].toObject());
    AttesiCampi(json[u"tappe"].toArray(), Tabella::Itinerari);
    EXPECT_EQ(json[u"tappe"][13][u"FineGiorno"], u"1"_s);
}

TEST(Verbi, ARouteBecomesTheItineraryOfAnEmptyTrip) {
    const Programma programma;
    EXPECT_EQ(programma.Uscita({u"nuova"_s, u"Sicilia"_s, u"Italia"_s}), u"000001\n"_s);
    EXPECT_EQ(programma.Uscita({u"nuova"_s, u"Baviera"_s, u"Germania"_s}), u"000002\n"_s);
    const QString cartella = u"" CRONOVIA_EXAMPLES "/percorsi/"_s;
    const QString alpi = cartella + u"bologna-monaco.txt"_s;
    EXPECT_EQ(programma.Uscita({u"percorso"_s, u"2"_s, alpi}),
              u"Tappe riconosciute: 11, da BOLOGNA a MÜNCHEN.\nChilometri: 567; traghetti: 0.\n"_s);
    const QJsonArray righe = Json(programma, {u"itinerario"_s, u"000002"_s}).object()[u"righe"_s].toArray();
    ASSERT_EQ(righe.size(), 11);
    EXPECT_EQ(righe[1], (QJsonArray{u"2"_s, u"MODENA"_s, u"A14 A1"_s, u"44"_s, u"A"_s, u"44"_s, u"00:35"_s, u""_s,
                                    u""_s, u""_s, u""_s, u""_s, u""_s, u""_s}));
    const QByteArray prima = programma.ByteArchivio();
    struct Caso {
        QStringList argomenti;
        QString messaggio;
    };
    const QString estraneo = Programma::FileEsempio(u"sicilia"_s);
    for (const Caso& caso : std::vector<Caso>{
             {{u"2"_s, alpi},
              u"La mèta con il codice 000002 ha già delle tappe: un percorso si importa solo con itinerario vuoto."_s},
             {{u"3"_s, alpi}, u"Non esiste nessuna mèta con il codice 000003."_s},
             {{u"1"_s, estraneo},
              u"Il file %1 non è un percorso che Cronovia riconosca: manca l'intestazione delle colonne."_s.arg(
                  estraneo)},
             {{u"1"_s, cartella}, u"%1 è una cartella, non un file."_s.arg(cartella)},
         }) {
        const prova::Risposta risposta = programma.Esegui(QStringList{u"percorso"_s} + caso.argomenti);
        EXPECT_EQ(risposta.codice, 1);
        EXPECT_EQ(risposta.uscita + risposta.errori, caso.messaggio + u'\n');
        EXPECT_TRUE(programma.ByteArchivio() == prima);
    }
}

TEST(Verbi, ScheduleWithOptionsForOneRun) {
    const Programma programma;
    programma.ImportaEsempio(u"provenza"_s);
    const QByteArray prima = programma.ByteArchivio();
    struct Caso {
        QStringList opzioni;
        QString fine;
        int tentativi;
        QString messaggio;
    };
    const std::vector<Caso> casi = {
        {{}, u"03 07 2027 17 45 Sab 8"_s, 1, {}},
        {{u"--giorni=10"_s}, u"05 07 2027 17 35 Lun 10"_s, 2, u"Elaborazione conclusa in 2 tentativi!"_s},
        {{u"--giorni"_s, u"8"_s},
         u"02 07 2027 10 48 Ven 7"_s,
         11,
         u"Elaborazione impossibile! (tentativi effettuati n. 11)"_s},
        {{u"--soste"_s, u"5"_s}, u"28 06 2027 08 33 Lun 3"_s, 1, {}},
    };
    for (const Caso& caso : casi) {
        SCOPED_TRACE(caso.opzioni.join(u' ').toStdString());
        const QJsonObject json = Json(programma, QStringList{u"calcola"_s, u"3"_s} + caso.opzioni).object();
        EXPECT_EQ(json.keys(), (QStringList{u"fine"_s, u"messaggio"_s, u"righe"_s, u"tentativi"_s, u"totali"_s}));
        EXPECT_EQ(json[u"fine"].toVariant().toStringList().join(u' '), caso.fine);
        EXPECT_EQ(json[u"tentativi"], caso.tentativi);
        EXPECT_EQ(json[u"messaggio"], caso.messaggio);
        for (const QJsonValue& riga : json[u"righe"].toArray()) ASSERT_EQ(riga.toArray().size(), 14);
        AttesiTotaliDellaProvenza(json[u"totali"].toObject());
        ASSERT_TRUE(programma.ByteArchivio() == prima);
    }
    EXPECT_TRUE(programma.Uscita({u"calcola"_s, u"3"_s, u"--giorni=10"_s})
                    .endsWith(u"\nElaborazione conclusa in 2 tentativi!\n"_s));
}

TEST(Verbi, GuideByPattern) {
    const Programma programma;
    programma.ImportaEsempio(u"sicilia"_s);
    for (const auto& modello : {u"SANT?AGATA*"_s, u"sant'agata di militello"_s}) {
        EXPECT_EQ(programma.Uscita({u"guida"_s, modello}),
                  u"Località                 Tipo         Tempo  Descrizione\n"
                  "SANT'AGATA DI MILITELLO  Vedibile     00:45  Castello Gallego\n"
                  "                         Punto Sosta         Sosta sul lungomare\n"_s);
    }
    EXPECT_EQ(programma.Uscita({u"guida"_s, u"sant?agata*"_s, u"--formato"_s, u"tsv"_s}),
              u"Localita\tCodiceGuida\tDescrizione\tTempoSosta\tFlagVisto\n"
              "SANT'AGATA DI MILITELLO\t04\tCastello Gallego\t00:45\t0\n"
              "SANT'AGATA DI MILITELLO\t05\tSosta sul lungomare\t00:00\t0\n"_s);
    const QJsonArray tutta = Json(programma, {u"guida"_s}).array();
    AttesiCampi(tutta, Tabella::GuidaCitta);
    EXPECT_EQ(tutta.size(), 94);
}

TEST(Verbi, TheGuideChangesAndShowsTheLocalitiesOfATrip) {
    const Programma programma;
    const auto guida = [](const QStringList& argomenti) { return QStringList{u"guida"_s} + argomenti; };
    const auto errore = [&](const QStringList& argomenti) {
        const prova::Risposta risposta = programma.Esegui(guida(argomenti));
        EXPECT_EQ(risposta.codice, 1);
        return risposta.errori;
    };
    ASSERT_EQ(programma.Uscita({u"nuova"_s, u"ROMA"_s, u"ITALIA"_s}), u"000001\n"_s);
    EXPECT_EQ(errore({u"--meta"_s, u"1"_s}), u"Impossibile... non esistono tappe memorizzate!\n"_s);
    const QString bar = u"Bar \"da 'Piero'\" 100%"_s;
    EXPECT_EQ(programma.Uscita(guida({u"--aggiungi"_s, u"Sant'Agata*"_s, u"Ristorante"_s, bar})),
              u"Aggiunta alla guida: SANT'AGATA*, %1.\n"_s.arg(bar));
    EXPECT_EQ(errore({u"--aggiungi"_s, u"ROMA"_s, u"Ottimo"_s, u"Foro"_s}), u"Errore! Manca il tempo stimato!!!\n"_s);
    EXPECT_EQ(errore({u"--aggiungi"_s, u"ROMA"_s, u"Bello"_s, u"Foro"_s}), u"Errore! Manca la tipologia!!!\n"_s);
    EXPECT_EQ(errore({u"--aggiungi"_s, u"ROMA"_s, u"Gpl"_s, u" "_s}), u"Errore! Manca la descrizione!!!\n"_s);
    programma.ImportaEsempio(u"sicilia"_s);
    programma.ImportaEsempio(u"provenza"_s);
    EXPECT_EQ(
        programma.Uscita(guida({u"--aggiungi"_s, u"sant'agata di militello"_s, u"Da vedere"_s, u"Torre"_s, u"1:05"_s})),
        u"Aggiunta alla guida: SANT'AGATA DI MILITELLO, Torre.\n"_s);
    EXPECT_EQ(programma.Uscita(guida({u"SANT?AGATA*"_s, u"--formato"_s, u"tsv"_s})),
              u"Localita\tCodiceGuida\tDescrizione\tTempoSosta\tFlagVisto\n"
              "SANT'AGATA DI MILITELLO\t02\tTorre\t01:05\t0\n"
              "SANT'AGATA DI MILITELLO\t04\tCastello Gallego\t00:45\t0\n"
              "SANT'AGATA DI MILITELLO\t05\tSosta sul lungomare\t00:00\t0\n"
              "SANT'AGATA*\t08\t%1\t00:00\t0\n"_s.arg(bar));
    const QJsonArray dellaMeta = Json(programma, guida({u"--meta"_s, u"2"_s})).array();
    EXPECT_EQ(dellaMeta.size(), 95);  // the bar is nowhere on the way
    AttesiCampi(dellaMeta, Tabella::GuidaCitta);
    // The other localities that the name would match as a pattern keep what they have.
    EXPECT_EQ(errore({u"--togli"_s, u"Sant'Agata*"_s, u"Vedibile"_s, u"Castello Gallego"_s}),
              u"La guida non ha l'annotazione «Castello Gallego» (Vedibile) di SANT'AGATA*.\n"_s);
    EXPECT_EQ(programma.Uscita(guida({u"--togli"_s, u"SANT'AGATA*"_s, u"Ristorante"_s, bar})),
              u"Tolta dalla guida: SANT'AGATA*, %1.\n"_s.arg(bar));
    EXPECT_FALSE(programma.Uscita(guida({})).contains(bar));
}

TEST(Verbi, TheLocaleChangesNothing) {
    const Programma programma;
    programma.ImportaEsempio(u"sicilia"_s);
    const QStringList argomenti = {u"calcola"_s, u"2"_s, u"--giorni"_s, u"25"_s};
    const QString inC = programma.Uscita(argomenti);
    EXPECT_TRUE(inC.contains(u"Cefalù"_s) && inC.contains(u"3.463"_s));
    for (const auto& locale : {u"de_DE.UTF-8"_s, u"tr_TR.UTF-8"_s, u"it_IT@euro"_s}) {
        EXPECT_EQ(programma.Esegui(argomenti, locale).uscita, inC) << locale.toStdString();
    }
}

TEST(Verbi, StampaWritesThePdfAndTheTable) {
    const Programma programma;
    programma.ImportaEsempio(u"provenza"_s);
    const QString pdf = programma.Cartella().Percorso() + u"/viaggio.pdf"_s;
    const QString tabella = programma.Cartella().Percorso() + u"/Vandtabl.txt"_s;
    const QString scritta = u"Stampa sul file %1: completata!\n"_s.arg(tabella);
    const QStringList stampa = {u"stampa"_s, u"3"_s, u"--pdf"_s, pdf};
    EXPECT_EQ(programma.Uscita(stampa), u"Stampa sul file %1: completata! Pagine: 3.\n"_s.arg(pdf) + scritta);
    EXPECT_TRUE(prova::LeggiFile(pdf).startsWith("%PDF-1.4"));
    const QByteArray prima = prova::LeggiFile(tabella);
    EXPECT_TRUE(prima.startsWith("PROVENZA\r\n\r\nNum.\t"));
    EXPECT_TRUE(
        programma.Uscita(stampa + QStringList{u"--sovrascrivi"_s, u"--giorni"_s, u"6"_s}).contains(u"tentativi"_s));
    EXPECT_NE(prova::LeggiFile(tabella), prima);

    EXPECT_TRUE(programma.Uscita({u"calcola"_s, u"3"_s, u"--tabella"_s}).endsWith(scritta));
    EXPECT_EQ(prova::LeggiFile(tabella), prima) << "the same rows";
    EXPECT_EQ(programma.Uscita({u"calcola"_s, u"3"_s, u"--tabella"_s, u"--formato"_s, u"tsv"_s}),
              programma.Uscita({u"calcola"_s, u"3"_s, u"--formato"_s, u"tsv"_s}));
}

}  // namespace
}  // namespace cronovia
