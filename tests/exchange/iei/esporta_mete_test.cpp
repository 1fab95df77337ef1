// SPDX-License-Identifier: GPL-3.0-or-later
// The exchange file that is written, byte by byte, and that nothing else is touched.
#include "exchange/iei/esporta_mete.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "exchange/scambio.h"

namespace cronovia {
namespace {

using namespace Qt::StringLiterals;
using prova::Inserisci;
using prova::LeggiFile;
using prova::MessaggioDi;

const QByteArray kCampiMete =
    "CodiceMeta|Localita|Nazione|DataInizio|OraInizio|MediaAutostrada|MediaSuperStrada|MediaPrincipale|MediaLocale|"
    "OraColazione|OraPranzo|DurataPranzo|OraCena|DurataCena|OraNotte|RiposoMinuti|RiposoOre|RiposoGiorno|"
    "RiposoDopoGiorni|InizioVisita|FineVisita|OreTraghetti|GiorniAdeguamento|CalcoloSoste\n";
const QByteArray kCampiTappe =
    "CodiceMeta|Sequenza|Localita|Chilometri|NomeStrada|TipoStrada|TempoSosta|SostaGuidaCitta|FineGiorno\n";
const QByteArray kCampiGuida = "Localita|CodiceGuida|Descrizione|TempoSosta|FlagVisto\n";

QByteArray MetaVuota(const QByteArray& valori) { return valori + QByteArray(21, '|') + "\n"; }

class Export : public prova::ConArchivio {
  protected:
    EsitoExport Esporta(const std::vector<QString>& codici = {}, bool sovrascrivi = false) {
        return EsportaMete({archive_, file_, codici, sovrascrivi}, progress_);
    }
    QString Rifiuto(const std::vector<QString>& codici = {}, bool sovrascrivi = false) {
        return MessaggioDi([&] { Esporta(codici, sovrascrivi); });
    }
    void TreMete() {
        Inserisci(archive_, Table::MeteVandro, {u"000002"_s, u"Zara"_s, u"HR"_s});
        Inserisci(archive_, Table::MeteVandro, {u"000001"_s, u"Évora"_s, u"P"_s});
        Inserisci(archive_, Table::MeteVandro, {u"000005"_s, u"Lugo"_s, u"E"_s});
        Inserisci(archive_, Table::Itinerari, {u"000005"_s, u"0002"_s, u"Ourense"_s});
        Inserisci(archive_, Table::Itinerari, {u"000001"_s, u"0001"_s, u"Elvas"_s});
        Inserisci(archive_, Table::Itinerari, {u"000005"_s, u"0001"_s, u"Nizza"_s, u"210"_s});
    }

