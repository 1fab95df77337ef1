#include "calendar/windows1252.h"

#include <gtest/gtest.h>

#include <array>

#include "support/prova.h"

namespace cronovia {
namespace {

using namespace Qt::StringLiterals;

TEST(Windows1252, EveryByteComesBack) {
    for (int valore = 0; valore < 256; ++valore) {
        const QByteArray byte(1, static_cast<char>(valore));
        const TestoCodificato codificato = InWindows1252(DaWindows1252(byte));
        EXPECT_EQ(codificato.byte, byte) << valore;
        EXPECT_EQ(codificato.sostituiti, 0) << valore;
    }
    EXPECT_EQ(DaWindows1252("\x80\x92\x9f\xe0\xff"), u"€’Ÿàÿ"_s);
}

TEST(Windows1252, WhatTheCodePageLacksTravelsAsItsBaseLetter) {
    struct Caso {
        QString testo;
        QByteArray byte;
        int sostituiti;
    };
    const std::array<Caso, 11> casi = {{{u"Č č Ř ő ș"_s, "C c R o s", 5},
                                        {u"Łódź"_s,
                                         "L\xf3"
                                         "dz",
                                         2},
                                        {u"Đurđevac"_s, "Durdevac", 2},
                                        {u"Ħal Qormi"_s, "Hal Qormi", 1},
                                        {u"Perche\u0300"_s, "Perch\xe8", 0},  // written in two characters
                                        {u"x\u030Cy"_s, "xy", 1},             // an accent that no letter takes
                                        {u"ABC"_s, "ABC", 0},
                                        {u"Αθ"_s, "??", 2},
                                        {u"😀!"_s, "?!", 1},
                                        {u"10 − 3"_s, "10 - 3", 1},
                                        {u""_s, "", 0}}};
    for (const Caso& caso : casi) {
        const TestoCodificato codificato = InWindows1252(caso.testo);
        EXPECT_EQ(codificato.byte, caso.byte) << caso.testo.toStdString();
        EXPECT_EQ(codificato.sostituiti, caso.sostituiti) << caso.testo.toStdString();
    }
}

TEST(Windows1252, CharactersOfTheFormatAreReplacedToo) {
    const TestoCodificato codificato = InWindows1252(u"ýÿþÝ \"a\"", u"ýÿþ\"");
    EXPECT_EQ(codificato.byte, QByteArray("yyt\xdd 'a'"));
    EXPECT_EQ(codificato.sostituiti, 5);
    const TestoCodificato comandi = InWindows1252(u"a\nb\tc", u"\n\t");
    EXPECT_EQ(comandi.byte, QByteArray("a b c"));
    EXPECT_EQ(comandi.sostituiti, 2);
}

}  // namespace
}  // namespace cronovia
