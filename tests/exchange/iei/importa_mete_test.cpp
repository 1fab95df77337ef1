// SPDX-License-Identifier: GPL-3.0-or-later
// Importing into archives that hold something already: codes, duplicates, what is cut, what is told.
#include "exchange/iei/importa_mete.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "exchange/scambio.h"

namespace cronovia {
namespace {

using namespace Qt::StringLiterals;
using prova::Guida;
using prova::Importa;
using prova::Inserisci;
using prova::MessaggioDi;
using prova::Mete;
using prova::Righe;
using prova::Tappe;
using ::testing::ElementsAre;

class Import : public prova::ConArchivio {
  protected:
    QStringList LeMete() { return Righe(archive_, Table::MeteVandro); }
    QStringList LeTappe() { return Righe(archive_, Table::Itinerari); }
    QStringList LaGuida() { return Righe(archive_, Table::GuidaCitta); }
};

TEST_F(Import, NewCodesClashNeitherWithStoredNorWithKeptOnes) {
    Inserisci(archive_, Table::MeteVandro, {u"000003"_s, u"Alba"_s});
    Inserisci(archive_, Table::MeteVandro, {u"000007"_s, u"Bari"_s});
    Importa(archive_,
            Mete("000003|Como|I\n000008|Dolo|I\n12|Este|I\n") + Tappe("000003|0001|x\n000008|0001|y\n12|0001|z\n"));
    EXPECT_THAT(LeMete(), ElementsAre(u"000003|Alba| "_s, u"000007|Bari| "_s, u"000009|Como|I"_s, u"000008|Dolo|I"_s,
                                      u"000010|Este|I"_s));
    EXPECT_THAT(LeTappe(), ElementsAre(u"000009|0001|x"_s, u"000008|0001|y"_s, u"000010|0001|z"_s));
}

TEST_F(Import, ATripWithAStoredDestinationStaysOutWithItsStages) {
    Inserisci(archive_, Table::MeteVandro, {u"000001"_s, u"Sant\"Anna"_s});
    const EsitoImport esito = Importa(archive_, Mete("000001|SANT'ANNA|I\n000002|Pisa|I\n000003|pisa|I\n") +
                                                    Tappe("000001|0001|a\n000002|0001|b\n000003|0001|c\n"));
    EXPECT_THAT(LeMete(), ElementsAre(u"000001|Sant\"Anna| "_s, u"000002|Pisa|I"_s));
    EXPECT_THAT(LeTappe(), ElementsAre(u"000002|0001|b"_s));
    EXPECT_EQ(TestoEsito(esito),
              u"Sono stati inseriti:\r\n\r\n1 mète/itinerari;\r\n1 tratti stradali;\r\n"
              "0 guide/informazioni località.\r\n"
              "Sono stati scartati:\r\n\r\n2 mète/itinerari;\r\n0 guide/informazioni località,\r\n"
              "perchè già presenti nel database con lo stesso nome."_s);
}

TEST_F(Import, GuideEntriesNeedAStageAndANewDescription) {
    Inserisci(archive_, Table::Itinerari, {u"000009"_s, u"0001"_s, u"L'Aquila"_s});
    Inserisci(archive_, Table::GuidaCitta, {u"L'Aquila"_s, u"01"_s, u"Fontana delle 99 cannelle"_s});
    Inserisci(archive_, Table::GuidaCitta, {u"L'Aquila"_s, u"05"_s, u""_s});
    Inserisci(archive_, Table::GuidaCitta, {u"L'Aquila"_s, u"07"_s, u"Camping "_s});
    const EsitoImport esito =
        Importa(archive_, Mete("") + Guida("l'aquila|01|FONTANA DELLE 99 CANNELLE\nL'Aquila|05|\nL'Aquila|07|Camping\n"
                                           "L'Aquila|01|Forte spagnolo\nL\xB4"
                                           "Aquila|01|Forte\nNarni|01|Rocca\n"));
    EXPECT_EQ(LaGuida().mid(3), QStringList{u"L'Aquila|01|Forte spagnolo"_s});
    EXPECT_EQ(esito.vociInserite, 1);
    EXPECT_EQ(esito.vociScartate, 3);
}

TEST_F(Import, TwiceAddsNothing) {
    const QByteArray file = Mete("000001|Area #1 [nord]|I\n000002|L'Aquila|I\n000003|" + QByteArray(40, 'x') + "|I\n") +
                            Tappe("000001|0001|Sosta #2\n000002|0001|Bussana Vecchia [IM]\n000002|0002|\n") +
                            Guida("Sosta #2|05|Camping [***] #7\nBussana Vecchia [IM]|01|\n|01|Ovunque\nSosta #2|05|" +
                                  QByteArray(95, 'y') + " zz\n");
    const EsitoImport prima = Importa(archive_, file);
    EXPECT_EQ(prima.meteInserite, 3);
    EXPECT_EQ(prima.vociInserite, 4);
    const QStringList tutto = prova::Tutto(archive_);
    const EsitoImport dopo = Importa(archive_, file);
    EXPECT_EQ(dopo.meteScartate, 3);
    EXPECT_EQ(dopo.vociScartate, 4);
    EXPECT_EQ(prova::Tutto(archive_), tutto);
}

TEST_F(Import, OnlyTheTripsAskedFor) {
    const QByteArray file = Mete("000001|Alba|I\n000002|Bari|I\n000003|Como|I\n") +
                            Tappe("000001|0001|a\n000002|0001|b\n000003|0001|c\n") + Guida("a|01|A\nb|01|B\n");
    EXPECT_EQ(MessaggioDi([&] {
                  Importa(archive_, file, {u"000001"_s, u"000004"_s});
              }),
              u"Nel file non c'è la mèta con il codice 000004."_s);
    EXPECT_THAT(prova::Tutto(archive_), ElementsAre());
    const EsitoImport esito = Importa(archive_, file, {u"000003"_s, u"000001"_s});
    EXPECT_THAT(LeMete(), ElementsAre(u"000001|Alba|I"_s, u"000003|Como|I"_s));
    EXPECT_THAT(LeTappe(), ElementsAre(u"000001|0001|a"_s, u"000003|0001|c"_s));
    EXPECT_THAT(LaGuida(), ElementsAre(u"a|01|A"_s));
    EXPECT_FALSE(TestoEsito(esito).contains("Non tutto"_L1));
}

TEST_F(Import, TellsWhatItDidNotTakeAsItStood) {
    const EsitoImport esito =
        Importa(archive_, "Ciao\r\n" +
                              Mete("000001|Roma \"caput mundi\"|I\n000001|Pisa|I\n000002||I\n|Narni|I\n000003|" +
                                   QByteArray(31, 'x') + "|" + QByteArray(20, 'y') + "|\n") +
                              "000004\xFFN\xFD"
                              "dek\xFF\r\n" +
                              QByteArray(70'000, 'x') + "\r\n" +
                              Tappe("000001|0001|Lucca\n000001|0002\n000004|0001|Praga|di troppo\n"));
    EXPECT_THAT(LeMete(), ElementsAre(u"000001|Roma caput mundi|I"_s,
                                      u"000003|%1|%2"_s.arg(QString(30, u'x'), QString(19, u'y'))));
    EXPECT_EQ(TestoEsito(esito),
              u"Sono stati inseriti:\r\n\r\n2 mète/itinerari;\r\n2 tratti stradali;\r\n"
              "0 guide/informazioni località.\r\n"
              "\r\n"
              "Non tutto è stato preso com'era nel file:\r\n\r\n"
              "località accorciate a 30 caratteri (mète): 1;\r\n"
              "nazioni accorciate a 19 caratteri (mète): 1;\r\n"
              "mète non inserite perché il loro codice è ripetuto nel file (i loro tratti stanno con quelli della "
              "prima): 1;\r\n"
              "mète non inserite perché senza località o senza un codice valido: 2;\r\n"
              "tratti stradali non inseriti perché la loro mèta non è nel file o non è stata inserita: 1;\r\n"
              "righe non lette perché prima della prima sezione: 1;\r\n"
              "righe non lette perché senza intestazione: 1;\r\n"
              "righe non lette perché troppo lunghe: 1;\r\n"
              "righe con meno valori dell'intestazione: 1;\r\n"
              "valori in più, non letti: 1;\r\n"
              "virgolette e caratteri di controllo tolti: 2."_s);
}

TEST_F(Import, ATripThatCannotBeNumberedStaysOutAndItsGuideToo) {
    QByteArray tappe;
    for (int i = 1; i <= 10'000; ++i) {
        tappe += "000001|0001|Lunga\n";
        if (i < 10'000) tappe += "000002|" + QByteArray::number(i).rightJustified(5, '0') + "|Giusta\n";
    }
    const EsitoImport esito = Importa(
        archive_, Mete("000001|Alba|I\n000002|Bari|I\n000003|Como|" + QByteArray(20, 'x') + "\n") +
                      Tappe(tappe + "000003|9999|" + QByteArray(99, 'x') + "\n000003|10000|Lago\n000003|0001|Lago\n") +
                      Guida("Lunga|01|A\nGiusta|01|B\nLago|01|C\n"));
    EXPECT_THAT(LeMete(), ElementsAre(u"000002|Bari|I"_s));
    EXPECT_THAT(LaGuida(), ElementsAre(u"Giusta|01|B"_s));
    EXPECT_EQ(LeTappe().size(), 9'999);
    EXPECT_EQ(LeTappe().back(), u"000002|9999|Giusta"_s);
    EXPECT_EQ(esito.tappeInserite, 9'999);
    EXPECT_TRUE(
        TestoEsito(esito).endsWith(u"com'era nel file:\r\n\r\nmète non inserite perché hanno più di 9.999 tratti "
                                   "stradali o un loro numero non valido: 2."_s));
}

TEST_F(Import, DatesAndStopsThatAreNoneArePutRightAndTold) {
    const EsitoImport esito = Importa(
        archive_, prova::Sezione('\xFF',
                                 "CodiceMeta|Localita|DataInizio\n000001|Alba|31022027\n000002|Bari|00032028\n"
                                 "000003|Como|01132027\n000004|Dolo|domani\n000005|Este|\n000006|Fano|31122099\n") +
                      prova::Sezione('\xFE',
                                     "CodiceMeta|Sequenza|TempoSosta\n000001|0001|-1:00:00\n000001|0002|1:30\n"
                                     "000001|0003|un'ora\n000001|0004|01:02:03\n"));
    QStringList date;
    archive_.ForEach(Table::MeteVandro, [&](const Record& record) { date += record[mete::DataInizio]; });
    EXPECT_THAT(date, ElementsAre(u"28022027"_s, u"01032028"_s, u" "_s, u" "_s, u" "_s, u"31122099"_s));
    QStringList soste;
    archive_.ForEach(Table::Itinerari, [&](const Record& record) { soste += record[itinerari::TempoSosta]; });
    EXPECT_THAT(soste, ElementsAre(u" "_s, u"1:30"_s, u" "_s, u"01:02:03"_s));
    EXPECT_TRUE(
        TestoEsito(esito).endsWith(u"date d'inizio fuori dal loro mese, corrette: 2;\r\n"
                                   "date d'inizio mancanti o illeggibili, lasciate vuote: 3;\r\n"
                                   "soste che non sono una durata, non inserite: 2."_s))
        << TestoEsito(esito).toStdString();
}

// Throws in the middle of the file, at the second reading.
class Interruzione : public Progress {
  public:
    void Title(const QString& titolo) override {
        if (titolo == "Importazione Itinerari"_L1) ++letture_;
    }
    void Advance(double /*count*/, double /*total*/) override {
        if (letture_ == 2 && ++righe_ == 2) throw Failure(u"interrotto"_s);
    }

  private:
    int letture_ = 0;
    int righe_ = 0;
};

TEST_F(Import, InterruptedHalfWayLeavesTheArchiveAsItWas) {
    Inserisci(archive_, Table::MeteVandro, {u"000001"_s, u"Alba"_s});
    const QString file = cartella_.Path() + u"/a.iei"_s;
    prova::ScriviFile(file, Mete("000001|Bari|I\n") + Tappe("000001|0001|a\n000001|0002|b\n000001|0003|c\n"));
    Interruzione interruzione;
    EXPECT_EQ(MessaggioDi([&] { ImportaMete({archive_, file, {}}, interruzione); }), u"interrotto"_s);
    prova::Fermata fermata;
    EXPECT_EQ(TestoEsito(ImportaMete({archive_, file, {}}, fermata)),
              u"Importazione interrotta: niente è stato inserito."_s);
    Progress progress;
    const StatoFile altro{1, {}};
    EXPECT_EQ(MessaggioDi([&] {
                  ImportaMete({archive_, file, {}, altro}, progress);
              }),
              u"Il file %1 è cambiato da quando è stato letto: niente è stato inserito."_s.arg(file));
    EXPECT_THAT(LeMete(), ElementsAre(u"000001|Alba| "_s));
    EXPECT_THAT(LeTappe(), ElementsAre());
}

TEST_F(Import, RefusesWhatIsNoExchangeFile) {
    Progress progress;
    const auto messaggio = [&](const QString& path) {
        return MessaggioDi([&] { ImportaMete({archive_, path, {}}, progress); });
    };
    const QString file = cartella_.Path() + u"/a.iei"_s;
    EXPECT_EQ(messaggio(file), u"Il file %1 non esiste."_s.arg(file));
    for (const QByteArray& contenuto :
         {QByteArray(), QByteArray("Ciao\r\n"), Guida("Roma|01|Colosseo\n"), QByteArray(100'000, '\0')}) {
        prova::ScriviFile(file, contenuto);
        EXPECT_EQ(messaggio(file),
                  u"Il file %1 non è un file di scambio: non contiene la sezione delle mète."_s.arg(file));
    }
    EXPECT_EQ(messaggio(cartella_.Path()), u"%1 è una cartella, non un file."_s.arg(cartella_.Path()));
}

}  // namespace
}  // namespace cronovia
