// The pages of a schedule.
#include "print/stampa_cronovia.h"

#include <gmock/gmock.h>

#include "stampa.h"

namespace cronovia {
namespace {

using namespace Qt::StringLiterals;
using prova::kPrimaRiga;
using prova::Riga;
using prova::Stampa;
using prova::Trova;
using prova::Viaggio;

constexpr int kRighePerPagina = 46;

void NienteSiTocca(const Pagina& pagina) {
    for (auto posto = pagina.testi.begin(); posto != pagina.testi.end(); ++posto) {
        EXPECT_GT(posto->x, kSinistraCronovia) << posto->testo.toStdString();
        EXPECT_LT(posto->x + posto->larghezza, 197) << posto->testo.toStdString();
        for (auto altro = pagina.testi.begin(); altro != posto; ++altro) {
            EXPECT_FALSE(prova::Corpo(*posto).intersects(prova::Corpo(*altro)))
                << posto->testo.toStdString() << " on " << altro->testo.toStdString();
        }
    }
}

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
    EXPECT_EQ(Trova(documento.pagine[1], u"Pagina: 02"_s).carattere, (Carattere{Famiglia::Times, 9, true, true}));
    const Pagina& ultima = documento.pagine.back();
    const TestoPosto data = Trova(ultima, u"31/01/2027"_s);
    EXPECT_EQ(data.carattere, (Carattere{Famiglia::Times, 6, false, true}));
    EXPECT_EQ(data.x, 5);
    const TestoPosto titolo = Trova(ultima, u"Cronovia"_s);
    EXPECT_NEAR(titolo.x + titolo.larghezza, 193, 0.001);
    const Linea& chiusura = ultima.linee.back();
    EXPECT_TRUE(chiusura.y1 == 55 && chiusura.y2 == 55 && chiusura.x1 == 5 && chiusura.x2 == 193);
    for (const Linea& linea : documento.pagine[0].linee) EXPECT_LE(linea.y1, 280) << "no rule behind the closing one";
}

TEST(StampaCronovia, WideTextsTouchNothing) {
    DatiStampa dati = Viaggio(0);
    const QString largo(30, u'W');
    dati.meta.localita = largo;
    dati.meta.nazione = QString(18, u'W');
    dati.totali.km.fill(u"9.999.999"_s);
    dati.totali.tempo.fill(u"99:23:59"_s);
    dati.fine = {u"31"_s, u"12"_s, u"2099"_s, u"23"_s, u"59"_s, u"Mer"_s, u"36500"_s};
    RigaStampata riga = Riga(largo, {}, u"Pranzo + Riposo 15''"_s);
    riga.testi[Colonna::Numero] = u"9999"_s;
    riga.testi[Colonna::LimiteRitorno] = u">15/07-11:55"_s;
    dati.righe = {riga, riga, riga, riga};
    for (std::size_t i = 1; const auto& strada : {u"A22/A13/SS12bis"_s, largo, u"A1"_s}) {
        dati.righe[i++].testi[Colonna::NumeroStrada] = strada;
    }
    dati.righe[3].testi[Colonna::Note] = largo;
    const Pagina pagina = Stampa(dati).pagine.front();
    Trova(pagina, dati.meta.nazione);
    Trova(pagina, u"dopo 36500 giorni e 9.999.999 Km."_s);
    NienteSiTocca(pagina);  // the notes and the mark of the limit among the rest
    for (const Pagina& esempio : Stampa(prova::CapoNord()).pagine) NienteSiTocca(esempio);
}

}  // namespace
}  // namespace cronovia
