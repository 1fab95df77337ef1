#include "schedule/sosta.h"

#include <gtest/gtest.h>

#include "viaggio_di_prova.h"

namespace cronovia {
namespace {

constexpr NumeroGiorno kSabato(730135);

// A stop that begins on Saturday; visits from 9 to 18, a visiting day has nine hours; lunch 12 to 13, dinner 19 to 20.
EsitoSosta Sosta(Centesimi arrivo, const RichiestaSosta& richiesta) {
    Orologio inizio;
    inizio.data = kSabato;
    inizio.ora = arrivo;
    inizio.pranzoFatto = arrivo > 1300_cent;
    inizio.ultimoRiposo = kSabato + -5;
    return CalcolaLaSosta(richiesta, OrarioCorretto(prova::ParametriSemplici()), inizio);
}

TEST(CalcolaLaSosta, TakesTheClockToItsEnd) {
    struct Caso {
        const char* nome;
        Centesimi arrivo;
        RichiestaSosta richiesta;
        int giorniDopo;
        Centesimi partenza;
    };
    for (const Caso& caso : {
             Caso{"waits for the visiting hours", 800_cent, {{0, 1, 0}}, 0, 1000_cent},
             Caso{"after them, the next day", 1830_cent, {{0, 1, 0}}, 1, 1000_cent},
             Caso{"a minute short of their end: breakfast", 1599_cent, {{0, 2, 0}}, 1, 800_cent},
             Caso{"a whole visiting day", 1400_cent, {{1, 0, 0}}, 1, 1400_cent},
             Caso{"three visiting days", 900_cent, {{3, 0, 0}}, 3, 800_cent},
             Caso{"ends within lunch", 1000_cent, {{0, 2, 30}}, 0, 1300_cent},
             Caso{"ends the day", 1000_cent, {{0, 1, 0}, true}, 1, 800_cent},
             Caso{"ferry without stop", 1000_cent, {{}, false, true}, 0, 1200_cent},
             Caso{"ferry that ends the day", 1000_cent, {{}, true, true}, 1, 800_cent},
             Caso{"mark alone does nothing", 1000_cent, {{}, true}, 0, 1000_cent},
         }) {
        const Orologio orologio = Sosta(caso.arrivo, caso.richiesta).orologio;
        EXPECT_EQ(orologio.data - kSabato, caso.giorniDopo) << caso.nome;
        EXPECT_EQ(orologio.ora.Valore(), caso.partenza.Valore()) << caso.nome;
    }
}

TEST(CalcolaLaSosta, AnEndOfDayLeavesTheMealsAsTheyAre) {
    EXPECT_TRUE(Sosta(1400_cent, {{0, 1, 0}, true}).orologio.pranzoFatto);
    EXPECT_FALSE(Sosta(1830_cent, {{0, 1, 0}}).orologio.pranzoFatto);
}

TEST(CalcolaLaSosta, CountsTheScaledStopWithItsFerryAsARest) {
    EXPECT_EQ(Sosta(900_cent, {{1, 0, 0}}).orologio.ultimoRiposo, kSabato + 1);
    EXPECT_EQ(Sosta(900_cent, {{1, 0, 0}, false, false, 0.5F}).orologio.ultimoRiposo, kSabato + -5);
    // Seven hours and two of ferry are a visiting day.
    EXPECT_EQ(Sosta(900_cent, {{0, 7, 0}, false, true}).orologio.ultimoRiposo, kSabato + 1);
}

}  // namespace
}  // namespace cronovia
