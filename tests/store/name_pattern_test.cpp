// SPDX-License-Identifier: GPL-3.0-or-later
#include "store/name_pattern.h"

#include <gtest/gtest.h>

#include <QStringList>
#include <ctime>

#include "support/prova.h"

namespace cronovia {
namespace {

using namespace Qt::StringLiterals;

// A row is "pattern | texts that match | texts that do not", texts parted by commas.
void Verifica(const QStringList& casi) {
    for (const QString& caso : casi) {
        SCOPED_TRACE(caso.toStdString());
        const QStringList parti = caso.split(u" | "_s);
        const NamePattern modello(parti.at(0));
        for (const QString& testo : parti.at(1).split(u',')) EXPECT_TRUE(modello.Matches(testo)) << testo.toStdString();
        for (const QString& testo : parti.at(2).split(u','))
            EXPECT_FALSE(modello.Matches(testo)) << testo.toStdString();
    }
}

TEST(NamePattern, Wildcards) {
    Verifica({u"SANT?ANNA | SANT'ANNA,Sant anna,sant’anna | SANTANNA,SANT''ANNA"_s, u"A* | A,alba,A* | ,balza"_s,
              u"*a*b* | ab,xaxxbx,aab,abab | ba,a"_s, u"*aab | aaab,aabaab | aaba,ab"_s,
              u"A## | A14,a00 | A1,A1B,A144,A٣٣"_s, u"? | x,é,😀,? | ,xy"_s, u"a** | a,ab | ,b"_s});
    EXPECT_TRUE(NamePattern(u"").Matches(u""));
    EXPECT_FALSE(NamePattern(u"").Matches(u" "));
}

TEST(NamePattern, Sets) {
    Verifica({u"[a-c]x | ax,Bx,CX | dx,x,aax"_s, u"[A-C1-3] | b,2 | 4,-"_s, u"[!a-c] | d,1,à | A,b,,dd"_s,
              u"[?*#] | ?,*,# | 1,x"_s, u"x[[]y | x[y | xy,x[[]y"_s, u"[a-] | a,- | b"_s, u"[!] | ! | x"_s,
              u"x[]y | xy | x[]y,xzy"_s, u"[À-Ö] | è,É | e,ù"_s});
    // a bracket that nothing closes is a character
    Verifica({u"x[a-c | x[a-c,X[A-C | xa,xb"_s, u"a] | A] | a"_s});
}

TEST(NamePattern, CaseIsTheSameInEveryScriptAndAccentsCount) {
    Verifica({u"città | CITTÀ,Città | citta,città "_s, u"ÅLESUND | ålesund | Alesund"_s, u"αθήνα | ΑΘΉΝΑ | ΑΘΗΝΑ"_s,
              u"МОСКВА | москва | mockba"_s, u"ЁЛКА* | ёлка 2 | елка"_s});
}

TEST(NamePattern, ANameAlwaysFindsItself) {
    for (const QString& nome : {u"AREA #3"_s, u"Park [A]"_s, u"[sosta]"_s, u"L'AQUILA"_s, u"A*B?"_s}) {
        EXPECT_TRUE(NamePattern::ForName(nome).Matches(nome.toLower())) << nome.toStdString();
    }
    EXPECT_TRUE(NamePattern::ForName(u"SANT'ANNA").Matches(u"Sant anna"));
    EXPECT_TRUE(NamePattern::ForName(u"AREA #3").Matches(u"AREA 13"));
    EXPECT_FALSE(NamePattern::ForName(u"AREA #3").Matches(u"AREA X3"));
}

TEST(NamePattern, ManyStarsOnALongTextEndSoon) {
    EXPECT_FALSE(NamePattern(u"*a*a*a*a*a*a*a*a*b"_s).Matches(QString(5000, u'a')));
}

// Each as long as a line of commands may be, asked of as many names as a guide may have.
TEST(NamePattern, LongPatternsEndSoon) {
    for (const QString& pezzo : {u"*"_s, u"["_s, u"è"_s, u"x"_s, u"*x"_s, u"?"_s, u"[ab"_s, u"[x]"_s, u"*[]"_s}) {
        const QString lungo = pezzo.repeated(100'000 / pezzo.size());
        for (const QString& testo : {lungo, u"[!"_s + lungo + u']', u"*x*"_s + lungo + u"*y*"_s}) {
            const std::clock_t inizio = std::clock();
            const NamePattern modello(testo);
            const NamePattern composto = modello.Then(modello).Reversed();
            const auto tratti = modello.Ranges();
            const bool tutti = QString(testo).remove(u"[]"_s).remove(u'*').isEmpty();
            for (int i = 0; i < 2'000; ++i) EXPECT_EQ(modello.Matches(u"Castellammare del Golfo"), tutti);
            EXPECT_LT(std::clock() - inizio, CLOCKS_PER_SEC / 5) << testo.left(8).toStdString();
        }
    }
}

}  // namespace
}  // namespace cronovia
