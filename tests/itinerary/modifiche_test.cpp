// SPDX-License-Identifier: GPL-3.0-or-later
#include "itinerary/modifiche.h"

#include <gtest/gtest.h>

#include "itinerary/appunti.h"
#include "itinerary/spostamenti.h"
#include "itinerary/vincoli_digitati.h"
#include "righe.h"

namespace cronovia {
namespace {

using namespace Qt::StringLiterals;

using prova::Righe;
using prova::Testo;

const RigheItinerario kTre = Righe(u"A B/A1/90 C/A4/20/*"_s);

TEST(Modifiche, TheVerbsThatChangeRows) {
    const CampiTappa x{u"X"_s, u"S1"_s, 5, TipoStrada::Locale, {0, 0, 15}, true};
    const CampiTappa senzaKm{u"X"_s, {}, 0, TipoStrada::Locale, {}, false};
    for (const auto& [righe, attese] : std::vector<std::pair<RigheItinerario, QString>>{
             {InserisciRigheItinerario(kTre, 1, 1), u"- A B/A1/90 C/A4/20/*"_s},
             {InserisciRigheItinerario(kTre, 3, 2), u"A B/A1/90 - - C/A4/20/*"_s},
             {CancellaRiga(kTre, 1), u"B/A1/90 C/A4/20/*"_s},
             {CancellaRiga(kTre, 4), u"A B/A1/90 C/A4/20/*"_s},
             {AzzeraSoste(kTre), u"A B/A1/90 C/A4/20"_s},
             {InserisceTappa(kTre, 2, x), u"A X/S1/5/* C/A4/20/*"_s},
             {InserisceTappa(kTre, 5, x), u"A B/A1/90 C/A4/20/* - X/S1/5/*"_s},
             {InserisceTappa(kTre, 2, senzaKm), u"A X C/A4/20/*"_s},
         }) {
        EXPECT_EQ(Testo(righe), attese);
    }
    EXPECT_EQ(NumeroTappe({}), 0);
    EXPECT_EQ(NumeroTappe(Righe(u"A - - B -"_s)), 4);
    const CampiTappa libera = CampiDellaRiga(kTre, 4);  // proposes the road above, and a local one
    EXPECT_EQ(libera, (CampiTappa{{}, u"A4"_s, 0, TipoStrada::Locale, {}, false}));
    EXPECT_EQ(CampiDellaRiga(kTre, 3), (CampiTappa{u"C"_s, u"A4"_s, 20, TipoStrada::Autostrada, {0, 1, 30}, true}));
}

// Legs keep their kilometres only where they still begin at the same place.
TEST(Modifiche, RowsMoveAndLoseTheKilometresThatNoLongerHold) {
    const RigheItinerario giro = Righe(u"A B/A1/90 C/A4/20 - B/A4/20 D/S1/5/*"_s);
    for (const auto& [esito, attese, tratto, persi] : std::vector<std::tuple<EsitoSpostamento, QString, Tratto, int>>{
             {SpostaRighe(giro, {3, 3}, 2), u"A C/A4/? B/A1/? - B/A4/? D/S1/5/*"_s, {2, 2}, 3},
             {SpostaRighe(giro, {2, 3}, 6), u"A - B/A4/? B/A1/? C/A4/20 D/S1/?/*"_s, {4, 5}, 3},
             {SpostaRighe(giro, {5, 6}, 3), u"A B/A1/90 B/A4/? D/S1/5/* C/A4/? -"_s, {3, 4}, 2},
             {SpostaRighe(giro, {6, 6}, 4), u"A B/A1/90 C/A4/20 D/S1/?/* - B/A4/?"_s, {4, 4}, 2},
             {SpostaRighe(giro, {1, 1}, 3), u"B A//? C/A4/? - B/A4/20 D/S1/5/*"_s, {2, 2}, 2},
             {SpostaRighe(Righe(u"A B//? C/A4/20"_s), {2, 2}, 1), u"B A//? C/A4/?"_s, {1, 1}, 2},
             {SpostaRighe(giro, {2, 4}, 3), u"A B/A1/90 C/A4/20 - B/A4/20 D/S1/5/*"_s, {2, 4}, 0},
             {SpostaRighe(giro, {6, 9}, 99), u"A B/A1/90 C/A4/20 - B/A4/20 D/S1/5/*"_s, {6, 6}, 0},
             {DuplicaRighe(giro, {5, 5}), u"A B/A1/90 C/A4/20 - B/A4/20 B/A4/? D/S1/5/*"_s, {6, 6}, 1},
             {TogliRighe(giro, {3, 5}), u"A B/A1/90 D/S1/5/*"_s, {3, 3}, 0},
             {TogliRighe(giro, {1, 2}), u"C - B/A4/20 D/S1/5/*"_s, {1, 1}, 0},
             {TogliRighe(giro, {9, 9}), u"A B/A1/90 C/A4/20 - B/A4/20 D/S1/5/*"_s, {7, 7}, 0},
             {InserisciRighe(kTre, 2, Righe(u"X/S1/4"_s), {}), u"A X/S1/4 B/A1/? C/A4/20/*"_s, {2, 2}, 1},
             {InserisciRighe(kTre, 9, Righe(u"X/S1/4"_s), u"B"_s), u"A B/A1/90 C/A4/20/* X/S1/?"_s, {4, 4}, 1},
             {InserisciRighe({}, 1, Righe(u"X/S1/4"_s), u"B"_s), u"X"_s, {1, 1}, 0},
         }) {
        EXPECT_EQ(Testo(esito.righe), attese);
        EXPECT_EQ(esito.tratto, tratto) << attese.toStdString();
        EXPECT_EQ(esito.daIndicare, persi) << attese.toStdString();
    }
    EXPECT_EQ(Testo(*DividiTappa(giro, 2, u"X"_s, 30)), u"A X/A1/30 B/A1/60 C/A4/20 - B/A4/20 D/S1/5/*"_s);
    for (const auto& [riga, km] : {std::pair(2, 90), {2, 0}, {1, 1}, {4, 1}, {7, 1}}) {
        EXPECT_FALSE(DividiTappa(giro, riga, u"X"_s, km)) << riga << ' ' << km;
    }
}

TEST(Modifiche, StagesGoToASpreadsheetAndComeBack) {
    RigheItinerario righe = Righe(u"A =B/+A1/90 - 'C/A4/?/* D"_s);
    righe.back().fineGiorno = true;
    EXPECT_EQ(TestoPerAppunti(righe),
              u"Tappa\tNum. Strada\tKm.\tTs\tSosta\nA\t\t0\t\t\n'=B\t'+A1\t90\tA\t\n"
              "'C\tA4\tda indicare\tA\t*00:01:30\nD\t\t0\t\t*\n"_s);
    righe.erase(righe.begin() + 2);
    EXPECT_EQ(LeggiAppunti(TestoPerAppunti(righe)), righe);
    // Other columns, another order, Windows' lines, cells in quotation marks; what may be left away.
    EXPECT_EQ(Testo(LeggiAppunti(u"Km\tNum.\tlocalità\tSosta\r\n\t1\ta\r\n\r\n7\t2\t\"b \"\"x\"\"\"\t*0:1:30\r\n"_s))
                  .replace(u' ', u'_'),
              u"A_B_\"X\"//7/*"_s);
    EXPECT_EQ(Testo(LeggiAppunti(u"A\nB\nC\tTRAGH\nD\t\t\t\t*00:01:30"_s)), u"A B//? C/TRAGH/0 D//0/*"_s);
    const QString lungo(30, u'X');
    for (const auto& [testo, perche] : std::vector<std::pair<QString, QString>>{
             {u"A\n\tA1\t5"_s, u"riga 2, manca la località"_s},
             {u"A\nB\tA1\t5,5"_s, u"riga 2, i chilometri «5,5» non sono un numero da 0 a 999"_s},
             {u"A\t\t1000"_s, u"riga 1, i chilometri «1000» non sono un numero da 0 a 999"_s},
             {u"A\t\t5\tX"_s, u"riga 1, il tipo di strada «X» non è A, S, P o L"_s},
             {u"A\t\t5\tA\t1:60"_s,
              u"riga 1, la sosta «1:60» non è scritta come gg:hh:mm o hh:mm, con ore fino a 23"_s},
             {u"A\t\t5\tA\t0:24:00"_s,
              u"riga 1, la sosta «0:24:00» non è scritta come gg:hh:mm o hh:mm, con ore fino a 23"_s},
             {lungo, u"riga 1, «"_s + lungo + u"» ha più di 29 caratteri"_s},
             {u"Tappa\tKm.\n\n"_s, u"negli appunti non ci sono tappe"_s}}) {
        EXPECT_EQ(prova::MessaggioDi([&t = testo] { LeggiAppunti(t); }), u"Non si può incollare: "_s + perche + u'.');
    }
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

TEST(Digitati, WhatIsTypedIsReadAsPeopleWriteItOrRefusedAtItsField) {
    using namespace vincoli;
    struct Caso {
        std::vector<std::pair<int, QString>> digitati;
        int campo;      // that is refused, or was typed
        QString esito;  // how the message begins; what is shown again
    };
    const std::pair<int, QString> ora{TraghettoOra, u"22"_s};
    for (const Caso& caso : std::vector<Caso>{
             {{ora, {Navigazione, u"1:8.30"_s}}, Navigazione, u"La navigazione va da"_s},
             {{ora, {Navigazione, u"1:08:30"_s}}, Navigazione, u"01:08:30"_s},
             {{ora, {Navigazione, u"9:00:00"_s}}, Navigazione, u"09:00:00"_s},
             {{ora, {Navigazione, u"9:00:01"_s}}, Navigazione, u"La navigazione va da"_s},
             {{ora, {Navigazione, u"0"_s}}, Navigazione, u"La navigazione va da"_s},
             {{ora, {Navigazione, u"36:00"_s}}, Navigazione, u"01:12:00"_s},
             {{{Navigazione, u"8:00"_s}}, TraghettoOra, u"Indica a che ora parte"_s},
             {{ora, {Navigazione, u"8:00"_s}, {Imbarco, u"24:00"_s}}, Imbarco, u"«24:00» non è un'ora"_s},
             {{ora, {Navigazione, u"45"_s}}, Navigazione, u"«45» sono ore o minuti? Scrivi 45:00 oppure 00:45."_s},
             {{ora, {Navigazione, u"8:00"_s}, {Imbarco, u"20"_s}}, Imbarco, u"«20» sono ore o minuti?"_s},
             {{{NonPrimaOra, u"1500"_s}, {NonDopoOra, u"14.59"_s}}, NonDopoOra, u"L'ora entro cui"_s},
             {{{NonPrimaOra, u"1500"_s}, {NonDopoOra, u"15"_s}}, NonDopoOra, u"15:00"_s},
             {{{NonPrimaOra, u"15"_s}, {NonPrimaData, u"31/6/2027"_s}}, NonPrimaData, u"«31/6/2027» non è una data"_s},
             {{{NonPrimaOra, u"15"_s}, {NonPrimaData, u"3-7-27"_s}}, NonPrimaData, u"03/07/2027"_s},
             {{{VisiteDa, u"9"_s}}, VisiteA, u"Indica sia quando"_s},
             {{{VisiteDa, u"9"_s}, {VisiteA, u"24:01"_s}}, VisiteA, u"«24:01» non è un'ora"_s},
             {{{VisiteDa, u"9"_s}, {VisiteA, u"8:59"_s}}, VisiteA, u"Le visite chiudono"_s},
             {{{Nota, QString(501, u'x')}}, Nota, u"Il testo è troppo lungo"_s},
             {{{PrezzoNotte, u"1.234,5"_s}}, PrezzoNotte, u"1234,50"_s},
             {{{PrezzoNotte, u"1.23,5"_s}}, PrezzoNotte, u"«1.23,5» non è un prezzo"_s},
             {{{PrezzoNotte, u"1.234"_s}}, PrezzoNotte, u"«1.234» non è un prezzo"_s},
             {{{PrezzoNotte, u"100000"_s}}, PrezzoNotte, u"«100000» non è un prezzo"_s},
             {{{PrezzoNotte, u"-3"_s}}, PrezzoNotte, u"«-3» non è un prezzo"_s},
             {{{PrezzoNotte, u"3,"_s}}, PrezzoNotte, u"«3,» non è un prezzo"_s}}) {
        std::vector<QString> testi(kCampi);
        for (const auto& [campo, testo] : caso.digitati) testi[static_cast<std::size_t>(campo)] = testo;
        const VincoliDigitati letti = LeggiDigitati(testi);
        const QString visto = letti.difetto ? letti.difetto->messaggio
                                            : TestiDaDigitare(letti.vincoli)[static_cast<std::size_t>(caso.campo)];
        EXPECT_TRUE(visto.startsWith(caso.esito)) << visto.toStdString() << " for " << caso.esito.toStdString();
        EXPECT_EQ(letti.difetto.value_or(DifettoVincoli{caso.campo, {}}).campo, caso.campo) << visto.toStdString();
    }
}

}  // namespace
}  // namespace cronovia
