// SPDX-License-Identifier: GPL-3.0-or-later
// The map: what is where on the picture, and what a click there means.
#include <gtest/gtest.h>

#include <QImage>
#include <QSignalSpy>
#include <QTest>
#include <QWheelEvent>

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
    ColoriMappa colori_{vista_.palette()};
};

TEST_F(Mappa, ShowsLandSeaAndTheWayByDays) {
    EXPECT_EQ(Colore(Dove(kMareAperto)), colori_.mare);
    EXPECT_EQ(Colore(Dove({43.3, 11.6})), colori_.terra) << "Tuscany";
    EXPECT_EQ(Colore(Dove({42.2, 9.1})), colori_.terra) << "Corsica";
    EXPECT_GT(Coperti(kOlbia, kNuoro, colori_.vie[1]), 45) << "driven: a whole line";
    const int traghetto = Coperti(kLivorno, kOlbia, colori_.vie[0]);
    EXPECT_TRUE(traghetto > 30 && traghetto < 80) << traghetto << ": a ferry's line is dashed";
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
    const Posizione qui = vista_.PosizioneIn(Dove(kMareAperto));
    EXPECT_LT(DistanzaKm(qui, kMareAperto), 0.1);
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

TEST(NomiSullaMappa, DoNotCoverEachOther) {
    MappaViaggio mappa;
    for (int i = 0; i < 400; ++i) {
        const Posizione dove{44 + (i % 20) * 0.11, 8 + (i / 20) * 0.13};
        mappa.luoghi.push_back({i + 1, u"LOCALITÀ %1"_s.arg(i), Proietta(dove), FontePosizione::Repertorio, i % 3 == 0,
                                i % 25 == 0, i / 25});
    }
    const Inquadratura vista = Adattata(*mappa.Riquadro(), {800, 600}, 30);
    const std::vector<NomeSullaMappa> nomi = NomiChiEntrano(mappa, vista, QFont());
    ASSERT_GT(nomi.size(), 20U);
    for (std::size_t i = 0; i < nomi.size(); ++i) {
        for (std::size_t j = 0; j < i; ++j) EXPECT_FALSE(nomi[i].posto.intersects(nomi[j].posto));
    }
    EXPECT_EQ(nomi.front().testo, u"1 · LOCALITÀ 0"_s) << "the departure comes first";
}

}  // namespace
}  // namespace cronovia
