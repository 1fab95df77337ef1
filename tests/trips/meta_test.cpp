#include "trips/meta.h"

#include <gtest/gtest.h>

#include <array>

#include "calendar/testo.h"
#include "support/prova.h"

namespace cronovia {
namespace {

using namespace Qt::StringLiterals;

Meta Provenza() {
    Meta meta;
    meta.codice = u"000042"_s;
    meta.localita = u"PROVENZA"_s;
    meta.nazione = u"FRANCIA"_s;
    meta.dataInizio = NumeroGiorno(731813);
    meta.oraInizio = 825_cent;
    meta.giorniAdeguamento = 12;
    return meta;
}

TEST(Meta, ARowHoldsEveryFieldInItsStoredForm) {
    const std::vector<QString> attesi = {u"000042"_s, u"PROVENZA"_s, u"FRANCIA "_s, u"05082004"_s, u"0815"_s, u"75"_s,
                                         u"65"_s,     u"50"_s,       u"30"_s,       u"0900"_s,     u"1230"_s, u"0230"_s,
                                         u"2000"_s,   u"0145"_s,     u"2230"_s,     u"15"_s,       u"03"_s,   u"01"_s,
                                         u"05"_s,     u"0900"_s,     u"1800"_s,     u"0600"_s,     u"012"_s,  u"3"_s};
    EXPECT_EQ(ValoriDellaMeta(Provenza()), attesi);
}

// Every parameter has a value of its own, so that no field can stand in another's place.
TEST(Meta, EveryParameterComesBack) {
    Meta meta = Provenza();
    ParametriViaggio& p = meta.parametri;
    p.mediaKm = {130, 90, 70, 45};
    int quarto = 0;
    for (Centesimi* orario : {&p.oraColazione, &p.oraPranzo, &p.durataPranzo, &p.oraCena, &p.durataCena, &p.oraNotte,
                              &p.inizioVisita, &p.fineVisita, &p.oreTraghetti}) {
        *orario = Centesimi(25 * ++quarto);
    }
    p.oraNotte = 2400_cent;
    p.riposoMinuti = 20;
    p.riposoOre = 4;
    p.riposoGiorno = 2;
    p.riposoDopoGiorni = 6;
    p.calcoloSoste = CalcoloSoste::NessunaSosta;
    const Meta riletta = MetaDaRecord({1, ValoriDellaMeta(meta)});
    EXPECT_EQ(riletta.parametri, p);
    EXPECT_EQ(riletta.codice, meta.codice);
    EXPECT_EQ(riletta.localita, meta.localita);
    EXPECT_EQ(riletta.nazione, meta.nazione);
    EXPECT_EQ(riletta.dataInizio, meta.dataInizio);
    EXPECT_EQ(riletta.oraInizio, meta.oraInizio);
    EXPECT_EQ(riletta.giorniAdeguamento, 12);
    EXPECT_EQ(ParametriDaRecord({1, ValoriDeiParametri(p)}), p);
}

TEST(Meta, EmptyAndWrongFieldsAreUnknownNotInvented) {
    const Meta vuota = MetaDaRecord({1, std::vector<QString>(mete::kCampi)});
    EXPECT_FALSE(vuota.dataInizio.has_value());
    EXPECT_EQ(vuota.parametri.mediaKm, (std::array<int, 4>{0, 0, 0, 0}));
    EXPECT_EQ(vuota.parametri.oraPranzo, 0_cent);
    EXPECT_EQ(vuota.parametri.calcoloSoste, CalcoloSoste::SostaMaggiore);
    EXPECT_EQ(vuota.giorniAdeguamento, 0);

    std::vector<QString> valori = ValoriDellaMeta(Provenza());
    valori[mete::DataInizio] = u"31022004"_s;
    valori[mete::MediaLocale] = u"-5"_s;
    valori[mete::GiorniAdeguamento] = u"9999"_s;
    valori[mete::CalcoloSoste] = u"7"_s;
    const Meta guasta = MetaDaRecord({1, valori});
    EXPECT_FALSE(guasta.dataInizio.has_value());
    EXPECT_EQ(guasta.parametri.mediaKm[3], 0);
    EXPECT_EQ(guasta.giorniAdeguamento, 997);
    EXPECT_EQ(guasta.parametri.calcoloSoste, CalcoloSoste::SostaMaggiore);
}

TEST(Meta, TimesOfDay) {
    EXPECT_EQ(LeggiOrario(u"0815"), 825_cent);
    EXPECT_EQ(LeggiOrario(u"2400"), 2400_cent);
    EXPECT_EQ(LeggiOrario(u""), 0_cent);
    EXPECT_EQ(TestoOrario(2400_cent), u"2400"_s);
    EXPECT_EQ(TestoOrario(0_cent), u"0000"_s);
    for (int minuti = 0; minuti <= 24 * 60; ++minuti) {
        const QString testo = Zero(minuti / 60, 2) + Zero(minuti % 60, 2);
        ASSERT_EQ(TestoOrario(LeggiOrario(testo)), testo);
    }
}

}  // namespace
}  // namespace cronovia
