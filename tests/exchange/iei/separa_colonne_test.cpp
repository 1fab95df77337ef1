// SPDX-License-Identifier: GPL-3.0-or-later
// Splitting lines that any program may have written.
#include "exchange/iei/separa_colonne.h"

#include <gtest/gtest.h>

#include <QList>
#include <vector>

namespace cronovia {
namespace {

// A line, where "_" stands for FF, "<" for FE and "~" for FD, and behind "=" its values, each ended by "|".
TEST(SeparaColonne, TheStrongestSeparatorOfALineParts) {
    for (QByteArray caso :
         std::vector<QByteArray>{"a_b_=a|b|", "a<b=a|b|", "__c_=||c|", "  San Gimignano ~ Siena~=San Gimignano|Siena|",
                                 "a<b_c_=a<b|c|", "a\tb~c~=a\tb|c|", "1,5\tkm=1,5|km|", "a;b,c=a;b|c|",
                                 "Ehi!;b=Ehi!|b|", "a!b=a|b|", "Firenze=Firenze|", "="}) {
        SCOPED_TRACE(caso.toStdString());
        caso.replace('_', '\xFF').replace('<', '\xFE').replace('~', '\xFD');
        const QList<QByteArray> parti = caso.split('=');
        const Colonne colonne = SeparaColonne(parti[0]);
        QByteArray valori;
        for (const QByteArrayView valore : colonne.valori) valori += valore.toByteArray() + '|';
        EXPECT_EQ(valori, parti[1]);
        EXPECT_EQ(colonne.tolti, 0);
    }
}

TEST(SeparaColonne, TakesAHundredValuesAndCountsTheOthers) {
    const Colonne colonne = SeparaColonne(QByteArray("x,").repeated(102) + "x");
    EXPECT_EQ(colonne.valori.size(), 100U);
    EXPECT_EQ(colonne.inPiu, 3);
}

}  // namespace
}  // namespace cronovia
