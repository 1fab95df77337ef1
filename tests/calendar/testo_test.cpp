#include "calendar/testo.h"

#include <gtest/gtest.h>

#include <limits>

#include "support/prova.h"

namespace cronovia {
namespace {

using namespace Qt::StringLiterals;

TEST(Testo, Padding) {
    EXPECT_EQ(Zero(7, 2), u"07"_s);
    EXPECT_EQ(Zero(2004, 4), u"2004"_s);
    EXPECT_EQ(Zero(123, 2), u"23"_s);
    EXPECT_EQ(Zero(5, 4), u"0005"_s);
    EXPECT_EQ(AggStr(u"Roma", 6, u'*'), u"Roma**"_s);
    EXPECT_EQ(AggStr(u"Civitavecchia", 6, u'*'), u"Civita"_s);
    EXPECT_EQ(AntStr(u"1:30", 8, u'0'), u"00001:30"_s);
    EXPECT_EQ(AntStr(u"001:02:03", 8, u'0'), u"01:02:03"_s);
}

TEST(Testo, TitleCase) {
    for (const QString& caso :
         {u"SANT'ANNA=Sant'Anna"_s, u"sant'anna=Sant'Anna"_s, u"CITTÀ DI=Città Di"_s,
          u"  reggio emilia =Reggio Emilia"_s, u"forlì-cesena=Forlì-Cesena"_s, u"cefalùpa=CefalùPa"_s,
          u"a1 nord=A1 Nord"_s, u"İSTANBUL CITY=İStanbul City"_s, u"èze=ÈZe"_s, u"   ="_s, u"="_s}) {
        EXPECT_EQ(PrimoMaiuscolo(caso.section(u'=', 0, 0)), caso.section(u'=', 1));
    }
}

TEST(Testo, EachOfSixCharactersBecomesTheWildcard) {
    EXPECT_EQ(LikeTesto(u"L'AQUILA"), u"L?AQUILA"_s);
    EXPECT_EQ(LikeTesto(u"'=\\><\""), u"??????"_s);
    EXPECT_EQ(LikeTesto(u"NÎMES (30) [a-z] 100% _*#"), u"NÎMES (30) [a-z] 100% _*#"_s);
}

TEST(Testo, NumbersInTexts) {
    EXPECT_EQ(ValoreSenzaPunti(u"1.250"), 1250);
    EXPECT_EQ(ValoreSenzaPunti(u"12,5"), 125);
    EXPECT_EQ(ValoreSenzaPunti(u"km"), 0);
    EXPECT_EQ(ValoreSenzaPunti(u"99999999999999999999999999"), std::numeric_limits<int>::max());
    EXPECT_EQ(ValoreNumerico(u" 42 km"), 42);
    EXPECT_EQ(ValoreNumerico(u"-7"), -7);
    EXPECT_EQ(ValoreNumerico(u"1.250"), 1);
    EXPECT_EQ(ValoreNumerico(u"x12"), 0);
    EXPECT_EQ(ValoreNumerico(u"٣"), 0);  // digits of other scripts are none
    EXPECT_EQ(ValoreNumerico(u"-99999999999999999999999999"), -std::numeric_limits<int>::max());
}

TEST(Testo, ThousandsAreGroupedByDots) {
    for (const QString& atteso : {u"0"_s, u"999"_s, u"1.000"_s, u"123.456"_s, u"1.234.567"_s, u"-999"_s, u"-1.000"_s}) {
        EXPECT_EQ(Raggruppa(QString(atteso).remove(u'.').toLongLong()), atteso);
    }
    EXPECT_EQ(RaggruppaNonZero(0), u""_s);
    EXPECT_EQ(RaggruppaNonZero(2500), u"2.500"_s);
}

}  // namespace
}  // namespace cronovia