    QString file_ = cartella_.Path() + u"/viaggi di giugno.iei"_s;
};

TEST_F(Export, WritesAllTripsByNameAndStagesAsTheyAreStored) {
    TreMete();
    const EsitoExport esito = Esporta();
    EXPECT_EQ(LeggiFile(file_),
              prova::Sezione('\xFF', kCampiMete + MetaVuota("000001|\xC9vora|P") + MetaVuota("000005|Lugo|E") +
                                         MetaVuota("000002|Zara|HR")) +
                  prova::Sezione('\xFE', kCampiTappe + "000001|0001|Elvas||||||\n" + "000005|0002|Ourense||||||\n" +
                                             "000005|0001|Nizza|210|||||\n"));
    EXPECT_EQ(esito.mete, 3);
    EXPECT_EQ(esito.tappe, 3);
    EXPECT_EQ(TestoEsito(esito), u"Le mète esportate si trovano sul file "_s + file_);
}

TEST_F(Export, WritesTheNamedTripsInTheirOrderAndTheWholeGuide) {
    TreMete();
    Inserisci(archive_, Table::GuidaCitta, {u"Altrove"_s, u"01"_s, u"  Museo  "_s, u"01:30"_s, u"0"_s});
    EXPECT_EQ(Esporta({u"000002"_s, u"000001"_s, u"000002"_s}).voci, 1);
    EXPECT_EQ(LeggiFile(file_),
              prova::Sezione('\xFF', kCampiMete + MetaVuota("000002|Zara|HR") + MetaVuota("000001|\xC9vora|P")) +
                  prova::Sezione('\xFE', kCampiTappe + "000001|0001|Elvas||||||\n") +
                  prova::Sezione('\xFD', kCampiGuida + "Altrove|01|Museo|01:30|0\n"));
}

TEST_F(Export, SendsWhatTheFileCannotHoldAsAnotherLetter) {
    Inserisci(archive_, Table::MeteVandro, {u"000001"_s, u"Čakovec ÿ þ ý “bar”"_s, u"Ł\"i\n–\u4E2D"_s});
    const EsitoExport esito = Esporta();
    EXPECT_THAT(LeggiFile(file_).toStdString(), ::testing::HasSubstr("\xFF"
                                                                     "Cakovec y t y \x93"
                                                                     "bar\x94\xFF"
                                                                     "L'i \x96?\xFF"));
    EXPECT_EQ(esito.caratteriSostituiti, 8);
    EXPECT_EQ(TestoEsito(esito), u"Le mète esportate si trovano sul file "_s + file_ +
                                     u"\r\nCaratteri che il file non può contenere, sostituiti con un altro: 8"_s);
}

TEST_F(Export, IntoAnEmptyFolderAndBackGivesTheSameRows) {
    TreMete();
    Inserisci(archive_, Table::Itinerari,
              {u"000005"_s, u"0001"_s, u"L'Hospitalet, [B] #2; ok!"_s, u"999"_s, u"A7\tE15"_s, u"A"_s, u"01:02:03"_s});
    Inserisci(archive_, Table::GuidaCitta, {u"Elvas"_s, u"05"_s, u"Praça – 10 € a notte, «sì»"_s, u"00:00"_s, u"1"_s});
    Esporta({u"000002"_s, u"000001"_s, u"000005"_s});

    const prova::CartellaDiProva altra;
    Archive archive = Archive::Open(altra.Path());
    ImportaMete({archive, file_, {}}, progress_);
    QStringList partite = prova::Tutto(archive_);
    QStringList arrivate = prova::Tutto(archive);
    partite.sort();  // stages travel trip by trip
    arrivate.sort();
    EXPECT_EQ(arrivate, partite);
    EXPECT_EQ(ImportaMete({archive_, file_, {}}, progress_).meteScartate, 3);
}

TEST_F(Export, CarriesTheHoursThatOthersSetBehindTheOtherColumns) {
    TreMete();
    const QStringList prima = prova::Tutto(archive_);
    Esporta({u"000001"_s});
    const QByteArray senza = LeggiFile(file_);
    const QByteArray ore =
        "2200|28062027|00:08:30|0100|||1500||1000|1300|Chiedere il ponte 7|0586 1|https://a.it|X9|180,50||";
    const QByteArray tappe = kCampiTappe.chopped(1) +
                             "|TraghettoOra|TraghettoData|Navigazione|Imbarco|NonPrimaOra|NonPrimaData|NonDopoOra|"
                             "NonDopoData|VisiteDa|VisiteA|Nota|Telefono|Link|Prenotazione|PrezzoTraghetto|PrezzoNotte|"
                             "PrezzoIngresso\n";
    const QByteArray mete =
        kCampiMete.chopped(1) + "|RientroData|RientroOra|KmLitro|PrezzoCarburante|PedaggioKm|PrezzoNotti\n";
    const auto file = [&](const QByteArray& meta, const QByteArray& olbia) {
        return prova::Sezione('\xFF', mete + "000007|Sardegna|I" + QByteArray(22, '|') + meta + "\n") +
               prova::Sezione('\xFE', tappe + "000007|0001|Livorno||||||" + QByteArray(17, '|') + "\n" +
                                          "000007|0002|Olbia||||||" + olbia + "\n");
    };
    const QByteArray buono = file("04072027|2000|9,5|1,859||25,00", "|" + ore);
    prova::ScriviFile(file_, buono);
    EXPECT_FALSE(TestoEsito(prova::Importa(archive_, buono)).contains(u"orari fissati"_s));
    EXPECT_EQ(CaricaMeta(archive_, u"000007"_s)->scadenza, Scadenza::Leggi(u"04/07/2027", u"20:00"));
    EXPECT_EQ(CaricaMeta(archive_, u"000007"_s)->prezzi, (PrezziViaggio{950, 1859, {}, 25'00}));
    Esporta({u"000007"_s}, true);
    EXPECT_EQ(LeggiFile(file_).toStdString(), buono.toStdString()) << "the same file again";
    Esporta({u"000001"_s}, true);
    EXPECT_EQ(LeggiFile(file_), senza) << "a trip without them";
    CancellaMeta(archive_, u"000007"_s, progress_);
    EXPECT_EQ(archive_.Count(Table::Vincoli) + archive_.Count(Table::Scadenze), 0);
    EXPECT_EQ(prova::Tutto(archive_), prima);
}

// Files of other hands have part of the columns, further ones, and values that cannot be: those are left out and told
// of.
TEST_F(Export, LeavesOutHoursNotesAndPricesThatCannotBe) {
    struct Caso {
        QByteArray colonne;
        QByteArray valori;
        int rifiutati;
    };
    const auto importa = [&](const QByteArray& mete, const QByteArray& meta, const Caso& caso) {
        const QByteArray tappe = "000007|0001|Livorno||||||" + QByteArray(caso.colonne.count('|') + 1, '|') + "\n";
        const EsitoImport esito = prova::Importa(
            archive_, prova::Sezione('\xFF', kCampiMete.chopped(1) + mete + "\n000007|Sardegna|I" +
                                                 QByteArray(21, '|') + meta + "\n") +
                          prova::Sezione('\xFE', kCampiTappe.chopped(1) + '|' + caso.colonne + "\n" + tappe +
                                                     "000007|0002|Olbia||||||" + '|' + caso.valori + "\n"));
        EXPECT_EQ(esito.tappeInserite, 2) << caso.valori.toStdString();
        EXPECT_EQ(esito.ritocchi.orariRifiutati, caso.rifiutati) << caso.valori.toStdString();
        EXPECT_EQ(TestoEsito(esito).contains(u"orari fissati, prezzi o note non validi, non inseriti"_s),
                  caso.rifiutati > 0);
        EXPECT_EQ(archive_.Count(Table::Vincoli) + archive_.Count(Table::Scadenze), caso.rifiutati > 0 ? 0 : 1)
            << caso.valori.toStdString();
        for (const Table tabella : {Table::MeteVandro, Table::Itinerari, Table::Vincoli, Table::Scadenze}) {
            archive_.DeleteMatching(tabella, {}, progress_);
        }
    };
    const std::vector<Caso> casi = {{"Meteo|TraghettoOra|Navigazione", "sole|2200|00:08:30", 0},
                                    {"TraghettoOra|Navigazione", "99:99|00:08:30", 1},
                                    {"TraghettoOra|Navigazione", "2200|09:00:00", 0},
                                    {"TraghettoOra|Navigazione", "2200|10:00:00", 1},
                                    {"TraghettoOra|Navigazione|Imbarco", "2200|00:08:30|2359", 0},
                                    {"TraghettoOra|Navigazione|Imbarco", "2200|00:08:30|2400", 1},
                                    {"TraghettoData", "28062027", 1},
                                    {"NonPrimaOra|NonDopoOra|PrezzoTraghetto", "1600|1500|-3", 2},
                                    {"VisiteDa", "0900", 1},
                                    {"Nota", QByteArray(500, 'n'), 0},
                                    {"Nota", QByteArray(501, 'n'), 1},
                                    {"PrezzoNotte", "-1", 1},
                                    {"PrezzoNotte", "NaN", 1},
                                    {"PrezzoNotte", "1e3", 1},
                                    {"PrezzoNotte", "100000", 1},
                                    {"PrezzoNotte", "1.234,5", 0}};
    for (const Caso& caso : casi) importa("", "", caso);
    importa("|RientroData|RientroOra|KmLitro", "|31022027|2000|0", {"Nota", "", 2});
    importa("|RientroOra|Colore", "|2000|blu", {"Nota", "", 1});
    importa("|RientroData|RientroOra|Colore", "|28062027|2000|blu", {"Nota", "", 0});
}

TEST(NomeFileExport, IsThatOfTheFirstTripAsEverySystemTakesIt) {
    for (const auto& [localita, nome] :
         std::vector<std::pair<QStringList, QString>>{{{u" CAPO NORD "_s}, u"CAPO NORD.iei"_s},
                                                      {{u"A/B\\C:D"_s, u"X"_s, u"Y"_s}, u"A-B-C-D e altre 2.iei"_s},
                                                      {{u"..\t?"_s}, u"--.iei"_s},
                                                      {{}, u"Mete.iei"_s}}) {
        std::vector<MetaInElenco> mete;
        for (const QString& una : localita) mete.push_back({{}, una, {}, {}, false});
        EXPECT_EQ(NomeFileExport(mete), nome);
    }
}

TEST_F(Export, RefusesBeforeAnythingIsWritten) {
    EXPECT_EQ(Rifiuto(), u"Non ci sono mète da esportare: niente è stato esportato."_s);
    TreMete();
    EXPECT_EQ(Rifiuto({u"000001"_s, u"000009"_s}),
              u"Non c'è nessuna mèta con il codice 000009: niente è stato esportato."_s);
    EXPECT_EQ(cartella_.Contenuto(), QStringList{u"VandroCronovia.mdb"_s});

    prova::ScriviFile(file_, "prezioso");
    EXPECT_EQ(Rifiuto(), u"Il file %1 esiste già: non è stato ricoperto."_s.arg(file_));
    EXPECT_EQ(LeggiFile(file_), "prezioso");
    EXPECT_EQ(Esporta({}, true).mete, 3);
    EXPECT_TRUE(LeggiFile(file_).startsWith("CodiceMeta\xFF"));

    file_ = cartella_.Archivio();
    EXPECT_EQ(Rifiuto({}, true), u"Il file %1 è un archivio: non è stato ricoperto."_s.arg(file_));
    file_ = cartella_.Path();
    EXPECT_EQ(Rifiuto({}, true), u"%1 è una cartella, non un file."_s.arg(file_));
    file_ = cartella_.Path() + u"/manca/a.iei"_s;
    EXPECT_EQ(Rifiuto(), u"Il file %1 non si può scrivere: controlla la cartella e i permessi."_s.arg(file_));
}

TEST_F(Export, AStopOrAFullDiskLeavesTheOldFileInPlace) {
    TreMete();
    prova::ScriviFile(file_, "prezioso");
    QString messaggio;
    prova::Fermata fermata;
    EXPECT_EQ(TestoEsito(EsportaMete({archive_, file_, {}, true}, fermata)),
              u"Esportazione interrotta: il file non è stato scritto."_s);
    prova::ConDiscoPieno(100, [&] { messaggio = Rifiuto({}, true); });
    EXPECT_EQ(messaggio, u"Il file %1 non è stato scritto: il disco è pieno o non si può scrivere."_s.arg(file_));
    EXPECT_EQ(LeggiFile(file_), "prezioso");
    EXPECT_EQ(cartella_.Contenuto().size(), 2);
}

}  // namespace
}  // namespace cronovia
