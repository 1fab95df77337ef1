#include "trips/orario.h"

#include <gtest/gtest.h>

#include <functional>
#include <vector>

#include "support/prova.h"

namespace cronovia {
namespace {

ParametriViaggio Con(const std::function<void(ParametriViaggio&)>& modifica) {
    ParametriViaggio parametri;
    modifica(parametri);
    return parametri;
}

TEST(Orario, TheStandardTimetableStandsAsItIs) {
    const ParametriConvertiti convertiti = Aggiorna({});
    EXPECT_EQ(convertiti.parametri, ParametriViaggio());
    EXPECT_EQ(convertiti.guidaGiorno, 925_cent);   // 3:30 + 5:00 + 0:45
    EXPECT_EQ(convertiti.visitaGiorno, 900_cent);  // 9:00 to 18:00
    EXPECT_EQ(convertiti.riposo, 25_cent);
}

TEST(Orario, LunchThatEndsLateMovesToItsFirstHour) {
    const ParametriConvertiti convertiti = ControllaVariabiliConvertite(Con([](ParametriViaggio& p) {
        p.oraPranzo = 1550_cent;
        p.durataPranzo = 250_cent;
        p.oraCena = 1800_cent;
    }));
    EXPECT_EQ(convertiti.parametri, Con([](ParametriViaggio& p) {
                  p.oraPranzo = 1150_cent;
                  p.oraCena = 1800_cent;
              }));
    EXPECT_EQ(convertiti.guidaGiorno, 250_cent + 400_cent + 275_cent);
}

TEST(Orario, DinnerThatEndsInTheNightMovesToItsFirstHour) {
    const ParametriViaggio corretti =
        ControllaVariabiliConvertite(Con([](ParametriViaggio& p) { p.oraCena = 2100_cent; })).parametri;
    EXPECT_EQ(corretti, Con([](ParametriViaggio& p) { p.oraCena = 1800_cent; }));
}

TEST(Orario, BreakfastShortlyBeforeLunchGoesToHourZeroAndKeepsItsMinutes) {
    const ParametriViaggio corretti = ControllaVariabiliConvertite(Con([](ParametriViaggio& p) {
                                          p.oraColazione = 1175_cent;
                                          p.inizioVisita = 900_cent;
                                      })).parametri;
    EXPECT_EQ(corretti.oraColazione, 75_cent);
    EXPECT_EQ(corretti.inizioVisita, 900_cent);
    // One hour before lunch is early enough.
    EXPECT_EQ(ControllaVariabiliConvertite(Con([](ParametriViaggio& p) {
                  p.oraColazione = 1150_cent;
              })).parametri.oraColazione,
              1150_cent);
}

TEST(Orario, OneCorrectionBringsTheNext) {
    // Dinner moves to 18:45, which makes lunch end too late, which makes breakfast too late.
    const ParametriViaggio corretti = ControllaVariabiliConvertite(Con([](ParametriViaggio& p) {
                                          p.oraColazione = 1100_cent;
                                          p.oraPranzo = 1550_cent;
                                          p.oraCena = 2175_cent;
                                          p.durataCena = 200_cent;
                                      })).parametri;
    EXPECT_EQ(corretti.oraCena, 1875_cent);
    EXPECT_EQ(corretti.oraPranzo, 1150_cent);
    EXPECT_EQ(corretti.oraColazione, 0_cent);
}

TEST(Orario, ChecksThatNoResetSatisfiesEnd) {
    const ParametriViaggio corretti = ControllaVariabiliConvertite(Con([](ParametriViaggio& p) {
                                          p.oraCena = 1875_cent;
                                          p.durataCena = 275_cent;
                                          p.oraNotte = 2000_cent;
                                      })).parametri;
    EXPECT_EQ(corretti.oraCena, 1875_cent);
    EXPECT_EQ(corretti.oraNotte, 2000_cent);
}

TEST(Orario, VisitsLieBetweenBreakfastAndNightBeforeTheDayIsMeasured) {
    const ParametriConvertiti convertiti = ControllaVariabiliConvertite(Con([](ParametriViaggio& p) {
        p.inizioVisita = 800_cent;
        p.fineVisita = 2400_cent;
    }));
    EXPECT_EQ(convertiti.parametri.inizioVisita, 900_cent);
    EXPECT_EQ(convertiti.parametri.fineVisita, 2250_cent);
    EXPECT_EQ(convertiti.visitaGiorno, 1350_cent);
}

TEST(Orario, LimitsOfTheSingleHours) {
    struct Caso {
        const char* regola;
        std::function<void(ParametriViaggio&)> prima;
        std::function<void(ParametriViaggio&)> dopo;
    };
    using P = ParametriViaggio;
    const std::vector<Caso> casi = {
        {"a lunch over 3:30 lasts two hours", [](P& p) { p.durataPranzo = 351_cent; },
         [](P& p) { p.durataPranzo = 200_cent; }},
        {"a lunch of 3:30 does not", [](P& p) { p.durataPranzo = 350_cent; }, [](P& p) { p.durataPranzo = 350_cent; }},
        {"a dinner over 2:30 lasts one hour and a half", [](P& p) { p.durataCena = 275_cent, p.oraCena = 1900_cent; },
         [](P& p) { p.durataCena = 150_cent, p.oraCena = 1900_cent; }},
        {"breakfast after 12; the visits had moved behind it already",
         [](P& p) { p.oraColazione = 1225_cent, p.oraPranzo = 1400_cent; },
         [](P& p) { p.oraPranzo = 1400_cent, p.inizioVisita = 1225_cent; }},
        {"lunch before 10", [](P& p) { p.oraColazione = 500_cent, p.oraPranzo = 900_cent; },
         [](P& p) { p.oraColazione = 500_cent, p.oraPranzo = 1000_cent; }},
        {"lunch after 16", [](P& p) { p.oraPranzo = 1650_cent; }, [](P& p) { p.oraPranzo = 1600_cent; }},
        {"dinner before 17", [](P& p) { p.oraCena = 1650_cent; }, [](P& p) { p.oraCena = 2000_cent; }},
        {"dinner after 22", [](P& p) { p.oraCena = 2225_cent, p.oraNotte = 2400_cent, p.durataCena = 100_cent; },
         [](P& p) { p.oraCena = 2000_cent, p.oraNotte = 2400_cent, p.durataCena = 100_cent; }},
        {"night before 19", [](P& p) { p.oraCena = 1700_cent, p.durataCena = 100_cent, p.oraNotte = 1850_cent; },
         [](P& p) { p.oraCena = 1700_cent, p.durataCena = 100_cent, p.oraNotte = 1900_cent; }},
        {"night before the end of dinner: nine minutes after its beginning",
         [](P& p) { p.oraNotte = 1800_cent, p.fineVisita = 1700_cent; },
         [](P& p) { p.oraCena = 1800_cent, p.oraNotte = 1815_cent, p.fineVisita = 1700_cent; }},
        {"night after 24", [](P& p) { p.oraNotte = 2500_cent; }, [](P& p) { p.oraNotte = 2400_cent; }},
        {"no ferry takes no time", [](P& p) { p.oreTraghetti = 0_cent; }, [](P& p) { p.oreTraghetti = 100_cent; }},
    };
    for (const Caso& caso : casi) {
        SCOPED_TRACE(caso.regola);
        const ParametriViaggio ottenuti = Aggiorna(Con(caso.prima)).parametri;
        const ParametriViaggio attesi = Con(caso.dopo);
        EXPECT_EQ(ValoriDeiParametri(ottenuti), ValoriDeiParametri(attesi));
        EXPECT_EQ(ottenuti, attesi);
    }
}

TEST(Orario, RestsAreWholeHundredths) {
    for (const auto& [minuti, centesimi] : {std::pair(10, 17_cent), {15, 25_cent}, {20, 33_cent}, {59, 98_cent}}) {
        const int riposo = minuti;
        EXPECT_EQ(ControllaVariabiliConvertite(Con([=](ParametriViaggio& p) { p.riposoMinuti = riposo; })).riposo,
                  centesimi);
    }
}

}  // namespace
}  // namespace cronovia
