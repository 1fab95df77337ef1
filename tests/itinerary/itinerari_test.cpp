// SPDX-License-Identifier: GPL-3.0-or-later
#include "itinerary/itinerari.h"

#include <gtest/gtest.h>

#include <array>
#include <limits>

#include "righe.h"
#include "support/archivio.h"

namespace cronovia {
namespace {

using namespace Qt::StringLiterals;

using prova::Righe;
using prova::Testo;

class ItinerariTest : public prova::ConArchivio {
  protected:
    void Aggiungi(const QString& localita, const QString& tempo) {
        prova::NellaGuida(archive_, localita, u"01"_s, u"Duomo"_s, tempo);
    }
    EsitoMemorizzazione Memorizza(const RigheItinerario& tappe) {
        return MemorizzaTappeItinerario(archive_, u"000001"_s, tappe, {}, progress_);
    }
    std::vector<Tappa> Carica(const QString& codice = u"000001"_s) {
        LettoreGuida guida(archive_);
        return CaricaTappeItinerario(archive_, codice, {}, guida);
    }
    QStringList Record() {
        QStringList righe;
        for (const auto& record : RecordDellItinerario(archive_, u"000001"_s)) {
            righe += QStringList(record.values.begin() + 1, record.values.end()).join(u'|');
        }
        return righe;
    }
};

TEST_F(ItinerariTest, ALongStageTakesSeveralRowsAndTheGuideTimesStandAtTheFirst) {
    Aggiungi(u"SANT'ANNA"_s, u"08:00"_s);
    Aggiungi(u"Sant'Anna"_s, u"02:30"_s);
    Aggiungi(u"ROMA"_s, u"00:20"_s);
    MemorizzaTappeItinerario(archive_, u"000002"_s, Righe(u"ALTROVE"_s), {}, progress_);
    const RigheItinerario righe = Righe(u"roma SANT?ANNA/S1/2500/* ALTA//999 - BODØ//1000 SANT'ANNA ROMA/TRAGH/0"_s);
    EXPECT_EQ(Memorizza(righe).record, 9);
    EXPECT_EQ(Record(),
              (QStringList{u"0001|roma|0| | | |00:00:20|0"_s, u"0002|SANT?ANNA|999|S1 |A|00:01:30|01:01:30|1"_s,
                           u"0003|SANT?ANNA|999|S1 |A|00:01:30| |1"_s, u"0004|SANT?ANNA|502|S1 |A|00:01:30| |1"_s,
                           u"0005|ALTA|999| |A| | |0"_s, u"0006|BODØ|999| |A| | |0"_s, u"0007|BODØ|1| |A| | |0"_s,
                           u"0008|SANT'ANNA|0| | | | |0"_s, u"0009|ROMA|0|TRAGH | | | |0"_s}));
    EXPECT_EQ(Carica().at(1).guida, (Durata{1, 1, 30}));  // a visiting day has nine hours
    Memorizza(Righe(u"A"_s));
    EXPECT_EQ(Record(), QStringList{u"0001|A|0| | | | |0"_s});
    EXPECT_EQ(Carica(u"000002"_s).size(), 1U);
}

TEST_F(ItinerariTest, WhatCannotBeSavedLeavesTheOldItinerary) {
    Memorizza(Righe(u"ROMA OSTIA/A1/30"_s));
    RigheItinerario tappe(9999, Righe(u"ALBA"_s).front());
    tappe.push_back(Tappa());
    tappe.back().km = 5000;  // no stage, takes no row
    for (const int km : {1000, std::numeric_limits<int>::max()}) {
        tappe[0].km = km;
        const QString messaggio = prova::MessaggioDi([&] { Memorizza(tappe); });
        EXPECT_TRUE(messaggio.contains(u"9.999"_s)) << messaggio.toStdString();
    }
    class Interrompe : public Progress {
        void Advance(double count, double total) override {
            if (total == 3 && count == 3) throw Failure(u"basta"_s);
        }
    } interrompe;
    const RigheItinerario nuove = Righe(u"A B C"_s);
    EXPECT_EQ(prova::MessaggioDi([&] { MemorizzaTappeItinerario(archive_, u"000001"_s, nuove, {}, interrompe); }),
              u"basta"_s);
    EXPECT_EQ(Testo(Carica()), u"ROMA OSTIA/A1/30"_s);
    tappe[0].km = 999;
    EXPECT_EQ(Memorizza(tappe).record, 9999);
    EXPECT_EQ(Memorizza({Righe(QString(29, u'A')).front(), Righe(QString(30, u'B')).front()}).nomiAccorciati, 1);
    EXPECT_EQ(Testo(Carica()), QString(29, u'A') + u' ' + QString(29, u'B'));
}

TEST_F(ItinerariTest, StoredRowsOfOtherHandsAreRead) {
    for (const auto& [sequenza, localita, km, strada, sosta] :
         {std::array{u"0002"_s, u"Alba "_s, u"x"_s, u" S21 "_s, u"1:30"_s},
          {u"0001"_s, u"Bra"_s},
          {u"0003"_s, u" "_s, u"77"_s}}) {
        const std::array<QString, 9> valori = {u"000001"_s, sequenza, localita, km, strada, u"a"_s, sosta};
        archive_.Insert(Table::Itinerari, valori);
    }
    const std::vector<Tappa> tappe = Carica();
    ASSERT_EQ(tappe.size(), 2U);
    EXPECT_EQ(tappe[0].localita, u"Bra"_s);
    EXPECT_EQ(tappe[1], (Tappa{u"Alba"_s, u"S21"_s, 0, std::nullopt, {0, 1, 30}, false, {}}));
}

}  // namespace
}  // namespace cronovia
