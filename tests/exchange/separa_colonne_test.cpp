// Splitting lines that any program may have written.
#include "exchange/separa_colonne.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <string>

namespace cronovia {
namespace {

struct Caso {
    const char* nome;
    QByteArray riga;
    std::vector<std::string> valori;
    int tolti = 0;
};

void PrintTo(const Caso& caso, std::ostream* uscita) { *uscita << caso.nome; }

class SeparaColonneCasi : public ::testing::TestWithParam<Caso> {};

TEST_P(SeparaColonneCasi, Valori) {
    const Colonne colonne = SeparaColonne(GetParam().riga);
    std::vector<std::string> valori;
    for (const QByteArrayView valore : colonne.valori) valori.emplace_back(valore.data(), valore.size());
    EXPECT_EQ(valori, GetParam().valori);
    EXPECT_EQ(colonne.tolti, GetParam().tolti);
    EXPECT_EQ(colonne.inPiu, 0);
}

INSTANTIATE_TEST_SUITE_P(
    Righe, SeparaColonneCasi,
    ::testing::Values(
        Caso{"each value ended",
             "a\xFF"
             "b\xFF",
             {"a", "b"}},
        Caso{"the last one not ended",
             "a\xFE"
             "b",
             {"a", "b"}},
        Caso{"empty values count",
             "\xFF\xFF"
             "c\xFF",
             {"", "", "c"}},
        Caso{"blanks around, not within", "  San Gimignano \xFD Siena\xFD", {"San Gimignano", "Siena"}},
        Caso{"FF before FE",
             "a\xFE"
             "b\xFF"
             "c\xFF",
             {"a\xFE"
              "b",
              "c"}},
        Caso{"FD before Tab",
             "a\tb\xFD"
             "c\xFD",
             {"a\tb", "c"}},
        Caso{"FC before a comma",
             "a,b\xFC"
             "c",
             {"a,b", "c"}},
        Caso{"Tab before a comma", "1,5\tkm", {"1,5", "km"}}, Caso{"a comma before a semicolon", "a;b,c", {"a;b", "c"}},
        Caso{"a semicolon before a mark", "Ehi!;b", {"Ehi!", "b"}}, Caso{"a mark last", "a!b", {"a", "b"}},
        Caso{"no separator", "Firenze", {"Firenze"}},
        Caso{"quotes and control characters go", QByteArray("\"Fi\0re\x1Fnze\",\"x\"", 15), {"Firenze", "x"}, 6},
        Caso{"nothing but what goes", "\x01\"", {}, 2}, Caso{"nothing", "", {}}));

TEST(SeparaColonne, TakesAHundredValuesAndCountsTheOthers) {
    for (const auto& [riga, inPiu] : {std::pair{QByteArray("x,").repeated(100), 0},
                                      {QByteArray("x,").repeated(102), 2},
                                      {QByteArray("x,").repeated(102) + "x", 3}}) {
        const Colonne colonne = SeparaColonne(riga);
        EXPECT_EQ(colonne.valori.size(), 100U);
        EXPECT_EQ(colonne.inPiu, inPiu);
    }
}

}  // namespace
}  // namespace cronovia
