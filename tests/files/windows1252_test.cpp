// SPDX-License-Identifier: GPL-3.0-or-later
#include "files/windows1252.h"

#include <gtest/gtest.h>

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
    // Text, what arrives, how many were replaced.
    for (const QString& caso :
         {u"Č č Ř ő ș:C c R o s:5"_s, u"Łódź:Lódz:2"_s, u"Perche\u0300:Perchè:0"_s, u"Œuvre €:Œuvre €:0"_s,
          u"Αθ:??:2"_s, u"😀!:?!:1"_s, u"10 − 3:10 - 3:1"_s, u"a\u0080b:a?b:1"_s}) {
        const TestoCodificato codificato = InWindows1252(caso.section(u':', 0, 0));
        EXPECT_EQ(DaWindows1252(codificato.byte), caso.section(u':', 1, 1));
        EXPECT_EQ(QString::number(codificato.sostituiti), caso.section(u':', 2)) << caso.toStdString();
    }
}

}  // namespace
}  // namespace cronovia
