// SPDX-License-Identifier: GPL-3.0-or-later
// Pages as reviewed: tests/data/pagine holds what stands where on them, a line for each text, rule, box and picture, in
// millimetres. After a change they are written anew by
//     CRONOVIA_RIGENERA=1 build/dev/tests/print/print_test --gtest_filter='Pagine*'
// which fails on purpose, so that it cannot pass unnoticed; look at a PDF file before keeping them.
#include <gtest/gtest.h>

#include <map>

#include "print/stampa_giornate.h"
#include "print/stampa_guida.h"
#include "print/stampa_tutto.h"
#include "stampa.h"

namespace cronovia {
namespace {

using namespace Qt::StringLiterals;
using prova::Riga;

QString Misure(const QRectF& area) {
    QStringList numeri;
    for (const double n : {area.x(), area.y(), area.width(), area.height()}) numeri += QString::number(n, 'f', 1);
    return numeri.join(u' ').replace("-0.0"_L1, "0.0"_L1);
}

QString Stile(const Carattere& c) {
    return QString::number(c.dimensione) + (c.grassetto ? u"b"_s : QString()) + (c.corsivo ? u"i"_s : QString());
}

QString Testo(const Stampato& documento) {
    static const QStringList tratti = {u"sottile"_s, u"medio"_s, u"spesso"_s};
    const auto filetto = [](Filetto t) { return tratti[static_cast<int>(t)]; };
    QString testo = documento.titolo + u'\n';
    for (const Pagina& pagina : documento.pagine) {
        testo += u"\npagina\n"_s;
        for (const Carta& c : pagina.carte) {
            const Inquadratura& v = c.vista;
            testo += u"carta %1 giorno %2, centro %3, px/km %4\n"_s.arg(
                Misure(QRectF(c.angolo, v.area * kPixelCarta)), QString::number(c.giornata + 1),
                u"%1 %2"_s.arg(v.centro.x, 0, 'f', 0).arg(v.centro.y, 0, 'f', 0), QString::number(v.scala, 'f', 2));
        }
        for (const Riquadro& r : pagina.riquadri) {
            testo += u"riquadro %1 %2\n"_s.arg(Misure(r.area), r.sfondo ? u"sfondo"_s : filetto(r.filetto));
        }
        for (const Linea& l : pagina.linee) {
            testo += u"linea %1 %2\n"_s.arg(Misure({l.x1, l.y1, l.x2 - l.x1, l.y2 - l.y1}), filetto(l.filetto));
        }
        for (const Barra& b : pagina.barre) {
            testo += u"barra %1 %2\n"_s.arg(Misure(b.area), b.liscia ? QString() : Aspetto(b.genere).nome.toString());
        }
        for (const Immagine& i : pagina.immagini) testo += u"immagine %1 %2\n"_s.arg(Misure(i.area), i.sorgente);
        for (const TestoCollocato& t : pagina.testi) {
            testo += u"%1 %2|%3\n"_s.arg(Misure({t.x, t.base, t.larghezza, 0}).chopped(4), Stile(t.carattere), t.testo);
        }
    }
    return testo;
}

void NienteSiTocca(const Pagina& pagina) {
    for (auto testo = pagina.testi.begin(); testo != pagina.testi.end(); ++testo) {
        EXPECT_GE(testo->carattere.dimensione, kDimensioneMinima) << testo->testo.toStdString();
        EXPECT_GE(testo->x, 2) << testo->testo.toStdString();
        EXPECT_LT(testo->x + testo->larghezza, 197) << testo->testo.toStdString();
        for (auto altro = pagina.testi.begin(); altro != testo; ++altro) {
            EXPECT_FALSE(prova::Corpo(*testo).intersects(prova::Corpo(*altro)))
                << testo->testo.toStdString() << " on " << altro->testo.toStdString();
        }
    }
}

// How often a page says which one of the whole document it is.
auto Numeri(const Stampato& documento, std::size_t pagina) {
    const QString numero = u"Pagina %1 di %2"_s.arg(pagina + 1).arg(documento.pagine.size());
    const auto& testi = documento.pagine[pagina].testi;
    return std::count_if(testi.begin(), testi.end(), [&](const TestoCollocato& t) { return t.testo == numero; });
}

// Rows of every kind, and what a person can have written into them.
DatiStampa Tipi() {
    const QString largo(30, u'W');
    DatiStampa dati = prova::Viaggio(0);
    dati.meta.localita = largo;
    dati.meta.nazione = QString(18, u'W');
    dati.totali.km.fill(u"9.999.999"_s);
    dati.totali.tempo.fill(u"99:23:59"_s);
    dati.totali.traghetti = u"2"_s;
    dati.fine = {u"31"_s, u"12"_s, u"2099"_s, u"23"_s, u"59"_s, u"Mer"_s, u"36500"_s};
    using enum GenereRiga;
    dati.righe = {
        Riga(u"asti"_s),
        Riga(u"a: Bari"_s, u"*00:01:30"_s, u"Visita/f.g."_s, Sosta),
        Riga(u" > Museo"_s, u"01:30"_s, u"Interessante"_s, Guida),
        Riga(u" > Gas"_s, {}, u"Gpl"_s, Guida),
        Riga(u"verso: Aosta"_s, {}, u"Pranzo + Riposo 15''"_s),
        Riga(u"*Ostia"_s),
        Riga(u"P"_s, {}, {}, Tappa),
        Riga(u"Ps Porto"_s),
        Riga(u"a: Ps Porto"_s, u"00:00:45"_s, u"Visita"_s, Sosta),
        Riga(u"CS Porto"_s, {}, u"cm Campi"_s),
        Riga(u"  "_s, u"non stampata"_s),
        Riga(largo, {}, largo),
        Riga(largo, {}, u"Notte"_s),
        Riga(largo),
        Riga(u"ritardo 00:25"_s, {}, u"Non dopo le 15:00, in ritardo da "_s + largo, Attesa),
    };
    dati.righe.back().inRitardo = true;
    dati.traghettiAOrario = 1;
    dati.scadenza = u"A casa entro dom 11/07/2027 20:00: ritardo 02:10, da "_s + largo;
    dati.costi = u"Costi: 1.234,50 € (carburante 300,00 €, pedaggi 45,20 €, notti 125,00 €)"_s;
    for (std::size_t i : {0U, 4U, 12U}) {
        RigaGriglia& testi = dati.righe[i].testi;
        testi[Colonna::Numero] = u"9999"_s;
        testi[Colonna::NumeroStrada] = i == 12 ? largo : u"A22/A13/SS12bis"_s;
        testi[Colonna::Km] = i == 4 ? u"~999"_s : u"999"_s;
        testi[Colonna::TipoStrada] = u"A"_s;
        testi[Colonna::KmProgressivi] = u"12.345"_s;
        testi[Colonna::Tempo] = u"12:34"_s;
        testi[Colonna::GiornoSettimana] = u"Sab"_s;
        testi[Colonna::Data] = u"05/06/2027"_s;
        testi[Colonna::Ora] = i == 4 ? u"* 22:00"_s : u"11:52"_s;
        dati.righe[i].limite = {u'>', u"15/07"_s, u"11:55"_s};
    }
    for (const std::size_t i : {0U, 1U, 7U}) dati.righe[i].sostaDopo = true;
    return dati;
}

Stampato Guida(bool dettaglio) {
    DatiStampaGuida dati{{false, dettaglio}, u"LUCCA"_s, {}};
    for (int i = 1; i <= 7; ++i) {
        const QString nome = i == 7 ? u"NOME DI LOCALITA MOLTO LUNGO"_s : u"LOC%1"_s.arg(i);
        dati.localita.push_back({nome, {{i, nome, u"03"_s, u"Interessante"_s, u"Museo %1"_s.arg(i), {0, 1, i}}}});
    }
    dati.localita.back().voci.push_back({8, u"Nome"_s, u"09"_s, u"Gpl"_s, u"Museo "_s + QString(90, u'n'), {}});
    Progress progress;
    return StampaGuida(dati, prova::kPiede, progress);
}

TEST(Pagine, AreAsReviewed) {
    Progress progress;
    const std::pair<const char*, Stampato> casi[] = {
        {"tipi", prova::Stampa(Tipi())},
        {"cronovia", prova::Stampa(prova::DallArchivio(QStringLiteral(CRONOVIA_TEST_DATA "/journeys/politica_3.iei")))},
        {"giornate",
         StampaGiornate(prova::DallArchivio(QStringLiteral(CRONOVIA_TEST_DATA "/journeys/traghetto_notturno.iei")),
                        prova::kPiede, progress)},
        {"mappe", StampaLeScelte(prova::ConMappa(), prova::kPiede, {false, true}, progress)},
        {"guida-nomi", Guida(false)},
        {"guida-voci", Guida(true)}};
    for (const auto& [nome, documento] : casi) {
        const QString path = QStringLiteral(CRONOVIA_TEST_DATA "/pagine/%1.txt").arg(QString::fromLatin1(nome));
        const QString testo = Testo(documento);
        if (qEnvironmentVariableIsSet("CRONOVIA_RIGENERA")) {
            prova::ScriviFile(path, testo.toUtf8());
            ADD_FAILURE() << "written anew: " << nome;
        }
        EXPECT_EQ(QString::fromUtf8(prova::LeggiFile(path)).toStdString(), testo.toStdString()) << nome;
        for (const Pagina& pagina : documento.pagine) NienteSiTocca(pagina);
    }
    const DatiStampa lungo = prova::CapoNord();
    const Stampato giornate = StampaLeScelte(lungo, prova::kPiede, {false, true}, progress);
    const Stampato insieme = StampaLeScelte(lungo, prova::kPiede, {true, true}, progress);
    for (const Pagina& pagina : insieme.pagine) NienteSiTocca(pagina);
    ASSERT_EQ(insieme.pagine.size(), giornate.pagine.size() + prova::Stampa(lungo).pagine.size());
    EXPECT_EQ(insieme.segnalibri.front().pagina, 0U);
    EXPECT_EQ(insieme.segnalibri.at(1).pagina, giornate.pagine.size());
    EXPECT_EQ(insieme.segnalibri.back().pagina, insieme.pagine.size() - 1);
    // Maps stand between the days and the schedule; where no place is known, a sentence in their place.
    DatiStampa conMappa = prova::ConMappa();
    const Stampato tutto = StampaLeScelte(conMappa, prova::kPiede, {true, true}, progress);
    EXPECT_EQ(tutto.segnalibri.at(1).titolo, u"Mappa"_s);
    EXPECT_EQ(tutto.segnalibri.at(1).pagina, 1U);
    EXPECT_EQ(tutto.segnalibri.at(2).pagina, 3U);
    for (std::size_t i = 0; i < tutto.pagine.size(); ++i) EXPECT_EQ(Numeri(tutto, i), 1) << "page " << i;
    conMappa.mappa = std::make_shared<const MappaStampata>();
    const Stampato senza = StampaLeScelte(conMappa, prova::kPiede, {true, false}, progress);
    EXPECT_TRUE(senza.pagine.front().carte.empty());
    EXPECT_TRUE(senza.pagine.front().testi.at(3).testo.startsWith("Il viaggio non ha una mappa"_L1));
}

TEST(Pagine, TurnBehindTheLastLineOnlyAndHoldEveryRowOnce) {
    EXPECT_TRUE(prova::Stampa(prova::Viaggio(0)).pagine.empty());
    EXPECT_EQ(prova::Stampa(prova::Viaggio(46)).pagine.size(), 1U);
    constexpr int kRighe = 46 + 52 * 38 + 1;  // the first page has the larger head
    const Stampato documento = prova::Stampa(prova::Viaggio(kRighe));
    ASSERT_EQ(documento.pagine.size(), 40U);
    int riga = 0;
    for (const Pagina& pagina : documento.pagine) {
        for (const Linea& linea : pagina.linee) EXPECT_LE(linea.y1, 280) << "no rule behind the closing one";
        for (const TestoCollocato& testo : pagina.testi) {
            if (!testo.testo.startsWith("Tappa"_L1)) continue;
            EXPECT_EQ(testo.testo, u"Tappa n%1x"_s.arg(++riga));
        }
    }
    EXPECT_EQ(riga, kRighe);
    for (const auto& [localita, pagine] : {std::pair(0, 0U), {255, 1U}, {256, 2U}}) {
        DatiStampaGuida guida{{false, false}, u"LUCCA"_s, {}};
        guida.localita.resize(static_cast<std::size_t>(localita), {u"LOC"_s, {}});
        Progress progress;
        EXPECT_EQ(StampaGuida(guida, prova::kPiede, progress).pagine.size(), pagine) << localita;
    }
}

// The long example: nothing on two pages that belongs together, nothing cut, every page counted, every day named.
TEST(Pagine, KeepAStageTogetherAndCutNothing) {
    const DatiStampa dati = prova::CapoNord();
    const Stampato documento = prova::Stampa(dati);
    std::map<QString, std::size_t> pagine;  // by the number of the row
    for (std::size_t i = 0; i < documento.pagine.size(); ++i) {
        for (const TestoCollocato& testo : documento.pagine[i].testi) {
            EXPECT_FALSE(testo.testo.endsWith(u'…')) << testo.testo.toStdString();
            if (testo.x + testo.larghezza < kBordiCronovia[1] && testo.carattere.dimensione == 8) {
                EXPECT_TRUE(pagine.try_emplace(testo.testo, i).second);
            }
        }
        EXPECT_EQ(Numeri(documento, i), 1);
    }
    for (std::size_t i = 1; i < dati.righe.size(); ++i) {
        if (dati.righe[i].tappa != dati.righe[i - 1].tappa || dati.righe[i].giorno != dati.righe[i - 1].giorno)
            continue;
        EXPECT_EQ(pagine.at(QString::number(i + 1)), pagine.at(QString::number(i))) << i;
    }
    ASSERT_EQ(documento.segnalibri.size(), dati.giorni.size());
}

TEST(Pagine, ATextIsNotCutWithinACharacter) {
    Foglio foglio(u"Prova"_s, prova::kPiede);
    const QString camper = u"\U0001F690\U0001F690"_s;
    const Carattere nove{9};
    for (double larghezza = 0; larghezza < foglio.Larghezza(camper, nove) + 1; larghezza += 0.5) {
        const QString tagliato = foglio.Tagliato(camper, nove, larghezza);
        EXPECT_FALSE(!tagliato.isEmpty() && tagliato.back().isHighSurrogate()) << larghezza;
    }
}

}  // namespace
}  // namespace cronovia
