// SPDX-License-Identifier: GPL-3.0-or-later
// The map: what is where on the picture, and what a click there means.
#include <gtest/gtest.h>

#include <QContextMenuEvent>
#include <QDialogButtonBox>
#include <QHelpEvent>
#include <QImage>
#include <QMenu>
#include <QSignalSpy>
#include <QTest>
#include <QToolTip>
#include <QWheelEvent>

#include "cli/programma.h"
#include "places/confermate.h"
#include "support/parole.h"
#include "ui/finestra.h"
#include "ui/mappa/vista_mappa.h"

namespace cronovia {
namespace {

using namespace Qt::StringLiterals;

const Posizione kLivorno{43.55, 10.31};
const Posizione kOlbia{40.92, 9.50};
const Posizione kNuoro{40.32, 9.33};
const Posizione kMareAperto{42.3, 10.0};

// Livorno to Olbia by ferry on the first day, to Nuoro on the second; the way there is not sure.
MappaViaggio MappaDiProva() {
    MappaViaggio mappa;
    mappa.luoghi = {{1, u"LIVORNO"_s, Proietta(kLivorno), FontePosizione::Repertorio, false, false, 0},
                    {2, u"OLBIA"_s, Proietta(kOlbia), FontePosizione::Confermata, true, true, 0},
                    {3, u"NUORO"_s, Proietta(kNuoro), FontePosizione::Interpolata, true, false, 1}};
    mappa.tratte = {{2, 0, true, mappa.luoghi[0].dove, mappa.luoghi[1].dove},
                    {3, 1, false, mappa.luoghi[1].dove, mappa.luoghi[2].dove}};
    return mappa;
}

class Mappa : public testing::Test {
  protected:
    void SetUp() override {
        vista_.MostraCoste(LeggiCoste(QStringLiteral(CRONOVIA_PLACES "/coste.dat")));
        vista_.resize(600, 600);
        vista_.Mostra(MappaDiProva(), true);
        vista_.show();
        ASSERT_TRUE(QTest::qWaitForWindowExposed(&vista_));
    }
    QPointF Dove(const Posizione& posizione) const { return vista_.Vista().Pixel(Proietta(posizione)); }
    QColor Colore(const QPointF& punto) { return vista_.grab().toImage().pixelColor(punto.toPoint()); }
    // How many of the points of a way have a colour that is nearly that one.
    int Coperti(const Posizione& da, const Posizione& a, const QColor& colore) {
        const QImage immagine = vista_.grab().toImage();
        int quanti = 0;
        for (int i = 1; i < 100; ++i) {
            const QPointF qui = Dove(da) + (Dove(a) - Dove(da)) * i / 100;
            const QColor c = immagine.pixelColor(qui.toPoint());
            const int scarto = std::abs(c.red() - colore.red()) + std::abs(c.green() - colore.green()) +
                               std::abs(c.blue() - colore.blue());
            quanti += scarto < 60 ? 1 : 0;
        }
        return quanti;
    }

