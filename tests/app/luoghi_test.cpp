// SPDX-License-Identifier: GPL-3.0-or-later
// What entering a stage offers: names, distances, hints; and the sun over the days.
#include <gtest/gtest.h>

#include "app/luoghi_del_viaggio.h"
#include "itinerary/suggerimenti.h"
#include "schedule/sole_giornate.h"
#include "support/archivio.h"
#include "support/postazione.h"

namespace cronovia {
namespace {

using namespace Qt::StringLiterals;

class LuoghiTest : public prova::PostazioneTest {
  protected:
    QString Nomi(const QString& inizio) {
        QStringList nomi;
        for (const PropostaNome& p : luoghi_.Proposte(Archivio(), Viaggio(), inizio, 4)) nomi += p.nome;
        return nomi.join(u'|');
    }
    int Diretta(int riga, const QString& localita) {
        return qRound(luoghi_.Diretta(Archivio(), Viaggio(), riga, localita).value_or(-1));
    }
    Archive& Archivio() { return postazione_->sessione.Archivio(); }

    LuoghiDelViaggio luoghi_{QStringLiteral(CRONOVIA_PLACES "/luoghi.dat")};
};

TEST_F(LuoghiTest, AreProposedAndMeasured) {
    postazione_ = NuovaPostazione();
    NuovaMeta(u"BAVIERA"_s);
    comandi::Itinerario(*postazione_);
    prova::NellaGuida(Archivio(), u"MILANDO"_s);
    Inserisce(u"MILLEFONTI"_s, 0);
    Inserisce(u"TORINO"_s, 20);
    // Those of the trip, those of the guide, those that are known.
    EXPECT_EQ(Nomi(u"mil"_s).section(u'|', 0, 2), u"MILLEFONTI|MILANDO|MILANO"_s);
    EXPECT_EQ(Nomi(u"monaco di b"_s), u"MONACO DI BAVIERA"_s);
    EXPECT_EQ(Nomi(u"m"_s), QString());
    EXPECT_EQ(Nomi(u"mil*["_s).section(u'|', 0, 0), u"MILLEFONTI"_s);
    EXPECT_NEAR(Diretta(3, u"MILANO"_s), 126, 4);
    EXPECT_EQ(Diretta(2, u"MILANO"_s), -1);
    EXPECT_EQ(Diretta(1, u"MILANO"_s), -1);
    EXPECT_EQ(Diretta(3, u"NESSUN POSTO"_s), -1);
    EXPECT_EQ(KmStimati(126, TipoStrada::Autostrada), 150);
    EXPECT_EQ(KmStimati(30, std::nullopt), 40);
    EXPECT_EQ(KmStimati(0, TipoStrada::Locale), 1);
    // Asked twice, and again once somebody has said where it lies.
    EXPECT_TRUE(luoghi_.Posizioni(Archivio(), Viaggio().Righe(), {})[1].Certa());
    ConfermaPosizione(Archivio(), u"MILLEFONTI"_s, {45.03, 7.67});
    EXPECT_TRUE(luoghi_.Posizioni(Archivio(), Viaggio().Righe(), {})[0].Certa());
    EXPECT_NEAR(Diretta(2, u"MILANO"_s), 129, 5);
}

TEST_F(LuoghiTest, GiveHintsForDistancesThatCannotBe) {
    struct Caso {
        int km;
        QString strada;
        double diretta;
        QStringView inizio;
    };
    const Caso casi[] = {{100, {}, 126, u"La distanza è più corta"},
                         {122, {}, 126, u""},
                         {500, {}, 126, u"La distanza è più di tre"},
                         {390, {}, 126, u""},
                         {25, {}, 3, u""},
                         {0, {}, 126, u""},
                         {10, u"TRAGH"_s, 126, u""}};
    for (const Caso& caso : casi) {
        CampiTappa campi;
        campi.km = caso.km;
        campi.numStrada = caso.strada;
        const QString testo = SuggerimentoDistanza(campi, caso.diretta);
        EXPECT_TRUE(caso.inizio.isEmpty() ? testo.isEmpty() : testo.startsWith(caso.inizio)) << caso.km;
    }
}

// A winter day that ends in the dark, then one on the spot. The times agree with a reckoning by hand.
TEST_F(LuoghiTest, TellWhenTheSunHasSet) {
    postazione_ = NuovaPostazione();
    NuovaMeta(u"PIEMONTE"_s);
    comandi::Itinerario(*postazione_);
    Inserisce(u"TORINO"_s, 0);
    Inserisce(u"AOSTA"_s, 115, {1, 0, 0});
    Meta meta = Viaggio().Campi();
    meta.dataInizio = NumeroDelGiorno({15, 12, 2027});
    meta.oraInizio = 1600_cent;
    Viaggio().ImpostaCampi(meta);
    Progress muto;
    Viaggio().Calcola(muto);
    const Cronovia& cronovia = *Viaggio().Ultima();
    const auto& giornate = Viaggio().Giornate();
    const auto soli =
        SoleDelleGiornate(giornate, cronovia, luoghi_.Posizioni(Archivio(), TappeCalcolate(cronovia), meta.nazione));
    ASSERT_EQ(soli.size(), giornate.size());
    EXPECT_EQ(TestoSole(soli[0]), u"alba 8:01, tramonto 16:47"_s);
    EXPECT_EQ(TestiRinvii(giornate[0], cronovia, soli[0]).back(), u"arrivo ad AOSTA dopo il tramonto (16:47)"_s);
    EXPECT_TRUE(soli.back().arrivoAlBuio.isEmpty());
    const auto ignote = SoleDelleGiornate(giornate, cronovia, {});
    EXPECT_EQ(TestoSole(ignote[0]), QString());
    EXPECT_TRUE(ignote[0].arrivoAlBuio.isEmpty());
}

}  // namespace
}  // namespace cronovia
