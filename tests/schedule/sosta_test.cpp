#include "schedule/sosta.h"

#include <gtest/gtest.h>

#include "viaggio_di_prova.h"

namespace cronovia {
namespace {

using prova::ParametriSemplici;

constexpr NumeroGiorno kSabato(730135);

struct Caso {
    const char* nome;
    Centesimi arrivo;
    Durata sosta;
    bool fineGiorno;
    bool traghetto;
    int giorniDopo;
    Centesimi partenza;
};

class CalcolaLaSostaTest : public testing::TestWithParam<Caso> {};

TEST_P(CalcolaLaSostaTest, TakesTheClockToItsEnd) {
    const Caso& caso = GetParam();
    Orologio inizio;
    inizio.data = kSabato;
    inizio.ora = caso.arrivo;
    const EsitoSosta esito =
        CalcolaLaSosta({caso.sosta, caso.fineGiorno, caso.traghetto, 1}, Aggiorna(ParametriSemplici()), inizio);
    EXPECT_EQ(esito.orologio.data - kSabato, caso.giorniDopo);
    EXPECT_EQ(esito.orologio.ora.Valore(), caso.partenza.Valore());
}

// Visits from 9 to 18, a visiting day has nine hours; lunch 12 to 13, dinner 19 to 20.
INSTANTIATE_TEST_SUITE_P(
    Soste, CalcolaLaSostaTest,
    testing::Values(Caso{"waits for the visiting hours", 800_cent, {0, 1, 0}, false, false, 0, 1000_cent},
                    Caso{"after them, the next day", 1830_cent, {0, 1, 0}, false, false, 1, 1000_cent},
                    Caso{"goes on the next day", 1700_cent, {0, 3, 0}, false, false, 1, 1100_cent},
                    Caso{"used up at their end: breakfast", 1600_cent, {0, 2, 0}, false, false, 1, 800_cent},
                    Caso{"a minute short of their end", 1599_cent, {0, 2, 0}, false, false, 1, 800_cent},
                    Caso{"a whole visiting day", 1400_cent, {1, 0, 0}, false, false, 1, 1400_cent},
                    Caso{"three visiting days", 900_cent, {3, 0, 0}, false, false, 3, 800_cent},
                    Caso{"ends within lunch", 1000_cent, {0, 2, 30}, false, false, 0, 1300_cent},
                    Caso{"ends the day", 1000_cent, {0, 1, 0}, true, false, 1, 800_cent},
                    Caso{"ferry without stop", 1000_cent, {}, false, true, 0, 1200_cent},
                    Caso{"ferry that ends the day", 1000_cent, {}, true, true, 1, 800_cent},
                    Caso{"mark alone does nothing", 1000_cent, {}, true, false, 0, 1000_cent}),
    [](const auto& parametro) {
        std::string nome = parametro.param.nome;
        for (char& c : nome) {
            if (std::isalnum(static_cast<unsigned char>(c)) == 0) c = '_';
        }
        return nome;
    });

TEST(CalcolaLaSosta, TellsWhyAndKeepsTheMealFlags) {
    const ParametriConvertiti convertiti = Aggiorna(ParametriSemplici());
    Orologio inizio;
    inizio.data = kSabato;
    inizio.ora = 1400_cent;
    inizio.pranzoFatto = true;
    EXPECT_EQ(CalcolaLaSosta({{0, 1, 0}, false, false, 1}, convertiti, inizio).motivo, Motivo::Visita);
    EXPECT_EQ(CalcolaLaSosta({{0, 1, 0}, true, true, 1}, convertiti, inizio).motivo, Motivo::TraghettoVisita);
    const EsitoSosta esito = CalcolaLaSosta({{0, 1, 0}, true, false, 1}, convertiti, inizio);
    EXPECT_EQ(esito.motivo, Motivo::VisitaFineGiorno);
    EXPECT_TRUE(esito.orologio.pranzoFatto) << "an end of day leaves the meals as they are";
    inizio.ora = 1830_cent;
    EXPECT_FALSE(CalcolaLaSosta({{0, 1, 0}, false, false, 1}, convertiti, inizio).orologio.pranzoFatto);
}

TEST(CalcolaLaSosta, CountsTheScaledStopWithItsFerryAsARest) {
    const ParametriConvertiti convertiti = Aggiorna(ParametriSemplici());
    Orologio inizio;
    inizio.data = kSabato;
    inizio.ultimoRiposo = kSabato + -5;
    inizio.ora = 900_cent;
    const auto riposo = [&](const RichiestaSosta& richiesta) {
        return CalcolaLaSosta(richiesta, convertiti, inizio).orologio.ultimoRiposo;
    };
    EXPECT_EQ(riposo({{1, 0, 0}, false, false, 1}), kSabato + 1);
    EXPECT_EQ(riposo({{1, 0, 0}, false, false, 0.5F}), kSabato + -5);
    EXPECT_EQ(riposo({{0, 7, 0}, false, true, 1}), kSabato + 1) << "seven hours and two of ferry are a visiting day";
}

}  // namespace
}  // namespace cronovia
