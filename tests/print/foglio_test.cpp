// The placing of texts.
#include "print/foglio.h"

#include <gtest/gtest.h>

#include "stampa.h"

namespace cronovia {
namespace {

using namespace Qt::StringLiterals;

TEST(Foglio, AlignsInTheColumnAndCutsWhatReachesTooFarOverIt) {
    const Carattere nove{Famiglia::Times, 9};
    Foglio foglio(u"Prova"_s, prova::kPiede);
    foglio.ApriPagina(20);
    const std::vector<TestoPosto>& testi = foglio.Scritto().pagine.back().testi;
    const auto stampa = [&](const QString& testo, double larghezza, Allineamento allineamento = {}) {
        const std::size_t prima = testi.size();
        foglio.StampaTesto({testo, 20, 50, 50 + larghezza, nove, allineamento});
        return testi.size() > prima ? testi.back() : TestoPosto();
    };
    const double larga = foglio.Larghezza(u"Roma"_s, nove);
    EXPECT_GT(larga, 6);
    EXPECT_LT(larga, 9);
    EXPECT_NEAR(stampa(u"  Roma "_s, 30, Allineamento::Sinistra).x, 50, 0.001);
    EXPECT_NEAR(stampa(u"Roma"_s, 30, Allineamento::Centro).x, 65 - larga / 2 - 1, 0.001);
    EXPECT_NEAR(stampa(u"Roma"_s, 30, Allineamento::Destra).x, 80 - larga - 3, 0.001);
    EXPECT_NEAR(testi.back().base, 19.5, 0.49) << "descenders stand above the bottom line";
    const double esatta = foglio.Larghezza(u"WWW"_s, nove) - 2;
    EXPECT_EQ(stampa(u"WWW"_s, esatta + 0.01).testo, u"WWW"_s);
    EXPECT_EQ(stampa(u"WWW"_s, esatta - 0.01).testo, u"WW"_s);
    const QString lungo(30, u'W');
    EXPECT_EQ(stampa(lungo, 30).testo, foglio.Tagliato(lungo, nove, 32));
    for (const auto& niente : {u"   "_s, u"WWW"_s, u"\U0001F690\U0001F690"_s}) {
        EXPECT_EQ(stampa(niente, -1).testo, QString()) << "not half a character";
    }
}

}  // namespace
}  // namespace cronovia
