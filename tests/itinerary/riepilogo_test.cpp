// SPDX-License-Identifier: GPL-3.0-or-later
#include "itinerary/riepilogo.h"

#include <gtest/gtest.h>

#include "righe.h"

namespace cronovia {
namespace {

using namespace Qt::StringLiterals;

TEST(Riepilogo, ARoadTypeInUseWithoutASpeedIsNamed) {
    ParametriViaggio parametri;
    parametri.mediaKm = {0, 65, 50, 0};
    RigheItinerario vuoto = prova::Righe(u"A B/A1/1 C/A1/9"_s);
    vuoto[0].tipo = TipoStrada::Autostrada;  // nobody drives to the departure
    vuoto[1].tipo.reset();
    EXPECT_EQ(TipoSenzaMedia(vuoto, OrarioCorretto(parametri)), TipoStrada::Locale);
    ParametriViaggio lenti;
    lenti.mediaKm = {1, 1, 1, 1};
    EXPECT_EQ(TipoSenzaMedia(vuoto, OrarioCorretto(lenti)), std::nullopt);
    const RiepilogoItinerario r = CalcolaKmTempiItinerario(vuoto, OrarioCorretto(parametri), 7);
    EXPECT_FALSE(r.tappe[2].tempo.has_value());
    EXPECT_EQ(r.totali.km[kTuttiITipi], 10);
    EXPECT_EQ(r.giorniAdeguamento, 7);
    EXPECT_EQ(GiorniProposti(CalcolaKmTempiItinerario({}, {}, 5)), std::vector<int>{0});
}

}  // namespace
}  // namespace cronovia
