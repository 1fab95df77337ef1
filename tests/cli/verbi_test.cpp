// What each verb does and answers.
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QTime>

#include "programma.h"
#include "store/schema.h"

namespace cronovia {
namespace {

using namespace Qt::StringLiterals;
using prova::Programma;
using prova::Risposta;

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

void AttesiTesti(const QJsonValue& testi, int quanti) {
    ASSERT_EQ(testi.toArray().size(), quanti);
    for (const QJsonValue& testo : testi.toArray()) ASSERT_TRUE(testo.isString());
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
    EXPECT_EQ(Json(programma, {u"elenca"_s}).array(), QJsonArray());
    EXPECT_EQ(programma.Uscita({u"guida"_s}), u"Nessuna annotazione nella guida.\n"_s);
    EXPECT_EQ(programma.Cartella().Contenuto(), QStringList{u"VandroCronovia.mdb"_s});
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

TEST(Verbi, NewTripsFillTheGapsBetweenCodes) {
    const Programma programma;
    programma.ImportaEsempio(u"capo-nord"_s);
    programma.ImportaEsempio(u"provenza"_s);
    EXPECT_EQ(programma.Uscita({u"nuova"_s, u"forlì"_s, u"italia"_s, u"--inizio"_s, u"5/6/2027 8:30"_s}),
              u"000002\n"_s);
    EXPECT_EQ(programma.Uscita({u"nuova"_s, u"L'Aquila"_s, u"Italia"_s}), u"000004\n"_s);
    const QJsonArray mete = Json(programma, {u"elenca"_s}).array();
    const QJsonObject forli = mete[1].toObject();
    EXPECT_EQ(forli[u"Localita"], u"FORLÌ"_s);
    EXPECT_EQ(forli[u"Nazione"], u"ITALIA"_s);
    EXPECT_EQ(forli[u"DataInizio"], u"05062027"_s);
    EXPECT_EQ(forli[u"OraInizio"], u"0830"_s);
    EXPECT_EQ(forli[u"MediaAutostrada"], u"75"_s);
    const QTime adesso = QTime::fromString(mete[3].toObject()[u"OraInizio"].toString(), u"hhmm"_s);
    EXPECT_TRUE(adesso.isValid());
    EXPECT_EQ(adesso.minute() % 15, 0);
    EXPECT_EQ(programma.Uscita({u"calcola"_s, u"4"_s}).split(u'\n').at(2), u"L'itinerario non ha ancora tappe."_s);
}

TEST(Verbi, ImportTwiceAddsNothing) {
    const Programma programma;
    const QStringList importa = {u"importa"_s, Programma::FileEsempio(u"provenza"_s)};
    EXPECT_EQ(programma.Uscita(importa),
              u"Sono stati inseriti:\n\n1 mète/itinerari;\n28 tratti stradali;\n"
              "56 guide/informazioni località.\n"_s);
    const QString prima = programma.Uscita({u"elenca"_s}) + programma.Uscita({u"guida"_s});
    EXPECT_EQ(programma.Uscita(importa),
              u"Sono stati inseriti:\n\n0 mète/itinerari;\n0 tratti stradali;\n"
              "0 guide/informazioni località.\nSono stati scartati:\n\n1 mète/itinerari;\n"
              "56 guide/informazioni località,\n"
              "perchè già presenti nel database con lo stesso nome.\n"_s);
    EXPECT_EQ(programma.Uscita({u"elenca"_s}) + programma.Uscita({u"guida"_s}), prima);
}

TEST(Verbi, ExportedTripsComeBackInAnotherFolder) {
    const Programma programma;
    for (const auto& nome : {u"capo-nord"_s, u"sicilia"_s, u"provenza"_s}) programma.ImportaEsempio(nome);
    const QString file = programma.Cartella().Percorso() + u"/più viaggi.iei"_s;
    const QString esito = u"Le mète esportate si trovano sul file %1\n"_s.arg(file);
    EXPECT_EQ(programma.Uscita({u"esporta"_s, file}), esito);

    const Programma tutto;
    EXPECT_TRUE(tutto.Uscita({u"importa"_s, file}).contains(u"\n3 mète/itinerari;\n236 tratti stradali;\n"_s));
    for (const QStringList& argomenti :
         {QStringList{u"elenca"_s}, {u"guida"_s}, {u"itinerario"_s, u"2"_s}, {u"calcola"_s, u"1"_s}}) {
        const QStringList tsv = argomenti + QStringList{u"--formato"_s, u"tsv"_s};
        EXPECT_EQ(tutto.Uscita(tsv), programma.Uscita(tsv)) << argomenti.first().toStdString();
    }

    const Programma scelte;
    EXPECT_TRUE(scelte.Uscita({u"importa"_s, file, u"3"_s, u"000002"_s}).contains(u"\n2 mète/itinerari;\n88 tratti"_s));
    const QJsonArray mete = Json(scelte, {u"elenca"_s}).array();
    ASSERT_EQ(mete.size(), 2);
    EXPECT_EQ(mete[0].toObject()[u"Localita"], u"GIRO DELLA SICILIA"_s);

    EXPECT_EQ(programma.Uscita({u"esporta"_s, file, u"2"_s, u"--sovrascrivi"_s}), esito);
    EXPECT_TRUE(Programma().Uscita({u"importa"_s, file}).contains(u"\n1 mète/itinerari;\n60 tratti"_s));
}

TEST(Verbi, Itinerary) {
    const Programma programma;
    programma.ImportaEsempio(u"provenza"_s);
    const QByteArray prima = programma.ByteArchivio();
    const QJsonObject json = Json(programma, {u"itinerario"_s, u"3"_s}).object();
    EXPECT_EQ(json.keys(), (QStringList{u"giorni_minimi"_s, u"righe"_s, u"tappe"_s, u"totali"_s}));
    const QJsonArray righe = json[u"righe"].toArray();
    ASSERT_EQ(righe.size(), 28);
    for (const QJsonValue& riga : righe) AttesiTesti(riga, 14);
    EXPECT_EQ(righe[13], (QJsonArray{u"14"_s, u"AVIGNON"_s, u"D901"_s, u"24"_s, u"P"_s, u"543"_s, u"00:26"_s,
                                     u"*01:00:00"_s, u"00:05:45"_s, u""_s, u""_s, u""_s, u""_s, u""_s}));
    EXPECT_EQ(json[u"giorni_minimi"], 2);
    AttesiTotaliDellaProvenza(json[u"totali"].toObject());
    const QJsonArray tappe = json[u"tappe"].toArray();
    AttesiCampi(tappe, Tabella::Itinerari);
    ASSERT_EQ(tappe.size(), 28);
    EXPECT_EQ(tappe[13].toObject()[u"FineGiorno"], u"1"_s);
    EXPECT_EQ(tappe[13].toObject()[u"Chilometri"], u"24"_s);

    EXPECT_TRUE(programma.ByteArchivio() == prima);
}

TEST(Verbi, ScheduleWithOptionsForOneRun) {
    const Programma programma;
    programma.ImportaEsempio(u"provenza"_s);
    const QByteArray prima = programma.ByteArchivio();
    const QString senza = programma.Uscita({u"calcola"_s, u"3"_s});
    struct Caso {
        QStringList opzioni;
        QJsonArray fine;
        int tentativi;
        QString messaggio;
    };
    const std::vector<Caso> casi = {
        {{}, {u"03"_s, u"07"_s, u"2027"_s, u"17"_s, u"45"_s, u"Sab"_s, u"8"_s}, 1, {}},
        {{u"--giorni"_s, u"0"_s}, {u"03"_s, u"07"_s, u"2027"_s, u"17"_s, u"45"_s, u"Sab"_s, u"8"_s}, 1, {}},
        {{u"--giorni"_s, u"10"_s},
         {u"05"_s, u"07"_s, u"2027"_s, u"17"_s, u"35"_s, u"Lun"_s, u"10"_s},
         2,
         u"Elaborazione conclusa in 2 tentativi!"_s},
        {{u"--giorni"_s, u"8"_s},
         {u"02"_s, u"07"_s, u"2027"_s, u"10"_s, u"48"_s, u"Ven"_s, u"7"_s},
         11,
         u"Elaborazione impossibile! (tentativi effettuati n. 11)"_s},
        {{u"--soste"_s, u"5"_s}, {u"28"_s, u"06"_s, u"2027"_s, u"08"_s, u"33"_s, u"Lun"_s, u"3"_s}, 1, {}},
    };
    for (const Caso& caso : casi) {
        SCOPED_TRACE(caso.opzioni.join(u' ').toStdString());
        const QJsonObject json = Json(programma, QStringList{u"calcola"_s, u"3"_s} + caso.opzioni).object();
        EXPECT_EQ(json.keys(), (QStringList{u"fine"_s, u"messaggio"_s, u"righe"_s, u"tentativi"_s, u"totali"_s}));
        EXPECT_EQ(json[u"fine"].toArray(), caso.fine);
        EXPECT_EQ(json[u"tentativi"], caso.tentativi);
        EXPECT_EQ(json[u"messaggio"], caso.messaggio);
        for (const QJsonValue& riga : json[u"righe"].toArray()) AttesiTesti(riga, 14);
        AttesiTotaliDellaProvenza(json[u"totali"].toObject());
        ASSERT_TRUE(programma.ByteArchivio() == prima);
    }
    const QString dieci = programma.Uscita({u"calcola"_s, u"3"_s, u"--giorni=10"_s});
    EXPECT_TRUE(dieci.endsWith(u"\nElaborazione conclusa in 2 tentativi!\n"_s));
    EXPECT_EQ(programma.Uscita({u"calcola"_s, u"3"_s}), senza);
}

TEST(Verbi, GuideByPattern) {
    const Programma programma;
    programma.ImportaEsempio(u"sicilia"_s);
    const QString trovata =
        u"Località                 Tipo         Tempo  Descrizione\n"
        "SANT'AGATA DI MILITELLO  Vedibile     00:45  Castello Gallego\n"
        "                         Punto Sosta         Sosta sul lungomare\n"_s;
    for (const auto& modello : {u"SANT?AGATA*"_s, u"SANT'AGATA DI MILITELLO"_s, u"sant'agata di militello"_s}) {
        EXPECT_EQ(programma.Uscita({u"guida"_s, modello}), trovata) << modello.toStdString();
    }
    EXPECT_EQ(programma.Uscita({u"guida"_s, u"sant?agata*"_s, u"--formato"_s, u"tsv"_s}),
              u"Localita\tCodiceGuida\tDescrizione\tTempoSosta\tFlagVisto\n"
              "SANT'AGATA DI MILITELLO\t04\tCastello Gallego\t00:45\t0\n"
              "SANT'AGATA DI MILITELLO\t05\tSosta sul lungomare\t00:00\t0\n"_s);
    EXPECT_EQ(programma.Uscita({u"guida"_s, u"SANTAGATA*"_s}), u"Nessuna annotazione nella guida.\n"_s);
    EXPECT_EQ(programma.Uscita({u"guida"_s, u"cefalu"_s}), u"Nessuna annotazione nella guida.\n"_s);
    EXPECT_TRUE(programma.Uscita({u"guida"_s, u"cefalù"_s}).contains(u"CEFALÙ"_s));
    const QJsonArray tutta = Json(programma, {u"guida"_s}).array();
    AttesiCampi(tutta, Tabella::GuidaCitta);
    EXPECT_EQ(tutta.size(), 94);
}

TEST(Verbi, TheLocaleChangesNothing) {
    const Programma programma;
    programma.ImportaEsempio(u"sicilia"_s);
    for (const auto& formato : {u"testo"_s, u"tsv"_s, u"json"_s}) {
        const QStringList argomenti = {u"calcola"_s, u"2"_s, u"--giorni"_s, u"25"_s, u"--formato"_s, formato};
        const QString inC = programma.Uscita(argomenti);
        EXPECT_TRUE(inC.contains(u"Cefalù"_s));
        EXPECT_TRUE(inC.contains(u"3.463"_s));
        for (const auto& locale : {u"de_DE.UTF-8"_s, u"tr_TR.UTF-8"_s, u"it_IT@euro"_s, u"C.UTF-8"_s}) {
            const Risposta altra = programma.Esegui(argomenti, locale);
            EXPECT_EQ(altra.uscita, inC) << locale.toStdString();
            EXPECT_EQ(altra.errori, QString()) << locale.toStdString();
        }
    }
}

}  // namespace
}  // namespace cronovia
