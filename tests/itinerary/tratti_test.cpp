#include "itinerary/tratti.h"

#include <gtest/gtest.h>

#include "support/prova.h"

namespace cronovia {
namespace {

using namespace Qt::StringLiterals;

// Stages "NAME/road/km", a free row "-"; every leg on a motorway, the third stage ends a day after a stop.
RigheItinerario Righe(const QString& testo) {
    RigheItinerario righe;
    for (const QString& parola : testo.split(u' ', Qt::SkipEmptyParts)) {
        const QStringList parti = parola.split(u'/');
        Tappa& tappa = righe.emplace_back();
        if (parola == "-"_L1) continue;
        tappa.localita = parti[0];
        tappa.numStrada = parti.value(1);
        tappa.km = parti.value(2).toInt();
        if (tappa.km != 0) tappa.tipo = TipoStrada::Autostrada;
        if (righe.size() == 3) tappa.sosta = {0, 1, 30};
        tappa.fineGiorno = righe.size() == 3;
    }
    return righe;
}

QString Testo(const RigheItinerario& righe) {
    QStringList parole;
    for (const Tappa& tappa : righe) {
        const bool strada = !tappa.numStrada.isEmpty() || tappa.km != 0;
        QString parola = tappa.localita.isEmpty() ? u"-"_s : tappa.localita;
        if (strada) parola += u"/%1/%2"_s.arg(tappa.numStrada, QString::number(tappa.km));
        EXPECT_EQ(tappa.tipo.has_value(), tappa.km != 0) << parola.toStdString();
        parole += parola + TestoSosta(tappa.sosta, tappa.fineGiorno);
    }
    return parole.join(u' ');
}

TEST(Tratti, TheWayBackTakesTheRoadsOfTheWayOut) {
    struct Caso {
        QString andata, conRitorno;
        int riga;
    };
    const std::vector<Caso> casi = {
        {u"A B/A1/10 C/A2/20 D/A3/30 B/A4/40"_s, u"A B/A1/10 C/A2/20*00:01:30 D/A3/30 B/A4/40 A/A1/10"_s, 2},
        // Back from the place nearest to the end, though it was passed earlier too.
        {u"A B/A1/10 C/A2/20 B/A3/30 D/A4/40 B/A5/50"_s,
         u"A B/A1/10 C/A2/20*00:01:30 B/A3/30 D/A4/40 B/A5/50 C/A3/30 B/A2/20 A/A1/10"_s, 4},
        {u"A B/A1/10 C/A2/20 A/A3/30"_s, u"A B/A1/10 C/A2/20*00:01:30 A/A3/30"_s, 1},
        {u"A - B/A1/10 - B/A2/0"_s, u"A B/A1/10*00:01:30 B/A2/0 A/A1/10"_s, 2},  // free rows go
        {u"A - B/A1/10 C/A2/20"_s, u"A B/A1/10*00:01:30 C/A2/20"_s, 3},
        {u"A"_s, u"A"_s, 1},
        {u"- -"_s, u""_s, 1},
    };
    for (const Caso& caso : casi) {
        const EsitoTratto esito = Ritorno(Righe(caso.andata));
        EXPECT_EQ(Testo(esito.righe), caso.conRitorno);
        EXPECT_EQ(esito.rigaCorrente, caso.riga) << caso.andata.toStdString();
    }
}

TEST(Tratti, AStretchIsCopiedInEitherDirection) {
    const RigheItinerario sorgente = Righe(u"P Q/S1/11 R/S2/22 S/S3/33 T/S4/44"_s);
    struct Caso {
        QString prima;
        int riga;
        Percorso tratto;
        bool soste;
        QString dopo;
        int corrente;
    };
    const std::vector<Caso> casi = {
        {u"A B/A1/10"_s, 1, {2, 4}, false, u"A Q/S1/11 R/S2/22 S/S3/33 B/A1/10"_s, 2},
        {u"A B/A1/10"_s, 2, {3, 3}, true, u"A B/A1/10 R/S2/22*00:01:30"_s, 3},
        {u"A B/A1/10"_s, 3, {4, 2}, true, u"A B/A1/10 S/S4/44 R/S3/33*00:01:30 Q/S2/22"_s, 3},
        {u"A B/A1/10"_s, 2, {5, 4}, false, u"A B/A1/10 T S/S4/44"_s, 3},  // no road leads to the end of the trip
        {u"A - B"_s, 2, {1, 1}, false, u"A P - B*"_s, 2},
        {u""_s, 1, {1, 2}, false, u"P Q/S1/11"_s, 1},
    };
    for (const Caso& caso : casi) {
        RigheItinerario prima = Righe(caso.prima);
        for (Tappa& tappa : prima) tappa.sosta = {};
        const EsitoTratto esito = CopiaTratto(prima, caso.riga, sorgente, caso.tratto, caso.soste);
        EXPECT_EQ(Testo(esito.righe), caso.dopo);
        EXPECT_EQ(esito.rigaCorrente, caso.corrente) << caso.dopo.toStdString();
    }
}

TEST(Tratti, TheHighlightWidensToTheRowThatIsClicked) {
    EXPECT_EQ(TrattoEvidenziato({}, {}, 4), (Percorso{4, 4}));
    EXPECT_EQ(TrattoEvidenziato(3, {}, 6), (Percorso{3, 6}));
    EXPECT_EQ(TrattoEvidenziato({}, 6, 2), (Percorso{2, 6}));
    EXPECT_EQ(TrattoEvidenziato(5, 2, 3), (Percorso{2, 5}));
    EXPECT_EQ(TrattoEvidenziato(5, 2, 1), (Percorso{1, 5}));
    EXPECT_EQ(TrattoEvidenziato(2, 5, 8), (Percorso{2, 8}));
}

}  // namespace
}  // namespace cronovia
