// SPDX-License-Identifier: GPL-3.0-or-later
#include "itinerary/tratti.h"

#include <gtest/gtest.h>

#include "righe.h"

namespace cronovia {
namespace {

using namespace Qt::StringLiterals;
using prova::Righe;
using prova::Testo;

TEST(Tratti, TheWayBackTakesTheRoadsOfTheWayOut) {
    struct Caso {
        QString andata, conRitorno;
        int riga;
        bool trovata = true;
    };
    const std::vector<Caso> casi = {
        {u"A B/A1/10 C/A2/20/* D/A3/30 B/A4/40"_s, u"A B/A1/10 C/A2/20/* D/A3/30 B/A4/40 A/A1/10"_s, 2},
        // Back from the place nearest to the end, though it was passed earlier too; without the stops.
        {u"A B/A1/10 C/A2/20/* B/A3/30 D/A4/40 B/A5/50"_s,
         u"A B/A1/10 C/A2/20/* B/A3/30 D/A4/40 B/A5/50 C/A3/30 B/A2/20 A/A1/10"_s, 4},
        {u"A B/A1/10 C/A2/20 A/A3/30"_s, u"A B/A1/10 C/A2/20 A/A3/30"_s, 1},
        {u"A - B/A1/10 - B/A2/0"_s, u"A B/A1/10 B/A2/0 A/A1/10"_s, 2},  // free rows go
        {u"A - B/A1/10 C/A2/20"_s, u"A B/A1/10 C/A2/20"_s, 3, false},
        {u"A"_s, u"A"_s, 1, false},
        {u"- -"_s, u""_s, 1, false},
    };
    for (const Caso& caso : casi) {
        const ItinerarioConTratto esito = Ritorno(Righe(caso.andata));
        EXPECT_EQ(Testo(esito.righe), caso.conRitorno);
        EXPECT_EQ(esito.trovata, caso.trovata) << caso.andata.toStdString();
        EXPECT_EQ(esito.rigaCorrente, caso.riga) << caso.andata.toStdString();
    }
}

TEST(Tratti, AStretchIsCopiedInEitherDirection) {
    const RigheItinerario sorgente = Righe(u"P Q/S1/11 R/S2/22/* S/S3/33 T/S4/44"_s);
    struct Caso {
        QString prima;
        int riga;
        Tratto tratto;
        bool soste;
        QString dopo;
        int corrente;
    };
    const std::vector<Caso> casi = {
        {u"A B/A1/10"_s, 1, {2, 4}, false, u"A Q/S1/11 R/S2/22 S/S3/33 B/A1/10"_s, 2},
        {u"A B/A1/10"_s, 2, {3, 3}, true, u"A B/A1/10 R/S2/22/*"_s, 3},
        {u"A B/A1/10"_s, 3, {4, 2}, true, u"A B/A1/10 S/S4/44 R/S3/33/* Q/S2/22"_s, 3},
        {u"A B/A1/10"_s, 2, {5, 4}, false, u"A B/A1/10 T S/S4/44"_s, 3},  // no road leads to the end of the trip
        {u"A - B"_s, 2, {1, 1}, false, u"A P - B"_s, 2},
        {u""_s, 1, {1, 2}, false, u"P Q/S1/11"_s, 1},
    };
    for (const Caso& caso : casi) {
        const ItinerarioConTratto esito = CopiaTratto(Righe(caso.prima), caso.riga, sorgente, caso.tratto, caso.soste);
        EXPECT_EQ(Testo(esito.righe), caso.dopo);
        EXPECT_EQ(esito.rigaCorrente, caso.corrente) << caso.dopo.toStdString();
    }
}

TEST(Tratti, TheHighlightWidensToTheRowThatIsClicked) {
    struct Caso {
        std::optional<int> inizio, fine;
        int corrente;
        Tratto evidenziato;
    };
    for (const Caso& c : {Caso{{}, {}, 4, {4, 4}}, {3, {}, 6, {3, 6}}, {{}, 6, 2, {2, 6}}, {5, 2, 1, {1, 5}}}) {
        EXPECT_EQ(TrattoEvidenziato(c.inizio, c.fine, c.corrente), c.evidenziato);
    }
}

}  // namespace
}  // namespace cronovia
