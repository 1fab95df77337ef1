#include "itinerary/itinerari.h"

#include <gtest/gtest.h>

#include <QStringList>
#include <array>
#include <limits>

#include "support/prova.h"

namespace cronovia {
namespace {

using namespace Qt::StringLiterals;

Tappa Verso(const QString& localita, int km = 0, std::optional<TipoStrada> tipo = std::nullopt) {
    Tappa tappa;
    tappa.localita = localita;
    tappa.km = km;
    tappa.tipo = tipo;
    return tappa;
}

class ItinerariTest : public ::testing::Test {
  protected:
    void Aggiungi(const QString& localita, const QString& tempo) {
        archive_.Insert(Tabella::GuidaCitta, std::array<QString, 5>{localita, u"01"_s, u"Duomo"_s, tempo, u"0"_s});
    }
    EsitoMemorizzazione Memorizza(const std::vector<Tappa>& tappe, const QString& codice = u"000001"_s) {
        return MemorizzaTappeItinerario(archive_, codice, tappe, {}, progresso_);
    }
    std::vector<Tappa> Carica(const QString& codice = u"000001"_s) {
        return CaricaTappeItinerario(archive_, codice, {});
    }
    QStringList Righe(const QString& codice = u"000001"_s) {
        QStringList righe;
        for (const Record& record : RecordDellItinerario(archive_, codice)) {
            righe += QStringList(record.valori.begin() + 1, record.valori.end()).join(u'|');
        }
        return righe;
    }

