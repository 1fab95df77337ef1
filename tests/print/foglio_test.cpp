// The placing of texts and the turning of pages.
#include "print/foglio.h"

#include <gtest/gtest.h>

#include "stampa.h"

namespace cronovia {
namespace {

using namespace Qt::StringLiterals;

constexpr double kStretto = 0.001;

class FoglioTest : public testing::Test {
  protected:
    FoglioTest() { foglio_.ApriPagina(20); }

    std::vector<TestoPosto> Stampa(const QString& testo, double x1, double x2, Allineamento allineamento = {}) {
        const std::size_t prima = Testi().size();
        foglio_.StampaTesto({testo, 20, x1, x2, {Famiglia::Times, 9}, allineamento});
        return {Testi().begin() + static_cast<std::ptrdiff_t>(prima), Testi().end()};
    }
    [[nodiscard]] const std::vector<TestoPosto>& Testi() const { return foglio_.Scritto().pagine.back().testi; }

    Foglio foglio_{u"Prova"_s, prova::kPiede};
    Misure misure_;
};

TEST_F(FoglioTest, AlignsInTheColumn) {
    const double larga = misure_.Larghezza(u"Roma"_s, {Famiglia::Times, 9});
    EXPECT_GT(larga, 6);
    EXPECT_LT(larga, 9);
    EXPECT_NEAR(Stampa(u"  Roma "_s, 50, 80, Allineamento::Sinistra).front().x, 50, kStretto);
    EXPECT_NEAR(Stampa(u"Roma"_s, 50, 80, Allineamento::Centro).front().x, 65 - larga / 2 - 1, kStretto);
    EXPECT_NEAR(Stampa(u"Roma"_s, 50, 80, Allineamento::Destra).front().x, 80 - larga - 3, kStretto);
    const TestoPosto posto = Testi().back();
    EXPECT_EQ(posto.testo, u"Roma"_s);
    EXPECT_LT(posto.base, 20) << "descenders stand above the bottom line";
    EXPECT_GT(posto.base, 19);
    EXPECT_TRUE(Stampa(u"   "_s, 50, 80).empty());
}

TEST_F(FoglioTest, CutsWhatIsNotNarrowerThanTheColumnAndTwoMillimetres) {
    const QString lungo(30, u'W');
    const TestoPosto tagliato = Stampa(lungo, 50, 80).front();
    EXPECT_TRUE(lungo.startsWith(tagliato.testo));
    EXPECT_LT(tagliato.larghezza, 32);
    EXPECT_GE(misure_.Larghezza(tagliato.testo + u'W', tagliato.carattere), 32);
    const double esatta = misure_.Larghezza(u"WWW"_s, {Famiglia::Times, 9});
    EXPECT_EQ(Stampa(u"WWW"_s, 50, 50 + esatta - 2 + 0.01).front().testo, u"WWW"_s);
    EXPECT_EQ(Stampa(u"WWW"_s, 50, 50 + esatta - 2 - 0.01).front().testo, u"WW"_s);
    EXPECT_TRUE(Stampa(u"WWW"_s, 50, 49).empty());
    EXPECT_TRUE(Stampa(u"\U0001F690\U0001F690"_s, 50, 49).empty()) << "no half characters";
}

TEST_F(FoglioTest, ShrinksDownToTheFloor) {
    const Carattere otto{Famiglia::Times, 8};
    EXPECT_EQ(foglio_.Ristretto(u"A22"_s, otto, 15).dimensione, 8);
    const Carattere minore = foglio_.Ristretto(u"A22/A13/SS12bis"_s, otto, 15);
    EXPECT_LT(minore.dimensione, 8);
    EXPECT_LT(misure_.Larghezza(u"A22/A13/SS12bis"_s, minore), 15);
    EXPECT_EQ(foglio_.Ristretto(QString(64, u'W'), otto, 15).dimensione, kDimensioneMinima);
}

TEST_F(FoglioTest, EndsAPageOnce) {
    foglio_.RigaStampa(280);
    EXPECT_FALSE(foglio_.PaginaPiena());
    foglio_.RigaStampa(281);
    EXPECT_TRUE(foglio_.PaginaPiena());
    foglio_.RigaStampa(285);
    foglio_.StampaFinePagina(kBordiCronovia);
    foglio_.StampaFinePagina(kBordiCronovia);
    EXPECT_FALSE(foglio_.PaginaAperta());
    const Pagina& pagina = foglio_.Scritto().pagine.front();
    ASSERT_EQ(pagina.testi.size(), 2U);
    const TestoPosto data = prova::Trova(pagina, u"31/01/2027"_s);
    EXPECT_TRUE(data.carattere.corsivo);
    EXPECT_EQ(data.carattere.dimensione, 6);
    EXPECT_EQ(data.x, 5);
    const TestoPosto titolo = prova::Trova(pagina, u"Cronovia"_s);
    EXPECT_NEAR(titolo.x + titolo.larghezza, 193, kStretto);
    ASSERT_EQ(pagina.linee.size(), 1U);
    EXPECT_EQ(pagina.linee.front().y1, 280);
    EXPECT_EQ(pagina.linee.front().x2, 193);
}

}  // namespace
}  // namespace cronovia
