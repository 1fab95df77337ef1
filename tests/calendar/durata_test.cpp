// SPDX-License-Identifier: GPL-3.0-or-later
#include "calendar/durata.h"

#include <gtest/gtest.h>

#include <QStringList>

#include "support/prova.h"

namespace cronovia {
namespace {

using namespace Qt::StringLiterals;

// Rows of a text, the hundredths of a day, and hundredths.
TEST(Durata, TextsAreReadAsHundredths) {
    EXPECT_TRUE(LeggiDurata(u"").Nulla());
    for (const QString& caso : {u"00:00:20 2400 33"_s, u"1:30 2400 150"_s, u"01:02:30 900 1150"_s,
                                u"02:00:00 1075 2150"_s, u"99:23:45 2400 239975"_s, u"aa:bb:cc 2400 0"_s}) {
        const QStringList parti = caso.split(u' ');
        const Centesimi letti = InCentesimi(LeggiDurata(parti[0]), Centesimi(parti[1].toInt()));
        EXPECT_EQ(letti.Valore(), parti[2].toFloat()) << caso.toStdString();
    }
}

// Sixty minutes are an hour, and a full day is a day.
TEST(Durata, HundredthsAreWrittenAsTexts) {
    EXPECT_EQ(Testo(Centesimi(0.4), kGiornoOrologio), u""_s);  // less than half a minute
    for (const QString& caso : {u"00:00:20 2400 33"_s, u"01:00:30 2400 2450"_s, u"00:01:00 2400 99.5"_s,
                                u"01:00:00 2400 2399.9"_s, u"01:08:30 900 1750"_s, u"00:10:44 1075 1074"_s}) {
        const QStringList parti = caso.split(u' ');
        EXPECT_EQ(Testo(Centesimi(parti[2].toDouble()), Centesimi(parti[1].toInt())), parti[0]);
    }
}

TEST(Durata, DaysMayBeManyNegativeOrWithoutHours) {
    EXPECT_EQ(InDurata(Centesimi(123 * 2400 + 450), kGiornoOrologio), (Durata{123, 4, 30}));
    EXPECT_EQ(InDurata(Centesimi(-50), kGiornoOrologio), (Durata{-1, 23, 30}));
    EXPECT_EQ(InDurata(2450_cent, 0_cent), (Durata{1, 0, 30}));
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

TEST(Durata, SmallForms) {
    EXPECT_EQ(TestoOrologio(925_cent), u"09:15"_s);
    EXPECT_EQ(TestoOre({3, 4, 5}), u"04:05"_s);
    EXPECT_EQ(ArrotondaAlMinuto(Centesimi(34.2), kGiornoOrologio), 35_cent);  // 20.52 minutes are 21
}

}  // namespace
}  // namespace cronovia
