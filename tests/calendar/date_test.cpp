// SPDX-License-Identifier: GPL-3.0-or-later
#include "calendar/date.h"

#include <gtest/gtest.h>

#include <QDate>
#include <array>

#include "support/prova.h"

namespace cronovia {
namespace {

using namespace Qt::StringLiterals;

// Qt's calendar is the independent witness; one known day fixes where the numbers begin.
TEST(Date, EveryDayFrom1901To2099IsConsecutiveAndComesBack) {
    const std::array<QString, 7> nomi = {u"Lun"_s, u"Mar"_s, u"Mer"_s, u"Gio"_s, u"Ven"_s, u"Sab"_s, u"Dom"_s};
    NumeroGiorno atteso = NumeroDelGiorno(Gma{1, 1, 1901});
    for (QDate data(1901, 1, 1); data.year() < 2100; data = data.addDays(1), atteso += 1) {
        const Gma gma{data.day(), data.month(), data.year()};
        SCOPED_TRACE(TestoGma(gma).toStdString());
        ASSERT_EQ(NumeroDelGiorno(gma), atteso);
        ASSERT_EQ(GmaDelGiorno(atteso), gma);
        ASSERT_EQ(GiornoSettimana(atteso), nomi.at(data.dayOfWeek() - 1));
        ASSERT_EQ(GiorniMese(gma.anno, gma.mese), data.daysInMonth());
        ASSERT_EQ(LeggiData(data.toString(u"ddMMyyyy"_s)), atteso);
        ASSERT_EQ(DataMemorizzata(atteso), data.toString(u"ddMMyyyy"_s));
    }
    EXPECT_EQ(NumeroDelGiorno(Gma{5, 8, 2004}).Numero(), 731813);
    EXPECT_EQ(TestoData(NumeroGiorno(731813)), u"05/08/2004"_s);
    EXPECT_EQ(GiornoSettimana(NumeroGiorno(731813)), u"Gio"_s);
}

TEST(Date, TextsThatAreNoDayAreRefused) {
    for (const QString& testo : {u""_s, u"1012000"_s, u"010120000"_s, u"29022003"_s, u"00012004"_s, u"01132004"_s,
                                 u"31121900"_s, u"01012100"_s, u"01/01/20"_s, u"-1012004"_s, u"abcdefgh"_s}) {
        EXPECT_FALSE(LeggiData(testo).has_value()) << testo.toStdString();
    }
}

TEST(Date, PartsAreKeptAndTheDayStaysInItsMonth) {
    const auto nulla = std::nullopt;
    for (const auto& [testo, parti] : std::vector<std::pair<QString, PartiData>>{{u"31022027"_s, {28, 2, 2027}},
                                                                                 {u"31022028"_s, {29, 2, 2028}},
                                                                                 {u"00042027"_s, {1, 4, 2027}},
                                                                                 {u"30132027"_s, {30, nulla, 2027}},
                                                                                 {u"31021900"_s, {29, 2, nulla}},
                                                                                 {u"-1022027"_s, {nulla, 2, 2027}},
                                                                                 {u"3104"_s, {30, 4, nulla}},
                                                                                 {u""_s, {}}}) {
        EXPECT_EQ(LeggiPartiData(testo), parti) << testo.toStdString();
    }
    EXPECT_FALSE(LeggiPartiData(u"30132027").Giorno().has_value());
    EXPECT_EQ(DataMemorizzata(LeggiPartiData(u"31022027").Giorno().value()), u"28022027"_s);
}

}  // namespace
}  // namespace cronovia
