#include "calendar/date.h"

#include <gtest/gtest.h>

#include <QDate>
#include <array>

#include "support/prova.h"

namespace cronovia {
namespace {

using namespace Qt::StringLiterals;

TEST(Date, KnownDaysHaveTheirNumberAndWeekday) {
    for (const QString& caso :
         {u"01011998 729405 Gio"_s, u"31121999 730134 Ven"_s, u"01012000 730135 Sab"_s, u"29022000 730194 Mar"_s,
          u"01032000 730195 Mer"_s, u"28022001 730559 Mer"_s, u"01032001 730560 Gio"_s, u"05082004 731813 Gio"_s}) {
        const QStringList parti = caso.split(u' ');
        EXPECT_EQ(QString::number(Data2Giul(parti[0]).Numero()), parti[1]);
        EXPECT_EQ(Giu2Datas(NumeroGiorno(parti[1].toInt())), parti[0]);
        EXPECT_EQ(GiornoSettimana(parti[0]), parti[2]);
    }
}

// Qt's calendar is the independent witness.
TEST(Date, EveryDayFrom1901To2099IsConsecutiveAndComesBack) {
    const std::array<QString, 7> nomi = {u"Lun"_s, u"Mar"_s, u"Mer"_s, u"Gio"_s, u"Ven"_s, u"Sab"_s, u"Dom"_s};
    NumeroGiorno atteso = Data2Giul(Gma{1, 1, 1901});
    for (QDate data(1901, 1, 1); data.year() < 2100; data = data.addDays(1), atteso += 1) {
        const Gma gma{data.day(), data.month(), data.year()};
        SCOPED_TRACE(Gma2Data(gma).toStdString());
        ASSERT_EQ(Data2Giul(gma), atteso);
        ASSERT_EQ(Giul2Data(atteso), gma);
        ASSERT_EQ(GiornoSettimana(atteso), nomi.at(data.dayOfWeek() - 1));
        ASSERT_EQ(GiorniMese(gma.anno, gma.mese), data.daysInMonth());
        ASSERT_EQ(LeggiData(data.toString(u"ddMMyyyy"_s)), atteso);
    }
}

TEST(Date, MonthLengthsOutsideTheCalendar) {
    EXPECT_EQ(GiorniMese(1900, 2), 28);
    EXPECT_EQ(GiorniMese(2100, 2), 28);
    EXPECT_EQ(GiorniMese(2003, 13), 28);
    EXPECT_EQ(GiorniMese(2004, 0), 28);
}

TEST(Date, FormsTurnIntoEachOther) {
    EXPECT_EQ(Data2Data(u"05082004"), u"05/08/2004"_s);
    EXPECT_EQ(DataClear(u"05/08/2004"), u"05082004"_s);
    EXPECT_EQ(DataChan(u"05082004"), u"20040805"_s);
    EXPECT_EQ(Data2Gma(u"05082004"), (Gma{5, 8, 2004}));
    EXPECT_EQ(TestoData(NumeroGiorno(731813)), u"05/08/2004"_s);
    EXPECT_EQ(TestoGiornoMese(NumeroGiorno(731813)), u"05/08"_s);
}

TEST(Date, TextsThatAreNoDayAreRefused) {
    EXPECT_EQ(GiornoSettimana(u"1012000"), u""_s);
    for (const QString& testo :
         {u""_s, u"1012000"_s, u"010120000"_s, u"29022003"_s, u"31042004"_s, u"00012004"_s, u"01132004"_s,
          u"01002004"_s, u"31121900"_s, u"01012100"_s, u"01/01/20"_s, u" 1012004"_s, u"-1012004"_s, u"abcdefgh"_s}) {
        EXPECT_FALSE(LeggiData(testo).has_value()) << testo.toStdString();
    }
}

}  // namespace
}  // namespace cronovia
