#include "schedule/simulazione.h"

#include <gtest/gtest.h>

#include "support/prova.h"
#include "viaggio_di_prova.h"

namespace cronovia {
namespace {

using namespace Qt::StringLiterals;
using prova::RigheBrevi;
using prova::Viaggio;

TEST(Simulazione, CutsALegAtMealsAndAtTheNight) {
    EXPECT_EQ(RigheBrevi(Viaggio().Tappa("VERONA", 0).Tappa("SANT'ANNA", 1500)),
              QStringList({u"VERONA"_s, u"Sab 01 12:00 verso: Sant'Anna 400 Pranzo"_s,
                           u"Sab 01 19:00 verso: Sant'Anna 600 Cena"_s, u"Sab 01 22:00 verso: Sant'Anna 200 Notte"_s,
                           u"Dom 02 11:00 SANT'ANNA 300"_s}));
    // 11:57 lies within six minutes of lunch, 11:52 does not: then a piece of the next leg is cut at noon.
    EXPECT_EQ(RigheBrevi(Viaggio().Tappa("A", 395).Tappa("B", 5)),
              QStringList({u"Sab 01 11:57 A 395 Pranzo"_s, u"Sab 01 13:00 B 5"_s}));
    EXPECT_EQ(RigheBrevi(Viaggio().Tappa("A", 387).Tappa("B", 20)),
              QStringList({u"Sab 01 11:52 A 387"_s, u"Sab 01 12:00 verso: B 13 Pranzo"_s, u"Sab 01 13:04 B 7"_s}));
}

TEST(Simulazione, NeverDrivesLessThanAKilometre) {
    Viaggio viaggio;
    viaggio.parametri.mediaKm = {50, 50, 50, 50};
    viaggio.oraInizio = 1199_cent;
    EXPECT_EQ(RigheBrevi(viaggio.Tappa("A", 10)),
              QStringList({u"Sab 01 12:01 verso: A 1 Pranzo"_s, u"Sab 01 13:11 A 9"_s}));
}

TEST(Simulazione, StartsAfterAMealAndNotInTheNight) {
    const auto parte = [](Centesimi inizio) {
        Viaggio viaggio;
        viaggio.oraInizio = inizio;
        return RigheBrevi(viaggio.Tappa("A", 100)).join(u'|');
    };
    EXPECT_EQ(parte(1300_cent), u"Sab 01 14:01 A 100"_s);
    EXPECT_EQ(parte(1950_cent), u"Sab 01 21:01 A 100"_s);
    EXPECT_EQ(parte(2200_cent), u"Dom 02 09:00 A 100"_s);
}

TEST(Simulazione, RestsAfterHoursOfDriving) {
    Viaggio viaggio;
    viaggio.parametri.riposoOre = 2;
    viaggio.parametri.riposoMinuti = 15;
    viaggio.Tappa("A", 300).Tappa("B", 60);
    // The rest counts as driving time: at 11:51 the next two hours are not over yet.
    EXPECT_EQ(RigheBrevi(viaggio), QStringList({u"Sab 01 10:00 verso: A 200 + Riposo 15''"_s, u"Sab 01 11:15 A 100"_s,
                                                u"Sab 01 11:51 B 60 Pranzo"_s}));
    EXPECT_EQ(viaggio.Simula().ora, 1285_cent);
}

TEST(Simulazione, TakesTheNightThatADinnerRanPast) {
    Viaggio viaggio;
    viaggio.oraInizio = 1700_cent;
    viaggio.parametri.oraCena = 1875_cent;
    viaggio.parametri.durataCena = 275_cent;
    viaggio.parametri.oraNotte = 2000_cent;
    // The rules shorten the dinner to an hour and a half and put the night nine minutes after its start. The last row
    // with an hour tells of it.
    EXPECT_EQ(RigheBrevi(viaggio.Tappa("A", 175).Tappa("B", 0).Tappa("C", 100)),
              QStringList({u"Sab 01 18:45 A 175 Cena Notte"_s, u"B"_s, u"Dom 02 09:00 C 100"_s}));
}

TEST(Simulazione, TakesWholeRestDaysAndMarksTheRowBefore) {
    Viaggio viaggio;
    viaggio.parametri.riposoGiorno = 1;
    viaggio.parametri.riposoDopoGiorni = 2;
    Viaggio conSosta = viaggio;
    // 1,200 km a day; two days after the start, one day is left out.
    EXPECT_EQ(RigheBrevi(viaggio.Tappa("A", 2500)).mid(5),
              QStringList({u"Dom 02 * 22:00 verso: A 200 Notte"_s, u"Mar 04 09:00 A 100"_s}));
    // A long stop counts as a rest.
    const QStringList righe = RigheBrevi(conSosta.Tappa("A", 1200, {1, 0, 0}).Tappa("B", 1200).Tappa("C", 100));
    EXPECT_FALSE(righe.join(u'|').contains(u'*')) << righe.join(u'\n').toStdString();
}

TEST(Simulazione, StopsAndFerriesTakeTheirTime) {
    const Viaggio viaggio = Viaggio()
                                .Tappa("A", 100, {0, 1, 30})
                                .Tappa("B", 10, {}, false, "TRAGH A-B")
                                .Tappa("C", 10, {}, true, "TRAGH B-C")
                                .Tappa("D", 10, {0, 1, 0}, true);
    EXPECT_EQ(RigheBrevi(viaggio), QStringList({u"Sab 01 09:00 A 100"_s, u"Sab 01 10:30 a: A 00:01:30 Visita"_s,
                                                u"Sab 01 10:36 B 10"_s, u"Sab 01 13:00 a: B Traghetto/Visita"_s,
                                                u"Sab 01 13:06 C 10"_s, u"Dom 02 08:00 a: C * Traghetto/Visita"_s,
                                                u"Dom 02 08:06 D 10"_s, u"Lun 03 08:00 a: D *00:01:00 Visita/f.g."_s}));
    EXPECT_EQ(viaggio.Simula().totali.traghetti, 2);
}

TEST(Simulazione, ScalesStopsButShowsThemAsPlanned) {
    const Viaggio viaggio = Viaggio().Tappa("A", 100, {0, 2, 0});
    EXPECT_EQ(RigheBrevi(viaggio, 0.5F).last(), u"Sab 01 10:00 a: A 00:02:00 Visita"_s);
    EXPECT_EQ(viaggio.Simula(0.5F).soste.front(), (Durata{0, 1, 0}));
    // A factor of 0 leaves no stop, and the next pass still knows what was planned.
    EXPECT_EQ(RigheBrevi(viaggio, 0).size(), 1);
    EXPECT_EQ(viaggio.Simula(0).soste.front(), (Durata{0, 2, 0}));
}

TEST(Simulazione, ListsTheGuideWhereSomethingHappens) {
    const VociGuida voci = {{1, u"A"_s, u"01"_s, u"Ottimo"_s, u"Duomo"_s, {0, 1, 30}},
                            {2, u"A"_s, u"07"_s, u"Campeggio"_s, u"Lido"_s, {}}};
    EXPECT_EQ(RigheBrevi(Viaggio().Tappa("PARTENZA", 0, {}, false, "", voci).Tappa("A", 50, {}, false, "A1", voci)),
              QStringList({u"PARTENZA"_s, u"Sab 01 08:30 A 50"_s, u"> Duomo 01:30 Ottimo"_s, u"> Lido Campeggio"_s}));
}

TEST(Simulazione, AStageWhoseStopWasDroppedShowsOnlyAsTheLast) {
    Viaggio viaggio;
    viaggio.Tappa("A", 50).Tappa("B", 0, {0, 1, 0}).Tappa("C", 50).Tappa("D", 0, {0, 1, 0});
    for (RigaCalcolo& riga : viaggio.tabella.righe) riga.sosta = {};
    EXPECT_EQ(RigheBrevi(viaggio), QStringList({u"Sab 01 08:30 A 50"_s, u"Sab 01 09:00 C 50"_s, u"D"_s}));
}

TEST(Simulazione, EndsAsOfTheLastPiece) {
    const Passata passata = Viaggio().Tappa("A", 1200, {3, 0, 0}).Simula();
    ASSERT_TRUE(passata.fine);
    // The last piece ends at the night hour: the journey would go on the next day, the stop after it does not count.
    EXPECT_EQ(passata.fine->giorni, 2);
    EXPECT_EQ(passata.fine->ora, 2200_cent);
}

TEST(Simulazione, CountsKilometresBeyondSixteenBits) {
    Viaggio viaggio;
    for (int i = 0; i < 50; ++i) viaggio.Tappa("A", 900);
    EXPECT_EQ(viaggio.Simula().righe.back().kmProgressivi, 45'000);
}

TEST(Simulazione, NobodySeesSixtyMinutes) {
    Viaggio viaggio;
    viaggio.Tappa("A", 50, {0, 0, 45}).Tappa("B", 149);
    for (int i = 1; i < 400; ++i) {
        const QString righe = RigheBrevi(viaggio, static_cast<float>(i) / 150.0F).join(u'\n');
        ASSERT_FALSE(righe.contains(u":60"_s)) << righe.toStdString();
    }
}

}  // namespace
}  // namespace cronovia
