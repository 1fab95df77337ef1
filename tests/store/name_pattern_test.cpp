#include "store/name_pattern.h"

#include <gtest/gtest.h>

#include <QStringList>
#include <array>

#include "support/prova.h"

namespace cronovia {
namespace {

using namespace Qt::StringLiterals;

struct Caso {
    QString modello;
    QStringList siTrovano;
    QStringList nonSiTrovano;
};

void Verifica(const Caso& caso) {
    SCOPED_TRACE(caso.modello.toStdString());
    const NamePattern modello(caso.modello);
    for (const QString& testo : caso.siTrovano) EXPECT_TRUE(modello.Matches(testo)) << testo.toStdString();
    for (const QString& testo : caso.nonSiTrovano) EXPECT_FALSE(modello.Matches(testo)) << testo.toStdString();
}

TEST(NamePattern, Wildcards) {
    const std::array<Caso, 8> casi = {
        {{u"SANT?ANNA"_s, {u"SANT'ANNA"_s, u"Sant anna"_s, u"sant’anna"_s}, {u"SANTANNA"_s, u"SANT''ANNA"_s}},
         {u"A*"_s, {u"A"_s, u"alba"_s, u"A*"_s}, {u""_s, u"balza"_s}},
         {u"*a*b*"_s, {u"ab"_s, u"xaxxbx"_s, u"aab"_s, u"abab"_s}, {u"ba"_s, u"a"_s}},
         {u"*aab"_s, {u"aaab"_s, u"aabaab"_s}, {u"aaba"_s, u"ab"_s}},
         {u"A##"_s, {u"A14"_s, u"a00"_s}, {u"A1"_s, u"A1B"_s, u"A144"_s, u"A٣٣"_s}},
         {u"**"_s, {u""_s, u"x"_s}, {}},
         {u"?"_s, {u"x"_s, u"é"_s, u"😀"_s, u"?"_s}, {u""_s, u"xy"_s}},
         {u""_s, {u""_s}, {u" "_s, u"x"_s}}}};
    for (const Caso& caso : casi) Verifica(caso);
}

TEST(NamePattern, Sets) {
    const std::array<Caso, 12> casi = {{{u"[a-c]x"_s, {u"ax"_s, u"Bx"_s, u"CX"_s}, {u"dx"_s, u"x"_s, u"aax"_s}},
                                        {u"[A-C1-3]"_s, {u"b"_s, u"2"_s}, {u"4"_s, u"-"_s}},
                                        {u"[!a-c]"_s, {u"d"_s, u"1"_s, u"à"_s}, {u"A"_s, u"b"_s, u""_s, u"dd"_s}},
                                        {u"[ae]"_s, {u"A"_s, u"e"_s}, {u"b"_s, u"ae"_s}},
                                        {u"[?*#]"_s, {u"?"_s, u"*"_s, u"#"_s}, {u"1"_s, u"x"_s}},
                                        {u"x[[]y"_s, {u"x[y"_s}, {u"xy"_s, u"x[[]y"_s}},
                                        {u"[a-]"_s, {u"a"_s, u"-"_s}, {u"b"_s}},
                                        {u"[-a]"_s, {u"a"_s, u"-"_s}, {u"b"_s}},
                                        {u"[!]"_s, {u"!"_s}, {u"x"_s}},
                                        {u"x[]y"_s, {u"xy"_s}, {u"x[]y"_s, u"xzy"_s}},
                                        {u"[À-Ö]"_s, {u"è"_s, u"É"_s}, {u"e"_s, u"ù"_s}},
                                        {u"[]]"_s, {u"]"_s}, {u"x"_s}}}};
    for (const Caso& caso : casi) Verifica(caso);
}

TEST(NamePattern, ABracketThatNothingClosesIsACharacter) {
    Verifica({u"x[a-c"_s, {u"x[a-c"_s, u"X[A-C"_s}, {u"xa"_s, u"xb"_s}});
    Verifica({u"[?"_s, {u"[x"_s}, {u"["_s, u"x"_s}});
    Verifica({u"a]"_s, {u"A]"_s}, {u"a"_s}});
}

TEST(NamePattern, CaseIsTheSameInEveryScriptAndAccentsCount) {
    Verifica({u"città"_s, {u"CITTÀ"_s, u"Città"_s}, {u"citta"_s, u"città "_s}});
    Verifica({u"ÅLESUND"_s, {u"ålesund"_s}, {u"Alesund"_s}});
    Verifica({u"αθήνα"_s, {u"ΑΘΉΝΑ"_s}, {u"ΑΘΗΝΑ"_s}});
    Verifica({u"МОСКВА"_s, {u"москва"_s}, {u"mockba"_s}});
    Verifica({u"ЁЛКА*"_s, {u"ёлка 2"_s}, {u"елка"_s}});
}

TEST(NamePattern, ExactlyKnowsNoWildcards) {
    const NamePattern modello = NamePattern::Exactly(u"A?[b]*");
    EXPECT_TRUE(modello.Matches(u"a?[B]*"));
    EXPECT_FALSE(modello.Matches(u"AxB"));
    EXPECT_TRUE(NamePattern::Exactly(u"").Matches(u""));
}

TEST(NamePattern, ManyStarsOnALongTextEndSoon) {
    const QString testo(5000, u'a');
    EXPECT_FALSE(NamePattern(u"*a*a*a*a*a*a*a*a*b"_s).Matches(testo));
    EXPECT_TRUE(NamePattern(u"*a*a*a*a*a*a*a*a*a"_s).Matches(testo));
}

}  // namespace
}  // namespace cronovia
