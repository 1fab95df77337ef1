// SPDX-License-Identifier: GPL-3.0-or-later
#include "trips/meta.h"

#include <gtest/gtest.h>

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

// Every parameter has a value of its own, so that no field can stand in another's place.
TEST(Meta, ARowHoldsEveryFieldAndGivesItBack) {
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
    const std::vector<QString> valori = ValoriDellaMeta(meta);
    EXPECT_EQ(QStringList(valori.begin(), valori.end()).join(u'|'),
              u"000042|PROVENZA|FRANCIA |05082004|0815|130|90|70|45|0015|0030|0045|0100|0115|2400|20|04|02|06|"
              "0145|0200|0215|012|5"_s);
    const Meta riletta = MetaDaRecord({1, valori});
    EXPECT_EQ(riletta.parametri, p);
    EXPECT_EQ(riletta.nazione, meta.nazione);
    EXPECT_EQ(ValoriDellaMeta(riletta), valori);
    EXPECT_EQ(ParametriDaRecord({1, ValoriDeiParametri(p)}), p);
}

TEST(Meta, EmptyAndWrongFieldsAreUnknownNotInvented) {
    EXPECT_FALSE(MetaDaRecord({1, std::vector<QString>(mete::kCampi)}).dataInizio.has_value());
    std::vector<QString> valori = ValoriDellaMeta(Provenza());
    valori[mete::DataInizio] = u"31022004"_s;
    valori[mete::MediaLocale] = u"-5"_s;
    valori[mete::GiorniAdeguamento] = u"9999"_s;
    valori[mete::CalcoloSoste] = u"7"_s;
    const Meta guasta = MetaDaRecord({1, valori});
    EXPECT_FALSE(guasta.dataInizio.has_value());
    EXPECT_EQ(guasta.partiInizio, (PartiData{29, 2, 2004}));
    EXPECT_EQ(guasta.parametri.mediaKm[3], 0);
    EXPECT_EQ(guasta.giorniAdeguamento, 997);
    EXPECT_EQ(guasta.parametri.calcoloSoste, CalcoloSoste::SostaMaggiore);
}

TEST(Meta, EveryTimeOfDayComesBack) {
    for (int minuti = 0; minuti <= 24 * 60; ++minuti) {
        const QString testo = Zero(minuti / 60, 2) + Zero(minuti % 60, 2);
        ASSERT_EQ(TestoOrario(LeggiOrario(testo)), testo);
    }
}

}  // namespace
}  // namespace cronovia