    VistaMappa vista_;
    ColoriMappa colori_ = ColoriDellaFinestra(vista_.palette());
};

TEST_F(Mappa, ShowsLandSeaAndTheWayByDays) {
    EXPECT_EQ(Colore(Dove(kMareAperto)), colori_.mare);
    EXPECT_EQ(Colore(Dove({43.3, 11.6})), colori_.terra) << "Tuscany";
    EXPECT_EQ(Colore(Dove({42.2, 9.1})), colori_.terra) << "Corsica";
    EXPECT_GT(Coperti(kOlbia, kNuoro, colori_.vie[1]), 45) << "driven: a whole line";
    const int traghetto = Coperti(kLivorno, kOlbia, colori_.vie[0]);
    EXPECT_TRUE(traghetto > 25 && traghetto < 70) << traghetto << ": a ferry's line is dashed";
    EXPECT_EQ(Colore(Dove(kNuoro)), colori_.terra) << "a place that is a guess is hollow";
    EXPECT_EQ(Colore(Dove(kLivorno)), colori_.testo);
    EXPECT_EQ(Colore(Dove(kOlbia) + QPointF(-3, 2)), colori_.notte) << "the moon of the night";
    QPalette scura = vista_.palette();
    scura.setColor(QPalette::Base, QColor(0x20, 0x20, 0x20));
    vista_.setPalette(scura);
    EXPECT_LT(Colore(Dove({43.3, 11.6})).lightness(), 100) << "a dark map in a dark window";
}

TEST_F(Mappa, IsMovedAndAnswersToClicks) {
    QSignalSpy scelte(&vista_, &VistaMappa::RigaScelta);
    QTest::mouseClick(&vista_, Qt::LeftButton, {}, Dove(kOlbia).toPoint() + QPoint(3, 2));
    QTest::mouseClick(&vista_, Qt::LeftButton, {}, Dove(kMareAperto).toPoint());
    ASSERT_EQ(scelte.size(), 1);
    EXPECT_EQ(scelte[0][0].toInt(), 2);
    // The point under the mouse stays there while the wheel turns; dragging takes it along, and chooses nothing.
    const QPointF mouse = Dove(kNuoro);
    QWheelEvent rotella(mouse, vista_.mapToGlobal(mouse), {}, {0, 240}, Qt::NoButton, Qt::NoModifier, Qt::NoScrollPhase,
                        false);
    const double prima = vista_.Vista().scala;
    QApplication::sendEvent(&vista_, &rotella);
    EXPECT_GT(vista_.Vista().scala, prima * 1.5);
    EXPECT_LT(QLineF(Dove(kNuoro), mouse).length(), 0.01);
    QTest::mousePress(&vista_, Qt::LeftButton, {}, mouse.toPoint());
    for (const int passo : {10, 25, 40}) QTest::mouseMove(&vista_, mouse.toPoint() + QPoint(passo, 0));
    QTest::mouseRelease(&vista_, Qt::LeftButton, {}, mouse.toPoint() + QPoint(40, 0));
    EXPECT_NEAR(Dove(kNuoro).x(), mouse.x() + 40, 1);
    EXPECT_EQ(scelte.size(), 1);
    // Keys: the day alone, the whole again; a row out of view is brought into it.
    vista_.Segna(3, 1);
    QTest::keyClick(&vista_, Qt::Key_G);
    EXPECT_FALSE(vista_.Vista().Visto().Contiene(Proietta(kLivorno)));
    vista_.Segna(1, 0);
    EXPECT_TRUE(vista_.Vista().Visto().Contiene(Proietta(kLivorno)));
    QTest::keyClick(&vista_, Qt::Key_0);
    for (const Posizione& posizione : {kLivorno, kOlbia, kNuoro}) {
        EXPECT_TRUE(vista_.Vista().Visto().Contiene(Proietta(posizione)));
    }
    // Arrows go to where they point, by as much; nearer and farther stay about the middle and within limits.
    const QPointF mezzo(300, 300);
    const Posizione centro = vista_.PosizioneIn(mezzo);
    for (const auto& [tasto, passo] : {std::pair{Qt::Key_Left, QPointF(60, 0)},
                                       {Qt::Key_Up, {60, 60}},
                                       {Qt::Key_Right, {0, 60}},
                                       {Qt::Key_Down, {0, 0}}}) {
        QTest::keyClick(&vista_, tasto);
        EXPECT_LT(QLineF(Dove(centro), mezzo + passo).length(), 0.01) << tasto;
    }
    const double scala = vista_.Vista().scala;
    QTest::keyClick(&vista_, Qt::Key_Plus);
    EXPECT_NEAR(vista_.Vista().scala, scala * 1.3, 1e-6);
    QTest::keyClick(&vista_, Qt::Key_Minus);
    EXPECT_NEAR(vista_.Vista().scala, scala, 1e-6);
    EXPECT_LT(QLineF(Dove(centro), mezzo).length(), 0.01);
    vista_.Ingrandisci(1e9);
    EXPECT_LE(vista_.Vista().scala, 1000);
    vista_.Ingrandisci(1e-9);
    EXPECT_GE(vista_.Vista().scala, 0.01);
    EXPECT_LT(DistanzaKm(vista_.PosizioneIn(mezzo), centro), 1);
    // Once it was moved, it stays as it is in a window of another size; the whole journey fits itself into it.
    vista_.Mostra(MappaDiProva(), false);
    EXPECT_NEAR(vista_.Vista().scala, 0.02, 1e-6);
    QTest::keyClick(&vista_, Qt::Key_Home);
    vista_.resize(300, 300);
    EXPECT_NEAR(vista_.Vista().scala, scala * (300 - 2 * 30) / (600 - 2 * 30), scala / 100);
    const Posizione qui = vista_.PosizioneIn(Dove(kMareAperto));
    EXPECT_LT(DistanzaKm(qui, kMareAperto), 0.1);
}

// Of two places the nearer one is meant, and told in words.
TEST_F(Mappa, SaysWhatLiesThere) {
    const QPointF fra = Dove(kOlbia) + (Dove(kNuoro) - Dove(kOlbia)) * 0.05;
    ASSERT_NE(vista_.LuogoIn(fra), nullptr);
    EXPECT_EQ(vista_.LuogoIn(fra)->nome, u"OLBIA"_s);
    EXPECT_EQ(vista_.LuogoIn(Dove(kMareAperto)), nullptr);
    const std::pair<Posizione, QString> casi[] = {{kLivorno, u"1. LIVORNO · giorno 1"_s},
                                                  {kOlbia, u"2. OLBIA · giorno 1 · notte"_s},
                                                  {kNuoro, u"3. NUORO · giorno 2 · posizione stimata"_s}};
    for (const auto& [posizione, atteso] : casi) {
        const QPoint punto = Dove(posizione).toPoint();
        QHelpEvent chiede(QEvent::ToolTip, punto, vista_.mapToGlobal(punto));
        QApplication::sendEvent(&vista_, &chiede);
        EXPECT_EQ(prova::ComeSiLegge(QToolTip::text()), atteso);
    }
}

class MappaNellaFinestra : public prova::FinestraTest {
  protected:
    VistaMappa& Vista() { return Trova<VistaMappa>(u"mappa"_s); }
    // Entries of the menu that comes up there, one of which is chosen.
    QString Menu(const QPointF& dove, const QString& scelta) {
        QStringList voci;
        QTimer::singleShot(0, form_.get(), [&] {
            auto* menu = qobject_cast<QMenu*>(QApplication::activePopupWidget());
            ASSERT_NE(menu, nullptr);
            for (QAction* voce : menu->actions()) {
                voci += voce->text();
                if (voce->text() == scelta) menu->setActiveAction(voce);
            }
            QTest::keyClick(menu, menu->activeAction() != nullptr ? Qt::Key_Return : Qt::Key_Escape);
        });
        QContextMenuEvent evento(QContextMenuEvent::Mouse, dove.toPoint(), Vista().mapToGlobal(dove.toPoint()));
        QApplication::sendEvent(&Vista(), &evento);
        QCoreApplication::processEvents();
        return voci.join(u'|');
    }
    QPointF Dove(const Posizione& posizione) { return Vista().Vista().Pixel(Proietta(posizione)); }
};

TEST_F(MappaNellaFinestra, IsToldWhereAPlaceLies) {
    const auto esegui = [this](QStringList parole) {
        return prova::Programma::EseguiNudo(QStringList{u"--cartella"_s, cartella_.Path()} + parole).uscita.trimmed();
    };
    const QString codice = esegui({u"nuova"_s, u"GITA"_s, u"ITALIA"_s, u"--inizio"_s, u"5/6/2027 8:00"_s});
    for (const QString& tappa : {u"PISA"_s, u"XQWYK"_s}) {
        esegui({u"tappe"_s, codice, u"--aggiungi"_s, u"tappa="_s + tappa, u"km=20"_s});
    }
    Apri();
    Tasto(Qt::CTRL | Qt::Key_M);
    Trova<QTableView>(u"mfgTab"_s).setFocus();
    Tasto(Qt::Key_Down);
    ASSERT_EQ(Vista().RigaSegnata(), 2);
    const auto confermata = [&] {
        Archive archivio = Archive::Open(cartella_.Path());
        return PosizioniConfermate(archivio).Di(u"XQWYK"_s);
    };
    const QPointF punto(30, 40);
    EXPECT_EQ(Menu(punto, u"niente"_s), u"Metti qui XQWYK|Scrivi le coordinate di XQWYK…"_s);
    EXPECT_FALSE(confermata());
    const Posizione qui = Vista().PosizioneIn(punto);
    Menu(punto, u"Metti qui XQWYK"_s);
    ASSERT_TRUE(confermata());
    EXPECT_LT(DistanzaKm(*confermata(), qui), 0.1);
    EXPECT_EQ(Menu(Dove(qui), {}), u"Scrivi le coordinate di XQWYK…|Dimentica dove ho messo XQWYK"_s);
    // Typed: what is none cannot be accepted, and called off it stays as it was.
    for (const auto& [scritte, accettate] : {std::pair{u"43.7, 91 N"_s, false}, {u"43,7 N 11,2 E"_s, true}}) {
        Attendi({Attesa::Che::Altro, u"coordinates"_s, {}, {}, accettate ? u"ok"_s : QString()});
        Intanto([scritte = scritte, accettate = accettate] {
            const QWidget* dialogo = QApplication::activeModalWidget();
            dialogo->findChild<QLineEdit*>(u"txtCoordinate"_s)->setText(scritte);
            const auto* ok = dialogo->findChild<QDialogButtonBox*>()->button(QDialogButtonBox::Ok);
            EXPECT_EQ(ok->isEnabled(), accettate) << scritte.toStdString();
        });
        Menu(Dove(*confermata()), u"Scrivi le coordinate di XQWYK…"_s);
        EXPECT_EQ(DistanzaKm(*confermata(), {43.7, 11.2}) < 0.1, accettate);
    }
    TuttoVenuto();
    Menu(Dove(*confermata()), u"Dimentica dove ho messo XQWYK"_s);
    EXPECT_FALSE(confermata());
}

TEST(MappaPiana, LeadsThereAndBackAndKeepsDistances) {
    for (const Posizione& p :
         {Posizione{36.7, 15.1}, {71.17, 25.78}, {38.7, -9.1}, {41, 29}, {64.1, -21.9}, {-33, 151}}) {
        EXPECT_LT(DistanzaKm(Ricava(Proietta(p)), p), 0.01);
        const Posizione vicina{p.latitudine + 0.1, p.longitudine + 0.1};
        if (p.latitudine < 0) continue;
        const PuntoMappa a = Proietta(p);
        const PuntoMappa b = Proietta(vicina);
        EXPECT_NEAR(std::hypot(b.x - a.x, b.y - a.y) / DistanzaKm(p, vicina), 1, 0.07) << p.latitudine;
    }
}

TEST(NomiSullaMappa, DoNotCoverEachOtherAndAreNotCut) {
    MappaViaggio mappa;
    for (int i = 0; i < 400; ++i) {
        const Posizione dove{44 + (i % 20) * 0.11, 8 + (i / 20) * 0.13};
        mappa.luoghi.push_back({i + 1, u"LOCALITÀ %1"_s.arg(i), Proietta(dove), FontePosizione::Repertorio, i % 3 == 0,
                                i % 25 == 0, i / 25});
    }
    const Inquadratura vista = Adattata(*mappa.Riquadro(), {800, 600}, 30);
    const QRectF davanti(150, 100, 500, 400);
    const std::vector<NomeSullaMappa> nomi = NomiChiEntrano(mappa, vista, Misura(QFont()), davanti);
    ASSERT_GT(nomi.size(), 20U);
    for (std::size_t i = 0; i < nomi.size(); ++i) {
        EXPECT_EQ(nomi[i].posto.intersects(davanti), davanti.contains(nomi[i].posto)) << nomi[i].testo.toStdString();
        for (std::size_t j = 0; j < i; ++j) EXPECT_FALSE(nomi[i].posto.intersects(nomi[j].posto));
    }
    EXPECT_EQ(nomi.front().testo, u"1 · LOCALITÀ 0"_s) << "the departure comes first";
}

}  // namespace
}  // namespace cronovia
