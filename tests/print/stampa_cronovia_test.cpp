// The pages of a schedule.
#include "print/stampa_cronovia.h"

#include <gmock/gmock.h>

#include "stampa.h"

namespace cronovia {
namespace {

using namespace Qt::StringLiterals;
using prova::Stampa;
using prova::Trova;
using prova::Viaggio;

constexpr int kRighePerPagina = 46;

TEST(StampaCronovia, FortyPagesHoldEveryRowOnceAndTurnBehindTheLastLineOnly) {
    DatiStampa vuota = Viaggio(2);
    for (RigaStampata& riga : vuota.righe) riga.testi[Colonna::Tappa] = u"  "_s;
    EXPECT_TRUE(Stampa(vuota).pagine.empty());
    EXPECT_EQ(Stampa(Viaggio(kRighePerPagina)).pagine.size(), 1U);
    const Stampato documento = Stampa(Viaggio(kRighePerPagina * 39 + 1));
    ASSERT_EQ(documento.pagine.size(), 40U);
    int riga = 0;
    for (const Pagina& pagina : documento.pagine) {
        for (const TestoPosto& posto : pagina.testi) {
            if (!posto.testo.startsWith("Tappa"_L1)) continue;
            EXPECT_EQ(posto.testo, u"Tappa n%1x"_s.arg(++riga));
        }
    }
    EXPECT_EQ(riga, kRighePerPagina * 39 + 1);
    EXPECT_NEAR(Trova(documento.pagine[0], u"Tappa n46x"_s).base, 279.5, 0.5);
    Trova(documento.pagine[1], u"Pagina: 02"_s);
    for (const Linea& linea : documento.pagine[0].linee) EXPECT_LE(linea.y1, 280) << "no rule behind the closing one";
}

TEST(StampaCronovia, ATextIsNotCutWithinACharacter) {
    Foglio foglio(u"Prova"_s, prova::kPiede);
    const QString camper = u"\U0001F690\U0001F690"_s;
    const Carattere nove{Famiglia::Times, 9};
    for (double larghezza = 0; larghezza < foglio.Larghezza(camper, nove) + 1; larghezza += 0.5) {
        const QString tagliato = foglio.Tagliato(camper, nove, larghezza);
        EXPECT_FALSE(!tagliato.isEmpty() && tagliato.back().isHighSurrogate()) << larghezza;
    }
}

}  // namespace
}  // namespace cronovia
