#include "calendar/date.h"

#include <gtest/gtest.h>

#include <QDate>
#include <array>

#include "support/prova.h"

namespace cronovia {
namespace {

using namespace Qt::StringLiterals;

TEST(Date, KnownDaysHaveTheirNumberAndWeekday) {
    struct Caso {
        QString data;
        int numero;
        QString giorno;
    };
    const std::array<Caso, 8> casi = {{{u"01011998"_s, 729405, u"Gio"_s},
                                       {u"31121999"_s, 730134, u"Ven"_s},
                                       {u"01012000"_s, 730135, u"Sab"_s},
                                       {u"29022000"_s, 730194, u"Mar"_s},
                                       {u"01032000"_s, 730195, u"Mer"_s},
                                       {u"28022001"_s, 730559, u"Mer"_s},
                                       {u"01032001"_s, 730560, u"Gio"_s},
                                       {u"05082004"_s, 731813, u"Gio"_s}}};
    for (const Caso& caso : casi) {
        SCOPED_TRACE(caso.data.toStdString());
        EXPECT_EQ(Data2Giul(caso.data).Numero(), caso.numero);
        EXPECT_EQ(Giu2Datas(NumeroGiorno(caso.numero)), caso.data);
        EXPECT_EQ(GiornoSettimana(caso.data), caso.giorno);
    }
}

// Qt's calendar is the independent witness.
TEST(Date, EveryDayFrom1901To2099IsConsecutiveAndComesBack) {
    const std::array<QString, 7> nomi = {u"Lun"_s, u"Mar"_s, u"Mer"_s, u"Gio"_s, u"Ven"_s, u"Sab"_s, u"Dom"_s};
    NumeroGiorno atteso = Data2Giul(Gma{1, 1, 1901});
    for (QDate data(1901, 1, 1); data.year() < 2100; data = data.addDays(1), atteso += 1) {
        const Gma gma{data.day(), data.month(), data.year()};
        ASSERT_EQ(Data2Giul(gma), atteso) << data.toString(Qt::ISODate).toStdString();
        ASSERT_EQ(Giul2Data(atteso), gma) << data.toString(Qt::ISODate).toStdString();
        ASSERT_EQ(GiornoSettimana(atteso), nomi.at(data.dayOfWeek() - 1)) << data.toString(Qt::ISODate).toStdString();
        ASSERT_EQ(GiorniMese(gma.anno, gma.mese), data.daysInMonth());
        ASSERT_EQ(LeggiData(data.toString(u"ddMMyyyy"_s)), atteso);
    }
}

TEST(Date, MonthLengthsFollowTheGregorianRuleOnCenturies) {
    EXPECT_EQ(GiorniMese(1900, 2), 28);
    EXPECT_EQ(GiorniMese(2000, 2), 29);
    EXPECT_EQ(GiorniMese(2003, 2), 28);
    EXPECT_EQ(GiorniMese(2004, 2), 29);
    EXPECT_EQ(GiorniMese(2100, 2), 28);
    EXPECT_EQ(GiorniMese(2003, 13), 28);
    EXPECT_EQ(GiorniMese(2004, 0), 28);
}

TEST(Date, FormsTurnIntoEachOther) {
    EXPECT_EQ(Data2Data(u"05082004"), u"05/08/2004"_s);
    EXPECT_EQ(DataClear(u"05/08/2004"), u"05082004"_s);
    EXPECT_EQ(DataChan(u"05082004"), u"20040805"_s);
    EXPECT_EQ(Data2Gma(u"05082004"), (Gma{5, 8, 2004}));
    EXPECT_EQ(Gma2Data({5, 8, 2004}), u"05082004"_s);
    EXPECT_EQ(TestoData(NumeroGiorno(731813)), u"05/08/2004"_s);
    EXPECT_EQ(TestoGiornoMese(NumeroGiorno(731813)), u"05/08"_s);
}

TEST(Date, TextsThatAreNoDayAreRefused) {
    EXPECT_EQ(GiornoSettimana(u"1012000"), u""_s);
    for (const auto* testo :
         {u"", u"1012000", u"010120000", u"29022003", u"31042004", u"00012004", u"01132004", u"01002004", u"31121900",
          u"01012100", u"01/01/20", u" 1012004", u"-1012004", u"abcdefgh"}) {
        EXPECT_FALSE(LeggiData(testo).has_value()) << QString::fromUtf16(testo).toStdString();
    }
}

}  // namespace
}  // namespace cronovia
