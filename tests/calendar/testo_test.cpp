// SPDX-License-Identifier: GPL-3.0-or-later
#include "calendar/testo.h"

#include <gtest/gtest.h>

#include <limits>

#include "support/prova.h"

namespace cronovia {
namespace {

using namespace Qt::StringLiterals;

TEST(Testo, TitleCase) {
    for (const QString& caso : {u"SANT'ANNA=Sant'Anna"_s, u"  reggio emilia =Reggio Emilia"_s, u"CITTÀ DI=Città Di"_s,
                                u"cefalùpa=Cefalùpa"_s, u"èze=Èze"_s, u"FÜSSEN-O\u0308RE 2A=Füssen-O\u0308re 2A"_s,
                                u"ΑΘΗΝΑ=Αθηνα"_s, u"großGLOCKNER=Großglockner"_s, u"   ="_s}) {
        EXPECT_EQ(PrimoMaiuscolo(caso.section(u'=', 0, 0)), caso.section(u'=', 1));
    }
}

TEST(Testo, EachOfSixCharactersBecomesTheWildcard) {
    EXPECT_EQ(ComeModello(u"L'AQUILA"), u"L?AQUILA"_s);
    EXPECT_EQ(ComeModello(u"'=\\><\""), u"??????"_s);
    EXPECT_EQ(ComeModello(u"NÎMES (30) [a-z] 100% _*#"), u"NÎMES (30) [a-z] 100% _*#"_s);
}

TEST(Testo, NumbersAreReadAndWritten) {
    EXPECT_EQ(ValoreNumerico(u" 42 km"), 42);
    EXPECT_EQ(ValoreNumerico(u"x12"), 0);
    EXPECT_EQ(ValoreNumerico(u"-99999999999999999999999999"), -std::numeric_limits<int>::max());
    for (const QString& atteso : {u"0"_s, u"999"_s, u"1.000"_s, u"1.234.567"_s, u"-999"_s, u"-1.000"_s}) {
        EXPECT_EQ(Raggruppa(QString(atteso).remove(u'.').toLongLong()), atteso);
    }
    EXPECT_EQ(ConNumeri(u"<00/00-0000>", {7, 123, -5}), u"<07/23-00-5>"_s);
}

}  // namespace
}  // namespace cronovia
