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
    for (RigaGriglia& riga : vuota.righe) riga[Colonna::Tappa] = u"  "_s;
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

TEST(StampaCronovia, TheHeaderRepeatsAllThatTheTripWasComputedWith) {
    const Stampato documento = Stampa(Viaggio(1));
    QStringList testi;
    for (const TestoPosto& posto : documento.pagine.front().testi) {
        if (posto.base < kPrimaRiga) testi += posto.testo;
    }
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

TEST(StampaCronovia, WideTextsTouchNothing) {
    DatiStampa dati = Viaggio(0);
    const QString largo(30, u'W');
    dati.meta.localita = largo;
    dati.meta.nazione = QString(18, u'W');
    dati.totali.km.fill(u"9.999.999"_s);
    dati.totali.tempo.fill(u"99:23:59"_s);
    dati.fine = {u"31"_s, u"12"_s, u"2099"_s, u"23"_s, u"59"_s, u"Mer"_s, u"36500"_s};
    RigaGriglia riga = Riga(largo, {}, u"Pranzo + Riposo 15''"_s);
    riga[Colonna::Numero] = u"9999"_s;
    riga[Colonna::LimiteRitorno] = u">15/07-11:55"_s;
    dati.righe = {riga, riga, riga, riga};
    for (std::size_t i = 1; const auto& strada : {u"A22/A13/SS12bis"_s, largo, u"A1"_s}) {
        dati.righe[i++][Colonna::NumeroStrada] = strada;
    }
    dati.righe[3][Colonna::Note] = largo;
    const Pagina pagina = Stampa(dati).pagine.front();
    Trova(pagina, dati.meta.nazione);
    Trova(pagina, u"dopo 36500 giorni e 9.999.999 Km."_s);
    NienteSiTocca(pagina);  // the notes and the mark of the limit among the rest
    for (const Pagina& esempio : Stampa(prova::CapoNord()).pagine) NienteSiTocca(esempio);
    EXPECT_LT(Trova(pagina, u"A22/A13/SS12bis"_s).carattere.dimensione, 8);
    std::vector<double> localita;
    for (const TestoPosto& posto : pagina.testi) {
        if (posto.x == 11 && posto.testo.startsWith("WW"_L1)) localita.push_back(posto.larghezza);
    }
    ASSERT_EQ(localita.size(), 4U);
    EXPECT_NEAR(localita[0], 60, 2);
    EXPECT_NEAR(localita[3], 60, 2) << "a narrow road number is not in the way";
    const auto base = [&](const QString& testo) { return Trova(pagina, testo).base; };
    EXPECT_DOUBLE_EQ(base(u"Pr/km"_s), base(u"Motivo/Note"_s));
    EXPECT_DOUBLE_EQ(base(dati.meta.nazione), base(u"Pagina: 01"_s));
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
        const QRectF casella(193, 50, 4, 5);
        EXPECT_EQ(pagina.riquadri.back().area == casella, !caso.codice.isEmpty());
        if (caso.codice.isEmpty()) continue;
        const auto lettere = std::find_if(pagina.testi.begin(), pagina.testi.end(), [](const TestoPosto& posto) {
            return posto.carattere.famiglia == Famiglia::ArialNarrow;
        });
        ASSERT_NE(lettere, pagina.testi.end());
        EXPECT_EQ(lettere->testo, caso.codice);
        EXPECT_TRUE(casella.contains(prova::Corpo(*lettere)));
    }

    // A place before a stop stands out.
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
    dati.righe = {riga, Riga(u"OSTIA"_s, u"00:01:30"_s)};
    dati.righe[1][Colonna::Guida] = u"00:02:00"_s;
    const Pagina pagina = Stampa(dati).pagine.front();
    Trova(pagina, u"* 01:15"_s);
    Trova(pagina, u"00:01:30"_s);
    Trova(pagina, u"05/06"_s);
    EXPECT_EQ(Trova(pagina, u">"_s).x, 175);
    EXPECT_EQ(Trova(pagina, u"15/07"_s).x, 178);
    EXPECT_EQ(Trova(pagina, u"11:55"_s).x, 186);
}

}  // namespace
}  // namespace cronovia
