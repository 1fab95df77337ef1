#include "itinerary/riepilogo.h"

#include <gtest/gtest.h>

#include <array>

#include "support/prova.h"

namespace cronovia {
namespace {

using namespace Qt::StringLiterals;

Tappa Tratto(int km, QStringView tipo, QStringView strada = {}) {
    Tappa tappa;
    tappa.localita = u"X"_s;
    tappa.km = km;
    tappa.tipo = LeggiTipoStrada(tipo);
    tappa.numStrada = strada.toString();
    return tappa;
}

TEST(Riepilogo, TotalsByRoadType) {
    const std::vector<Tappa> tappe = {Tratto(0, u""),
                                      Tratto(150, u"A"),
                                      Tratto(1000, u"P", u"S1"),
                                      Tratto(0, u"", u"TRAGH"),
                                      Tratto(65, u"S", u"TRAGHETTO"),
                                      Tratto(10, u""),
                                      Tratto(20, u"L")};
    const RiepilogoItinerario r = CalcolaKmTempiItinerario(tappe, {}, 0);
    EXPECT_EQ(r.totali.km, (std::array<std::int64_t, 5>{150, 65, 1000, 30, 1245}));
    EXPECT_EQ(r.totali.tempo, (std::array<Centesimi, 5>{200_cent, 100_cent, 2000_cent, 100_cent, 2400_cent}));
    EXPECT_EQ(r.totali.traghetti, 2);
    EXPECT_EQ(r.guidaGiorno, 925_cent);
    EXPECT_EQ(r.giorniMinimi, 3);  // 24 hours in days of 9:15
    EXPECT_EQ(r.tappe[2].kmProgressivi, 1150);
    EXPECT_EQ(r.tappe[5].tempo, 33_cent);
    EXPECT_FALSE(r.tappe[3].tempo.has_value());

    const TestiTotali testi = Testi(r.totali, r.guidaGiorno);
    EXPECT_EQ(testi.km, (std::array<QString, 5>{u"150"_s, u"65"_s, u"1.000"_s, u"30"_s, u"1.245"_s}));
    EXPECT_EQ(testi.tempo,
              (std::array<QString, 5>{u"00:02:00"_s, u"00:01:00"_s, u"02:01:30"_s, u"00:01:00"_s, u"02:05:30"_s}));
    EXPECT_EQ(testi.traghetti, u"2"_s);
}

TEST(Riepilogo, LegTimesAreRoundedHalfUp) {
    EXPECT_EQ(TempoDiGuida(1, 75), 1_cent);  // 1.33
    EXPECT_EQ(TempoDiGuida(1, 40), 3_cent);  // 2.5
}

TEST(Riepilogo, WantedDaysAreRaisedToTheLeastOnes) {
    const std::vector<Tappa> lungo = {Tratto(1245, u"P")};  // 2490 hundredths, days of 925
    for (const auto& [voluti, attesi] : {std::pair(0, 0), {2, 3}, {3, 3}, {40, 40}}) {
        EXPECT_EQ(CalcolaKmTempiItinerario(lungo, {}, voluti).giorniAdeguamento, attesi);
    }
    const std::vector<Tappa> esatto = {Tratto(925, u"P")};  // two whole days of driving
    EXPECT_EQ(CalcolaKmTempiItinerario(esatto, {}, 0).giorniMinimi, 2);
    const std::vector<Tappa> fermo = {Tratto(0, u"A")};
    EXPECT_EQ(CalcolaKmTempiItinerario(fermo, {}, 5).giorniAdeguamento, 5);
    EXPECT_EQ(GiorniProposti(CalcolaKmTempiItinerario(fermo, {}, 5)), std::vector<int>{0});
}

TEST(Riepilogo, LengthsOnOfferWiden) {
    RiepilogoItinerario r;
    r.totali.km[kTuttiITipi] = 1;
    r.giorniMinimi = 3;
    const std::vector<int> giorni = GiorniProposti(r);
    ASSERT_EQ(giorni.size(), 1U + 31 + 15 + 10);
    EXPECT_EQ((std::vector<int>{giorni[0], giorni[1], giorni[31], giorni[32], giorni[46], giorni[47], giorni[56]}),
              (std::vector<int>{0, 3, 33, 30, 100, 110, 200}));
}

TEST(Riepilogo, ARoadTypeInUseWithoutASpeedIsNamed) {
    ParametriViaggio parametri;
    parametri.mediaKm = {0, 65, 50, 0};
    const std::vector<Tappa> vuoto = {Tratto(0, u"A"), Tratto(5, u""), Tratto(5, u"A")};
    EXPECT_EQ(TipoSenzaMedia(vuoto, OrarioCorretto(parametri)), TipoStrada::Locale);
    const RiepilogoItinerario r = CalcolaKmTempiItinerario(vuoto, OrarioCorretto(parametri), 0);
    EXPECT_FALSE(r.tappe[2].tempo.has_value());
    EXPECT_EQ(r.totali.km[kTuttiITipi], 10);
}

}  // namespace
}  // namespace cronovia