    prova::CartellaDiProva cartella_;
    Archive archive_ = Archive::Open(cartella_.Percorso());
    Progress progresso_;
};

TEST_F(ItinerariTest, StagesComeBackAsTheyWereSaved) {
    Tappa livorno = Verso(u"LIVORNO"_s, 300, TipoStrada::Autostrada);
    livorno.numStrada = u"A12"_s;
    livorno.sosta = {1, 2, 30};
    livorno.fineGiorno = true;
    Tappa bastia = Verso(u"BASTIA"_s);
    bastia.numStrada = u"TRAGH"_s;
    const std::vector<Tappa> tappe = {Verso(u"Forlì"_s), livorno, bastia, Verso(u"Corte"_s, 70, TipoStrada::Locale)};
    EXPECT_EQ(Memorizza(tappe).record, 4);
    Memorizza({Verso(u"ALTROVE"_s)}, u"000002"_s);
    EXPECT_EQ(Carica(), tappe);
    EXPECT_EQ(Righe(), (QStringList{u"0001|Forlì|0| | | | |0"_s, u"0002|LIVORNO|300|A12 |A|01:02:30| |1"_s,
                                    u"0003|BASTIA|0|TRAGH | | | |0"_s, u"0004|Corte|70| |L| | |0"_s}));
    Memorizza({Verso(u"ROMA"_s)});
    EXPECT_EQ(Righe(), QStringList{u"0001|ROMA|0| | | | |0"_s});
    EXPECT_EQ(Carica(u"000002"_s), std::vector<Tappa>{Verso(u"ALTROVE"_s)});
}

TEST_F(ItinerariTest, ALongStageTakesSeveralRows) {
    Aggiungi(u"CAPO NORD"_s, u"02:00"_s);
    Tappa tappa = Verso(u"CAPO NORD"_s, 2500, TipoStrada::Principale);
    tappa.fineGiorno = true;
    EXPECT_EQ(Memorizza({tappa, Verso(u"ALTA"_s, 999), Verso(u""_s, 50), Verso(u"BODØ"_s, 1000)}).record, 6);
    EXPECT_EQ(Righe(), (QStringList{u"0001|CAPO NORD|999| |P| |00:02:00|1"_s, u"0002|CAPO NORD|999| |P| | |1"_s,
                                    u"0003|CAPO NORD|502| |P| | |1"_s, u"0004|ALTA|999| | | | |0"_s,
                                    u"0005|BODØ|999| | | | |0"_s, u"0006|BODØ|1| | | | |0"_s}));
}

TEST_F(ItinerariTest, GuideTimesStandAtTheFirstStageOfTheirLocality) {
    Aggiungi(u"SANT'ANNA"_s, u"08:00"_s);
    Aggiungi(u"Sant'Anna"_s, u"02:30"_s);
    Aggiungi(u"ROMA"_s, u"00:20"_s);
    Memorizza({Verso(u"SANT?ANNA"_s), Verso(u"roma"_s), Verso(u"SANT'ANNA"_s), Verso(u"ROMA"_s)});
    QStringList tempi;
    for (const QString& riga : Righe()) tempi += riga.section(u'|', 6, 6);
    EXPECT_EQ(tempi, (QStringList{u"01:01:30"_s, u"00:00:20"_s, u" "_s, u" "_s}));  // a visiting day has nine hours
    EXPECT_EQ(Carica().at(0).guida, (Durata{1, 1, 30}));
}

TEST_F(ItinerariTest, MoreRowsThanTheSequenceCountsAreRefused) {
    Memorizza({Verso(u"ROMA"_s)});
    std::vector<Tappa> tappe(9999, Verso(u"ALBA"_s, 1));
    tappe.push_back(Verso(u" "_s, 5000));  // no stage, takes no row
    for (const int km : {1000, std::numeric_limits<int>::max()}) {
        tappe[0].km = km;
        const QString messaggio = prova::MessaggioDi([&] { Memorizza(tappe); });
        EXPECT_TRUE(messaggio.contains(u"9.999"_s)) << messaggio.toStdString();
        EXPECT_EQ(Righe(), QStringList{u"0001|ROMA|0| | | | |0"_s});
    }
    tappe[0].km = 999;
    EXPECT_EQ(Memorizza(tappe).record, 9999);
    EXPECT_EQ(Carica().size(), 9999U);
}

TEST_F(ItinerariTest, LongNamesAreCutAndCounted) {
    EXPECT_EQ(Memorizza({Verso(QString(29, u'A')), Verso(QString(30, u'B'))}).nomiAccorciati, 1);
    EXPECT_EQ(Carica(), (std::vector<Tappa>{Verso(QString(29, u'A')), Verso(QString(29, u'B'))}));
}

TEST_F(ItinerariTest, WhatCannotBeSavedLeavesTheOldItinerary) {
    Memorizza({Verso(u"ROMA"_s), Verso(u"OSTIA"_s, 30)});
    class Interrompe : public Progress {
        void Advance(double count, double total) override {
            if (total == 3 && count == 3) throw Failure(u"basta"_s);
        }
    } interrompe;
    const std::vector<Tappa> nuove = {Verso(u"A"_s), Verso(u"B"_s), Verso(u"C"_s)};
    EXPECT_EQ(prova::MessaggioDi([&] { MemorizzaTappeItinerario(archive_, u"000001"_s, nuove, {}, interrompe); }),
              u"basta"_s);
    EXPECT_EQ(Carica(), (std::vector<Tappa>{Verso(u"ROMA"_s), Verso(u"OSTIA"_s, 30)}));
}

TEST_F(ItinerariTest, StoredRowsOfOtherHandsAreRead) {
    const std::array<QString, 9> valori = {u"000001"_s, u"0002"_s, u"Alba "_s, u"x"_s, u" S21 "_s,
                                           u"a"_s,      u"1:30"_s, u""_s,      u""_s};
    archive_.Insert(Tabella::Itinerari, valori);
    archive_.Insert(Tabella::Itinerari, std::array<QString, 9>{u"000001"_s, u"0001"_s, u"Bra"_s});
    archive_.Insert(Tabella::Itinerari, std::array<QString, 9>{u"000001"_s, u"0003"_s, u" "_s, u"77"_s});
    Tappa alba = Verso(u"Alba"_s);
    alba.numStrada = u"S21"_s;
    alba.sosta = {0, 1, 30};
    EXPECT_EQ(Carica(), (std::vector<Tappa>{Verso(u"Bra"_s), alba}));
}

}  // namespace
}  // namespace cronovia
