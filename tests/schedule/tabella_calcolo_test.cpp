#include "schedule/tabella_calcolo.h"

#include <gtest/gtest.h>

#include <array>

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
        return PreparaTabellaPerCalcoloCronovia(tappe, ControllaVariabiliConvertite(parametri), guida, progress);
    }

    prova::CartellaDiProva cartella_;
    Archive archive_ = Archive::Open(cartella_.Percorso());
};

Tappa Fermata(const QString& localita, Durata sosta, bool fineGiorno = false) {
    Tappa tappa;
    tappa.localita = localita;
    tappa.km = 10;
    tappa.sosta = sosta;
    tappa.fineGiorno = fineGiorno;
    return tappa;
}

TEST_F(TabellaCalcoloTest, AppliesEachPolicy) {
    struct Caso {
        CalcoloSoste calcolo;
        int itinerario;  // hours
        int guida;
        int restaItinerario;
        int restaGuida;
        bool restaFineGiorno;
    };
    using enum CalcoloSoste;
    for (const Caso& caso :
         {Caso{SosteItinerario, 1, 2, 1, 0, true}, Caso{SosteGuida, 1, 2, 0, 2, false},
          Caso{SostaMaggiore, 1, 1, 1, 0, true}, Caso{SostaMaggiore, 1, 2, 0, 2, true},
          Caso{SostaMaggiore, 2, 1, 2, 0, true}, Caso{SostaMaggiore, 2, 0, 2, 0, true},
          Caso{SostaMinore, 1, 2, 1, 0, true}, Caso{SostaMinore, 2, 1, 0, 1, true}, Caso{SostaMinore, 3, 0, 3, 0, true},
          Caso{SostaMinore, 0, 2, 0, 0, true}, Caso{NessunaSosta, 1, 2, 0, 0, false},
          // Neither stop: the day's end stays under every policy.
          Caso{SosteGuida, 0, 0, 0, 0, true}, Caso{NessunaSosta, 0, 0, 0, 0, true}}) {
        archive_.Insert(Tabella::GuidaCitta,
                        std::array<QString, 5>{u"ROMA"_s, u"01"_s, u"Foro"_s, u"0%1:00"_s.arg(caso.guida), u"0"_s});
        const RigaCalcolo riga = Prepara({Fermata(u"ROMA"_s, {0, caso.itinerario, 0}, true)}, caso.calcolo).righe.at(0);
        const auto caso_ = testing::Message()
                           << static_cast<int>(caso.calcolo) << " " << caso.itinerario << " " << caso.guida;
        EXPECT_EQ(riga.sostaItinerario, (Durata{0, caso.restaItinerario, 0})) << caso_;
        EXPECT_EQ(riga.sostaGuida, (Durata{0, caso.restaGuida, 0})) << caso_;
        EXPECT_EQ(riga.sosta, (Durata{0, caso.restaItinerario + caso.restaGuida, 0})) << caso_;
        EXPECT_EQ(riga.fineGiorno, caso.restaFineGiorno) << caso_;
        Progress progress;
        archive_.CancellaTabella(Tabella::GuidaCitta, std::nullopt, progress);
    }
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
    // 2:30, 1:00 and one visiting day of nine hours.
    EXPECT_EQ(tabella.totaleSoste, 1250_cent);
}

}  // namespace
}  // namespace cronovia
