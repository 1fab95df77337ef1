#include "schedule/tabella_calcolo.h"

#include <gtest/gtest.h>

#include <array>
#include <tuple>

#include "store/archive.h"
#include "support/prova.h"
#include "viaggio_di_prova.h"

namespace cronovia {
namespace {

using namespace Qt::StringLiterals;

class TabellaCalcoloTest : public testing::Test {
  protected:
    void Voce(const QString& localita, const QString& tempo) {
        archive_.Insert(Tabella::GuidaCitta, std::array<QString, 5>{localita, u"01"_s, u"Duomo"_s, tempo, u"0"_s});
    }

    TabellaCalcolo Prepara(const std::vector<Tappa>& tappe, CalcoloSoste calcolo) {
        ParametriViaggio parametri = prova::ParametriSemplici();
        parametri.calcoloSoste = calcolo;
        LettoreGuida guida(archive_);
        Progress progress;
        return PreparaTabellaPerCalcoloCronovia(tappe, OrarioCorretto(parametri), guida, progress);
    }

    prova::CartellaDiProva cartella_;
    Archive archive_ = Archive::Open(cartella_.Percorso());
};

Tappa Fermata(const QString& localita, Durata sosta, bool fineGiorno = false) {
    return {localita, {}, 10, TipoStrada::Autostrada, sosta, fineGiorno, {}};
}

TEST_F(TabellaCalcoloTest, AppliesEachPolicy) {
    using enum CalcoloSoste;
    Voce(u"GUIDA 1"_s, u"01:00"_s);
    Voce(u"GUIDA 2"_s, u"02:00"_s);
    // Hours of the itinerary and of the guide that stay, and the day's end.
    const auto resta = [&](CalcoloSoste calcolo, int itinerario, int guida) {
        const Tappa tappa = Fermata(u"GUIDA %1"_s.arg(guida), {0, itinerario, 0}, true);
        const RigaCalcolo riga = Prepara({tappa}, calcolo).righe.at(0);
        EXPECT_EQ(riga.sosta, (Durata{0, riga.sostaItinerario.ore + riga.sostaGuida.ore, 0}));
        return std::tuple(riga.sostaItinerario.ore, riga.sostaGuida.ore, riga.fineGiorno);
    };
    EXPECT_EQ(resta(SosteItinerario, 1, 2), std::tuple(1, 0, true));
    EXPECT_EQ(resta(SosteGuida, 1, 2), std::tuple(0, 2, false));
    EXPECT_EQ(resta(SostaMaggiore, 1, 1), std::tuple(1, 0, true));
    EXPECT_EQ(resta(SostaMaggiore, 1, 2), std::tuple(0, 2, true));
    EXPECT_EQ(resta(SostaMaggiore, 2, 1), std::tuple(2, 0, true));
    EXPECT_EQ(resta(SostaMinore, 1, 2), std::tuple(1, 0, true));
    EXPECT_EQ(resta(SostaMinore, 2, 1), std::tuple(0, 1, true));
    EXPECT_EQ(resta(SostaMinore, 3, 0), std::tuple(3, 0, true));
    EXPECT_EQ(resta(SostaMinore, 0, 2), std::tuple(0, 0, true));
    EXPECT_EQ(resta(NessunaSosta, 1, 2), std::tuple(0, 0, false));
    EXPECT_EQ(resta(NessunaSosta, 0, 0), std::tuple(0, 0, true)) << "neither stop: every policy keeps the day's end";
}

TEST_F(TabellaCalcoloTest, GivesGuideTimesOnceAndKnowsTheTotal) {
    Voce(u"ROMA"_s, u"02:00"_s);
    Voce(u"Roma"_s, u"00:30"_s);
    Voce(u"SANT'ANNA"_s, u"01:00"_s);
    const TabellaCalcolo tabella = Prepara({Fermata(u"ROMA"_s, {0, 1, 0}), Fermata(u"SANT?ANNA"_s, {}),
                                            Fermata(u"ROMA"_s, {1, 0, 0}), Fermata(u""_s, {5, 0, 0})},
                                           CalcoloSoste::SostaMaggiore);
    ASSERT_EQ(tabella.righe.size(), 3U) << "a row without locality is no stage";
    EXPECT_EQ(tabella.righe[0].tappa.guida, (Durata{0, 2, 30}));
    EXPECT_EQ(tabella.righe[1].tappa.guida, (Durata{0, 1, 0}));
    EXPECT_EQ(tabella.righe[2].tappa.guida, Durata());
    EXPECT_EQ(tabella.righe[2].voci->size(), 2U) << "its entries are listed all the same";
    EXPECT_EQ(tabella.totaleSoste, 1250_cent) << "2:30, 1:00 and one visiting day of nine hours";
}

}  // namespace
}  // namespace cronovia
