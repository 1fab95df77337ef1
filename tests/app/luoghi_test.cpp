// SPDX-License-Identifier: GPL-3.0-or-later
// What entering a stage offers: names, distances, hints; and the sun over the days.
#include <gtest/gtest.h>

#include "app/comandi_luoghi.h"
#include "app/comandi_percorso.h"
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
    /// Where people or files say that localities lie.
    QString Confermate(const QStringList& nomi) {
        QStringList dove;
        const PosizioniConfermate confermate(Archivio());
        for (const QString& nome : nomi) {
            const auto posizione = confermate.Di(nome);
            dove += nome + (posizione ? u" %1"_s.arg(posizione->latitudine) : QString());
        }
        return dove.join(u", "_s);
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

TEST_F(LuoghiTest, GoAndComeBackWithTheRouteThatBroughtThem) {
    const QStringList nomi = {u"TORINO"_s, u"ASTI"_s, u"ALBA"_s, u"BRA"_s};
    NuovaMeta(u"UNO"_s);
    comandi::Itinerario(*postazione_);
    ConfermaPosizione(Archivio(), u"ASTI"_s, {44.5, 8.5});
    file_ = cartella_.Path() + u"/giro.itn"_s;
    prova::ScriviFile(file_,
                      "769000|4507000|Torino|4|\n820000|4490000|Asti|1|\n803000|4470000|Alba|1|\n"
                      "820000|4491000|Asti|1|\n785000|4469000|Bra|2|\n");
    copione_.Domanda(
        u"Tappe riconosciute: 5, da TORINO a BRA.\nChilometri: 180; traghetti: 0.\nI chilometri di 4 tappe sono stimati in linea d'aria: controllali.\n\nVuoi riportarle nell'itinerario?"_s,
        u"Import del percorso"_s, Answer::Yes);
    comandi::AltriPacchetti(*postazione_);
    EXPECT_EQ(Confermate(nomi), u"TORINO 45.07, ASTI 44.91, ALBA 44.7, BRA 44.69"_s);
    // What was put elsewhere since stays there.
    comandi::MettiLuogo(*postazione_, u"ALBA"_s, {44.6, 8.1});
    comandi::Annulla(*postazione_);
    EXPECT_EQ(Righe(), QString());
    EXPECT_EQ(Confermate(nomi), u"TORINO, ASTI 44.5, ALBA 44.6, BRA"_s);
    comandi::Ripeti(*postazione_);
    EXPECT_EQ(Confermate(nomi), u"TORINO 45.07, ASTI 44.91, ALBA 44.6, BRA 44.69"_s);
    comandi::Annulla(*postazione_);
    EXPECT_EQ(Confermate(nomi), u"TORINO, ASTI 44.5, ALBA 44.6, BRA"_s);
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
    EXPECT_EQ(soli[0].alba, 8 * 60 + 1);
    EXPECT_EQ(soli[0].tramonto, 16 * 60 + 47);
    EXPECT_EQ(TestiRinvii(giornate[0], cronovia, soli[0]).back(), u"arrivo ad AOSTA dopo il tramonto (16:47)"_s);
    EXPECT_TRUE(soli.back().arrivoAlBuio.isEmpty());
    const auto ignote = SoleDelleGiornate(giornate, cronovia, {});
    EXPECT_FALSE(ignote[0].alba || ignote[0].tramonto);
    EXPECT_TRUE(ignote[0].arrivoAlBuio.isEmpty());
}

}  // namespace
}  // namespace cronovia
