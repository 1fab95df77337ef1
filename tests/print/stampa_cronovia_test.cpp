// The pages of a schedule.
#include "print/stampa_cronovia.h"

#include <gmock/gmock.h>

#include "stampa.h"

namespace cronovia {
namespace {

using namespace Qt::StringLiterals;
using prova::Riga;
using prova::Stampa;
using prova::Trova;
using prova::Viaggio;

constexpr double kPrimaRiga = 50;  // above it: the header
constexpr int kRighePerPagina = 46;

void NienteSiTocca(const Pagina& pagina, double alto, double basso) {
    std::vector<TestoPosto> testi;
    for (const TestoPosto& posto : pagina.testi) {
        if (posto.base > alto && posto.base < basso) testi.push_back(posto);
    }
    for (std::size_t i = 0; i < testi.size(); ++i) {
        EXPECT_GT(testi[i].x, 2) << testi[i].testo.toStdString();
        EXPECT_LT(testi[i].x + testi[i].larghezza, 197) << testi[i].testo.toStdString();
        for (std::size_t j = 0; j < i; ++j) {
            EXPECT_FALSE(prova::Corpo(testi[i]).intersects(prova::Corpo(testi[j])))
                << testi[i].testo.toStdString() << " on " << testi[j].testo.toStdString();
        }
    }
}

QStringList TestiSopra(const Pagina& pagina, double basso) {
    QStringList testi;
    for (const TestoPosto& posto : pagina.testi) {
        if (posto.base < basso) testi += posto.testo;
    }
    return testi;
}

TEST(StampaCronovia, AnEmptyGridHasNoPage) {
    EXPECT_TRUE(Stampa(Viaggio(0)).pagine.empty());
    DatiStampa vuota = Viaggio(2);
    for (RigaGriglia& riga : vuota.righe) riga[Colonna::Tappa] = u"  "_s;
    EXPECT_TRUE(Stampa(vuota).pagine.empty());
}

TEST(StampaCronovia, FortyPagesHoldEveryRowOnce) {
    EXPECT_EQ(Stampa(Viaggio(kRighePerPagina)).pagine.size(), 1U);
    const Documento documento = Stampa(Viaggio(kRighePerPagina * 39 + 1));
    ASSERT_EQ(documento.pagine.size(), 40U);
    int riga = 0;
    for (const Pagina& pagina : documento.pagine) {
        for (const TestoPosto& posto : pagina.testi) {
            if (!posto.testo.startsWith("Tappa"_L1)) continue;
            EXPECT_EQ(posto.testo, u"Tappa n%1x"_s.arg(++riga));
            EXPECT_LE(posto.base, 280);
        }
    }
    EXPECT_EQ(riga, kRighePerPagina * 39 + 1);
    EXPECT_GT(Trova(documento.pagine.front(), u"Tappa n46x"_s).base, 279);
    EXPECT_EQ(Trova(documento.pagine[1], u"Pagina: 02"_s).carattere, (Carattere{Famiglia::Times, 9, true, true}));
    Trova(documento.pagine.back(), u"31/01/2027"_s);
}

TEST(StampaCronovia, TheHeaderRepeatsAllThatTheTripWasComputedWith) {
    const QStringList testi = TestiSopra(Stampa(Viaggio(1)).pagine.front(), kPrimaRiga);
    EXPECT_EQ(testi.join(u'|'),
              u"ROMA|ITALIA|Pagina: 01|Periodo del viaggio:|Inizio:|Sab - 01/01/2000 alle ore 08:30|Fine:|"
              "Mer - 05/01/2000 alle ore 17:45|dopo 5 giorni e 1.300 Km.|"
              "Percorrenze:|Km.|Tempo|Autostrada|75 km/h|100|00:01:20|SuperStrada|65 km/h|"
              "Principale|50 km/h|1.200|01:02:00|Locale|30 km/h|Totale|1.300|01:03:20|(sono previsti 2 traghetti)|"
              "Tempi tecnici giornalieri/Riposi/Visite:|Orari attivita|Colaz.|09:00|Pranzo|12:30 (02:30)|"
              "Cena|20:00 (01:45)|Notte|22:30|Visite|Dalle 09:00 alle 18:00|Riposi|15 minuti|ogni 03 ore;|"
              "01 giorni|ogni 05 gg.|N.|Localita|N.Strada|Km|Ts|Pr/km|Tempo|Sosta|G.S.|Data|Ora|Motivo/Note|"
              "Limite ritorno"_s);
}

TEST(StampaCronovia, WideNamesAreWholeInTheHeaderAndTouchNothing) {
    DatiStampa dati = Viaggio(1);
    dati.meta.localita = QString(30, u'W');
    dati.meta.nazione = QString(18, u'W');
    dati.totali.km.fill(u"9.999.999"_s);
    dati.totali.tempo.fill(u"99:23:59"_s);
    dati.fine = {u"31"_s, u"12"_s, u"2099"_s, u"23"_s, u"59"_s, u"Mer"_s, u"36500"_s};
    const Pagina pagina = Stampa(dati).pagine.front();
    Trova(pagina, dati.meta.localita);
    Trova(pagina, dati.meta.nazione);
    Trova(pagina, u"dopo 36500 giorni e 9.999.999 Km."_s);
    NienteSiTocca(pagina, 0, kPrimaRiga);

    dati.righe = {Riga(QString(30, u'W'))};
    const TestoPosto tagliata = Stampa(dati).pagine.front().testi[TestiSopra(pagina, kPrimaRiga).size()];
    EXPECT_LT(tagliata.larghezza, 62);
    EXPECT_GT(tagliata.larghezza, 58);
}

TEST(StampaCronovia, EveryKindOfRowHasItsType) {
    const Carattere grande{Famiglia::Times, 9};
    const Carattere normale{Famiglia::Times, 8};
    const Carattere evidenza{Famiglia::Times, 8, true};
    struct Caso {
        RigaGriglia riga;
        Colonna colonna;
        Carattere carattere;
        QString codice;
    };
    using enum Colonna;
    const std::vector<Caso> casi = {
        {Riga(u"BARI"_s), Tappa, grande, {}},
        {Riga(u"verso: Roma"_s), Tappa, grande, {}},
        {Riga(u"a: Roma"_s), Tappa, evidenza, {}},
        {Riga(u" > Museo"_s), Tappa, evidenza, {}},
        {Riga(u"*Roma"_s), Tappa, evidenza, {}},
        {Riga(u"AOSTA"_s), Tappa, grande, {}},
        {Riga(u"P"_s), Tappa, grande, {}},
        {Riga(u"Ps Porto"_s), Tappa, evidenza, u"Ps"_s},
        {Riga(u"CS Porto"_s), Tappa, evidenza, u"CS"_s},
        {Riga(u"RS Porto"_s), Tappa, evidenza, u"RS"_s},
        {Riga(u"Campi"_s, {}, u"cm Campi"_s), Note, evidenza, u"cm"_s},
        {Riga(u"> Gas"_s, {}, u"Gpl"_s), Note, evidenza, u"Gp"_s},
        {Riga(u"Roma"_s, {}, u"+ Riposo 15''"_s), Note, evidenza, {}},
        {Riga(u"Roma"_s, {}, u"Visita"_s), Note, normale, {}},
    };
    for (const Caso& caso : casi) {
        SCOPED_TRACE(caso.riga[Tappa].toStdString() + caso.riga[Note].toStdString());
        DatiStampa dati = Viaggio(0);
        dati.righe = {caso.riga};
        const Pagina pagina = Stampa(dati).pagine.front();
        EXPECT_EQ(Trova(pagina, caso.riga[caso.colonna].trimmed()).carattere, caso.carattere);
        const bool conCasella = pagina.riquadri.back().area == QRectF(193, 50, 4, 5);
        EXPECT_EQ(conCasella, !caso.codice.isEmpty());
        if (!conCasella) continue;
        const auto lettere = std::find_if(pagina.testi.begin(), pagina.testi.end(), [](const TestoPosto& posto) {
            return posto.carattere.famiglia == Famiglia::ArialNarrow;
        });
        ASSERT_NE(lettere, pagina.testi.end());
        EXPECT_EQ(lettere->testo, caso.codice);
        EXPECT_TRUE(QRectF(193, 50, 4, 5).contains(prova::Corpo(*lettere)));
    }
}

TEST(StampaCronovia, APlaceBeforeAStopStandsOut) {
    DatiStampa dati = Viaggio(0);
    dati.righe = {Riga(u"BARI"_s), Riga(u"a: Roma"_s, u"*00:01:30"_s), Riga(u"PS Roma"_s),
                  Riga(u"OSTIA"_s, u"01:30"_s)};
    const Pagina pagina = Stampa(dati).pagine.front();
    EXPECT_EQ(Trova(pagina, u"BARI"_s).carattere, (Carattere{Famiglia::Arial, 9}));
    EXPECT_EQ(Trova(pagina, u"a: Roma"_s).carattere, (Carattere{Famiglia::Times, 8, true}));
    EXPECT_EQ(Trova(pagina, u"PS Roma"_s).carattere, (Carattere{Famiglia::Times, 8, true}));
    EXPECT_EQ(Trova(pagina, u"OSTIA"_s).carattere.famiglia, Famiglia::Arial) << "the last row looks at itself";
    EXPECT_FALSE(Trova(pagina, u"*00:01:30"_s).carattere.grassetto);
    EXPECT_TRUE(Trova(pagina, u"01:30"_s).carattere.grassetto);
}

TEST(StampaCronovia, SplitsTheLimitShortensTheDayAndShowsStopAndVisitWhenBothFit) {
    DatiStampa dati = Viaggio(0);
    RigaGriglia riga = Riga(u"ROMA"_s, u"*"_s);
    riga[Colonna::Guida] = u"01:15"_s;
    riga[Colonna::Data] = u"05/06/2027"_s;
    riga[Colonna::LimiteRitorno] = u">15/07-11:55"_s;
    riga[Colonna::NumeroStrada] = u"A22/A13/SS12bis"_s;
    dati.righe = {riga, Riga(u"OSTIA"_s, u"00:01:30"_s)};
    dati.righe[1][Colonna::Guida] = u"00:02:00"_s;
    const Pagina pagina = Stampa(dati).pagine.front();
    Trova(pagina, u"* 01:15"_s);
    Trova(pagina, u"00:01:30"_s);
    Trova(pagina, u"05/06"_s);
    EXPECT_EQ(Trova(pagina, u">"_s).x, 175);
    EXPECT_EQ(Trova(pagina, u"15/07"_s).x, 178);
    EXPECT_EQ(Trova(pagina, u"11:55"_s).x, 186);
    EXPECT_LT(Trova(pagina, u"A22/A13/SS12bis"_s).carattere.dimensione, 8);
}

TEST(StampaCronovia, OnThePagesOfTheLongExampleNothingTouches) {
    const DatiStampa dati = prova::CapoNord();
    const Documento documento = Stampa(dati);
    EXPECT_EQ(documento.pagine.size(), (dati.righe.size() + kRighePerPagina - 1) / kRighePerPagina);
    for (const Pagina& pagina : documento.pagine) NienteSiTocca(pagina, 0, 297);
}

}  // namespace
}  // namespace cronovia
