// Splitting lines that any program may have written.
#include "exchange/iei/separa_colonne.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <string>

namespace cronovia {
namespace {

// Rows of a line, where "_" stands for FF, "<" for FE and "~" for FD, and its values.
TEST(SeparaColonne, TheStrongestSeparatorOfALineParts) {
    for (const auto& [riga, attesi] : std::vector<std::pair<QByteArray, std::vector<std::string>>>{
             {"a_b_", {"a", "b"}},
             {"a<b", {"a", "b"}},
             {"__c_", {"", "", "c"}},
             {"  San Gimignano ~ Siena~", {"San Gimignano", "Siena"}},
             {"a<b_c_",
              {"a\xFE"
               "b",
               "c"}},
             {"a\tb~c~", {"a\tb", "c"}},
             {"1,5\tkm", {"1,5", "km"}},
             {"a;b,c", {"a;b", "c"}},
             {"Ehi!;b", {"Ehi!", "b"}},
             {"a!b", {"a", "b"}},
             {"Firenze", {"Firenze"}},
             {"", {}}}) {
        SCOPED_TRACE(riga.toStdString());
        const QByteArray byte = QByteArray(riga).replace('_', '\xFF').replace('<', '\xFE').replace('~', '\xFD');
        const Colonne colonne = SeparaColonne(byte);
        std::vector<std::string> valori;
        for (const QByteArrayView valore : colonne.valori) valori.emplace_back(valore.data(), valore.size());
        EXPECT_EQ(valori, attesi);
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
