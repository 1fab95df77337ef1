#include "calendar/durata.h"

#include <gtest/gtest.h>

#include <array>
#include <cmath>

#include "support/prova.h"

namespace cronovia {
namespace {

using namespace Qt::StringLiterals;

TEST(Durata, TextsAreReadAsHundredths) {
    struct Caso {
        QString testo;
        int giorno;
        float centesimi;
    };
    const std::array<Caso, 14> casi = {{{u""_s, 2400, 0},
                                        {u"00:01:30"_s, 2400, 150},
                                        {u"01:00:00"_s, 2400, 2400},
                                        {u"00:00:20"_s, 2400, 33},  // 33.33 rounds down
                                        {u"00:00:10"_s, 2400, 17},  // 16.67 rounds up
                                        {u"00:00:15"_s, 2400, 25},
                                        {u"1:30"_s, 2400, 150},  // padded on the left
                                        {u"12:00"_s, 2400, 1200},
                                        {u"01:02:30"_s, 900, 1150},  // a day of nine visiting hours
                                        {u"02:00:00"_s, 1075, 2150},
                                        {u"99:23:45"_s, 2400, 239975},
                                        {u"99901:02:03"_s, 2400, 2605},  // the last eight characters count
                                        {u"00:90:90"_s, 2400, 9150},
                                        {u"aa:bb:cc"_s, 2400, 0}}};
    for (const Caso& caso : casi) {
        EXPECT_EQ(ghmStringa2Centesimi(caso.testo, Centesimi(caso.giorno)).Valore(), caso.centesimi)
            << caso.testo.toStdString();
    }
}

TEST(Durata, HundredthsAreWrittenAsTexts) {
    struct Caso {
        double centesimi;
        int giorno;
        QString testo;
    };
    const std::array<Caso, 13> casi = {{{0, 2400, u""_s},
                                        {150, 2400, u"00:01:30"_s},
                                        {33, 2400, u"00:00:20"_s},
                                        {2450, 2400, u"01:00:30"_s},
                                        {0.4, 2400, u""_s},           // less than half a minute
                                        {99.1, 2400, u"00:00:59"_s},  // 59.46 minutes
                                        {99.5, 2400, u"00:01:00"_s},  // sixty minutes are an hour
                                        {1099.9, 2400, u"00:11:00"_s},
                                        {2399.9, 2400, u"01:00:00"_s},  // and a full day is a day
                                        {899.9, 900, u"01:00:00"_s},
                                        {1750, 900, u"01:08:30"_s},
                                        {1074, 1075, u"00:10:44"_s},
                                        {9850, 9900, u"00:98:30"_s}}};
    for (const Caso& caso : casi) {
        EXPECT_EQ(ghmCentesimi2Stringa(Centesimi(caso.centesimi), Centesimi(caso.giorno)), caso.testo)
            << caso.centesimi << " with a day of " << caso.giorno;
    }
}

TEST(Durata, DaysBeyondTwoDigitsKeepTheirValue) {
    const Durata durata{123, 4, 30};
    EXPECT_EQ(InCentesimi(durata, kGiornoOrologio), Centesimi(123 * 2400 + 450));
    EXPECT_EQ(InDurata(Centesimi(123 * 2400 + 450), kGiornoOrologio), durata);
    EXPECT_EQ(InDurata(Centesimi(100 * 900), 900_cent), (Durata{100, 0, 0}));
}

TEST(Durata, NegativeTimesTakeTheFloorAndEmptyDaysAreClockDays) {
    EXPECT_EQ(InDurata(Centesimi(-50), kGiornoOrologio), (Durata{-1, 23, 30}));
    EXPECT_EQ(InDurata(2450_cent, 0_cent), (Durata{1, 0, 30}));
    EXPECT_EQ(InDurata(2450_cent, Centesimi(-100)), (Durata{1, 0, 30}));
}

TEST(Durata, EveryMinuteSurvivesTheWayThroughHundredths) {
    for (const int giorno : {2400, 900, 1000, 9900}) {
        for (int minuti = 0; minuti < 3 * giorno * 60 / 100; ++minuti) {
            const int ore = minuti / 60;
            const Durata durata{ore / (giorno / 100), ore % (giorno / 100), minuti % 60};
            ASSERT_EQ(InDurata(InCentesimi(durata, Centesimi(giorno)), Centesimi(giorno)), durata) << giorno;
        }
    }
}

TEST(Durata, NoTimeIsEverWrittenWithSixtyMinutes) {
    for (const int giorno : {2400, 900, 1075, 1625}) {
        for (int decimi = 0; decimi < 60'000; ++decimi) {
            const Centesimi tempo(decimi / 10.0);
            const Durata durata = InDurata(tempo, Centesimi(giorno));
            ASSERT_TRUE(durata.minuti >= 0 && durata.minuti < 60) << tempo.Valore() << " / " << giorno;
            const double riletto = durata.giorni * giorno + durata.ore * 100.0 + durata.minuti / 0.6;
            ASSERT_NEAR(riletto, tempo.Valore(), 0.84) << "day of " << giorno;  // half a minute
        }
    }
}

TEST(Durata, SmallForms) {
    EXPECT_EQ(ghmStringa2Stringa2Punti(u"13015"), u"01:30:15"_s);
    EXPECT_EQ(ghmStringa2Stringa2Punti(u""), u"00:00:00"_s);
    EXPECT_EQ(TestoOrologio(925_cent), u"09:15"_s);
    EXPECT_EQ(TestoOrologio(0_cent), u""_s);
    EXPECT_EQ(TestoOre({3, 4, 5}), u"04:05"_s);
    EXPECT_EQ(ArrotondaAlMinuto(Centesimi(34.2), kGiornoOrologio), 35_cent);  // 20.52 minutes are 21
    EXPECT_TRUE(QuasiUguale(10_cent, 12_cent, 2));
    EXPECT_TRUE(QuasiUguale(14_cent, 12_cent, 2));
    EXPECT_FALSE(QuasiUguale(9_cent, 12_cent, 2));
    EXPECT_FALSE(QuasiUguale(15_cent, 12_cent, 2));
}

}  // namespace
}  // namespace cronovia
