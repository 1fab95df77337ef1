#include "calendar/testo.h"

#include <gtest/gtest.h>

#include <array>
#include <limits>
#include <utility>

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
    using Coppia = std::pair<QString, QString>;
    const std::array<Coppia, 11> casi = {Coppia{u"SANT'ANNA"_s, u"Sant'Anna"_s},
                                         {u"sant'anna"_s, u"Sant'Anna"_s},
                                         {u"CITTÀ DI"_s, u"Città Di"_s},
                                         {u"  reggio nell'emilia  "_s, u"Reggio Nell'Emilia"_s},
                                         {u"forlì-cesena"_s, u"Forlì-Cesena"_s},
                                         {u"cefalùpa"_s, u"CefalùPa"_s},  // capital after an accented letter
                                         {u"a1 nord"_s, u"A1 Nord"_s},
                                         {u"èze"_s, u"ÈZe"_s},
                                         {u"İSTANBUL CITY"_s, u"İStanbul City"_s},
                                         {u""_s, u""_s},
                                         {u"   "_s, u""_s}};
    for (const auto& [testo, atteso] : casi) EXPECT_EQ(PrimoMaiuscolo(testo), atteso);
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
    using Coppia = std::pair<std::int64_t, QString>;
    for (const auto& [numero, atteso] : {Coppia{0, u"0"_s},
                                         {999, u"999"_s},
                                         {1000, u"1.000"_s},
                                         {1234567, u"1.234.567"_s},
                                         {-999, u"-999"_s},
                                         {-1000, u"-1.000"_s},
                                         {123456, u"123.456"_s}}) {
        EXPECT_EQ(Raggruppa(numero), atteso);
    }
    EXPECT_EQ(RaggruppaNonZero(0), u""_s);
    EXPECT_EQ(RaggruppaNonZero(2500), u"2.500"_s);
}

}  // namespace
}  // namespace cronovia
