#include "itinerary/modifiche.h"

#include <gtest/gtest.h>

#include "support/prova.h"

namespace cronovia {
namespace {

using namespace Qt::StringLiterals;

Tappa Riga(const QString& localita, const QString& strada = {}, int km = 0) {
    Tappa tappa;
    tappa.localita = localita;
    tappa.numStrada = strada;
    tappa.km = km;
    if (km != 0) tappa.tipo = TipoStrada::Autostrada;
    return tappa;
}

QString Nomi(const RigheItinerario& righe) {
    QStringList nomi;
    for (const Tappa& tappa : righe) nomi += tappa.localita.isEmpty() ? u"-"_s : tappa.localita;
    return nomi.join(u' ');
}

const RigheItinerario kTre = {Riga(u"A"_s), Riga(u"B"_s, u"A1"_s, 90), Riga(u"C"_s, u"A4"_s, 20)};

TEST(Modifiche, RowsOpenCloseAndAreOverwritten) {
    EXPECT_EQ(Nomi(InserisciRigheItinerario(kTre, 1, 1)), u"- A B C"_s);
    EXPECT_EQ(Nomi(InserisciRigheItinerario(kTre, 3, 2)), u"A B - - C"_s);
    EXPECT_EQ(Nomi(CancellaRiga(kTre, 1)), u"B C"_s);
    EXPECT_EQ(Nomi(CancellaRiga(kTre, 4)), u"A B C"_s);
    EXPECT_EQ(Nomi(InserisceTappa(kTre, 2, {u"X"_s, {}, 5, TipoStrada::Locale, {}, false})), u"A X C"_s);
    EXPECT_EQ(Nomi(InserisceTappa(kTre, 5, {u"X"_s, {}, 5, TipoStrada::Locale, {}, false})), u"A B C - X"_s);
}

TEST(Modifiche, AStageWithoutKilometresHasNoRoadType) {
    const RigheItinerario righe = InserisceTappa(kTre, 2, {u"X"_s, {}, 0, TipoStrada::Locale, {1, 2, 15}, true});
    EXPECT_EQ(righe[1].tipo, std::nullopt);
    EXPECT_EQ(TestoSosta(righe[1].sosta, righe[1].fineGiorno), u"*01:02:15"_s);
    EXPECT_EQ(TestoSosta({}, true), u"*"_s);
}

TEST(Modifiche, TheLastStageIsTheLastRowWithALocality) {
    EXPECT_EQ(NumeroTappe({}), 0);
    EXPECT_EQ(NumeroTappe(InserisciRigheItinerario(kTre, 2, 3)), 6);
    EXPECT_EQ(NumeroTappe(RigheItinerario{Riga(u"A"_s), Riga(u"  "_s)}), 1);
}

TEST(Modifiche, AFreeRowProposesTheRoadAboveAndALocalRoad) {
    const CampiTappa libera = CampiDellaRiga(kTre, 4);
    EXPECT_EQ(libera.localita, u""_s);
    EXPECT_EQ(libera.numStrada, u"A4"_s);
    EXPECT_EQ(libera.tipo, TipoStrada::Locale);
}

TEST(Modifiche, ProgressiveKilometresBecomeTheDifference) {
    struct Caso {
        int km, precedenti, riga, attesi;
    };
    const std::vector<Caso> casi = {{1000, 550, 3, 450}, {1000, 90, 3, 1000}, {550, 550, 3, 550}, {551, 550, 3, 1},
                                    {150, 100, 3, 150},  {150, 101, 3, 49},   {700, 500, 2, 700}};
    for (const Caso& caso : casi) {
        EXPECT_EQ(KmDellaTappa(caso.km, caso.precedenti, caso.riga), caso.attesi) << caso.km << '/' << caso.precedenti;
    }
    const RiepilogoItinerario riepilogo = CalcolaKmTempiItinerario(kTre, {}, 0);
    EXPECT_EQ(KmPrecedenti(kTre, riepilogo, 4), 110);
    EXPECT_EQ(KmPrecedenti(kTre, riepilogo, 3), 90);
    EXPECT_EQ(KmPrecedenti(kTre, riepilogo, 2), 0);  // a row without kilometres has none to go on from
}

TEST(Modifiche, WhatCannotBecomeARow) {
    const QString km = u"Impossibile:\nIndica un valore compreso tra 1 e 999|"_s;
    const QString localita = u"Impossibile:\nIndica il nome della località!|"_s;
    const QString sosta = u"Chilometri (o sosta): dato obbligatorio!|Dato obbligatorio"_s;
    const QString tipo = u"Tipo strada obbligatorio!|Dato obbligatorio"_s;
    const std::optional<TipoStrada> locale = TipoStrada::Locale;
    struct Caso {
        CampiTappa campi;
        int riga;
        QStringList rifiuti;
    };
    const std::vector<Caso> casi = {
        {{u"A"_s, {}, 0, locale, {}, false}, 1, {}},
        {{u"A"_s, {}, 0, locale, {}, false}, 2, {sosta}},
        {{u"A"_s, {}, 0, locale, {0, 0, 15}, false}, 2, {}},
        {{u"A"_s, {}, 0, locale, {}, true}, 2, {}},
        {{u"A"_s, u"X TRAGHETTO"_s, 0, locale, {}, false}, 2, {}},
        {{u"A"_s, {}, 999, locale, {}, false}, 2, {}},
        {{u"A"_s, {}, 1000, locale, {}, false}, 2, {km}},
        {{u"A"_s, {}, 10, {}, {}, false}, 2, {tipo}},
        {{u" "_s, {}, 10, locale, {}, false}, 2, {localita}},
        {{u""_s, {}, 1000, {}, {}, false}, 2, {km, localita}},
    };
    for (const Caso& caso : casi) {
        QStringList rifiuti;
        for (const Message& m : ControllaTappa(caso.campi, caso.riga)) rifiuti += m.text + u'|' + m.title;
        EXPECT_TRUE(rifiuti == caso.rifiuti) << rifiuti.join(u'/').toStdString();
    }
}

}  // namespace
}  // namespace cronovia
