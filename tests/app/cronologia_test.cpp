#include "app/cronologia.h"

#include <gtest/gtest.h>

#include "support/prova.h"

namespace cronovia {
namespace {

using namespace Qt::StringLiterals;

StatoItinerario Stato(int tappe) { return {RigheItinerario(static_cast<std::size_t>(tappe)), tappe}; }

TEST(Cronologia, StepsBackAndForthByName) {
    Cronologia cronologia;
    EXPECT_EQ(cronologia.DaAnnullare(), std::nullopt);
    EXPECT_FALSE(cronologia.Annulla(Stato(0)).has_value());
    cronologia.Ricorda(u"uno"_s, Stato(0));
    cronologia.Ricorda(u"due"_s, Stato(1));

    EXPECT_EQ(cronologia.DaAnnullare(), u"due"_s);
    EXPECT_EQ(cronologia.Annulla(Stato(2))->righe.size(), 1U);
    EXPECT_EQ(cronologia.DaAnnullare(), u"uno"_s);
    EXPECT_EQ(cronologia.DaRipetere(), u"due"_s);
    EXPECT_EQ(cronologia.Annulla(Stato(1))->righe.size(), 0U);
    EXPECT_EQ(cronologia.DaAnnullare(), std::nullopt);
    EXPECT_EQ(cronologia.DaRipetere(), u"uno"_s);

    EXPECT_EQ(cronologia.Ripeti(Stato(0))->righe.size(), 1U);
    EXPECT_EQ(cronologia.Ripeti(Stato(1))->rigaCorrente, 2);
    EXPECT_FALSE(cronologia.Ripeti(Stato(2)).has_value());
}

TEST(Cronologia, ANewChangeForgetsWhatWasUndone) {
    Cronologia cronologia;
    cronologia.Ricorda(u"uno"_s, Stato(0));
    cronologia.Annulla(Stato(1));
    cronologia.Ricorda(u"altro"_s, Stato(0));
    EXPECT_EQ(cronologia.DaRipetere(), std::nullopt);
    EXPECT_EQ(cronologia.DaAnnullare(), u"altro"_s);
    cronologia.Azzera();
    EXPECT_EQ(cronologia.DaAnnullare(), std::nullopt);
}

}  // namespace
}  // namespace cronovia
