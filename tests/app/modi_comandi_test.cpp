#include "app/modi_comandi.h"

#include <gtest/gtest.h>

#include <QStringList>

#include "support/prova.h"

namespace cronovia {
namespace {

using namespace Qt::StringLiterals;

constexpr std::array<QStringView, kComandi> kPulsanti = {u"Nuovo",    u"Ricerca", u"Salva",      u"CancMeta",
                                                         u"Calcola",  u"Stampa",  u"Itinerario", u"GuidaCitta",
                                                         u"CancItin", u"Esce",    u"Import",     u"Export"};

QString Nomi(const StatoComandi& stato) {
    QStringList nomi;
    for (std::size_t i = 0; i < kComandi; ++i) {
        if (stato.comandi[i]) nomi += kPulsanti[i].toString();
    }
    return nomi.join(u' ');
}

const QString kTutti =
    u"Nuovo Ricerca Salva CancMeta Calcola Stampa Itinerario GuidaCitta CancItin Esce Import Export"_s;
constexpr FattiSchermo kTrip{false, false, 5};
constexpr FattiSchermo kEntry{true, false, 5};
constexpr FattiSchermo kSchedule{false, true, 5};

TEST(ModiComandi, WhatEachModeEnables) {
    struct Caso {
        QString modo;
        FattiSchermo fatti;
        QString abilitati;
    };
    const std::vector<Caso> casi = {
        {u"ZZ"_s, kTrip, u""_s},
        {u"zz"_s, kTrip, u""_s},
        {u"z"_s, kTrip, u""_s},
        {u"vv"_s, kTrip, u""_s},
        {u"F"_s, kTrip, u""_s},
        {u""_s, kTrip, u""_s},
        {u"NuImEs"_s, kTrip, u"Nuovo Esce Import"_s},
        {u"All"_s, kTrip, kTutti},
        {u"all"_s, kTrip, kTutti},
        {u"ALL"_s, kTrip, kTutti},
        {u"nuimes"_s, kTrip, u""_s},  // codes tell capitals from small letters
        {u"NuSaEs"_s, kTrip, u"Nuovo Salva Esce"_s},
        {u"NuSaEsRi"_s, kTrip, u"Nuovo Ricerca Salva Esce"_s},
        {u"NuEs"_s, kTrip, u"Nuovo Esce"_s},
        {u"NuRiEs"_s, kTrip, u"Nuovo Ricerca Esce"_s},
        {u"CaSt"_s, kTrip, u"Calcola Stampa"_s},
        {u"Ca"_s, kTrip, u"Calcola"_s},
        {u"Es"_s, kTrip, u"Esce"_s},
        {u"All"_s, kEntry, u""_s},
        {u"CaSt"_s, kEntry, u""_s},
        {u"All"_s, kSchedule, u"Calcola Stampa"_s},
        {u"Es"_s, kSchedule, u"Calcola Stampa"_s},
        {u"zz"_s, kSchedule, u"Calcola Stampa"_s},
        {u"vv"_s, kSchedule, u""_s},  // a printer is being chosen
    };
    for (const Caso& caso : casi) {
        const StatoComandi stato = AbilitaPulsantiComando(caso.modo, u"zz", caso.fatti);
        EXPECT_EQ(Nomi(stato), caso.abilitati) << caso.modo.toStdString();
        EXPECT_TRUE(stato.itinerario.none()) << caso.modo.toStdString();
    }
}

TEST(ModiComandi, TheItineraryHasItsOwnString) {
    const auto abilitati = [](QStringView modo) { return AbilitaPulsantiComando(u"zz", modo, kEntry); };
    EXPECT_TRUE(abilitati(u"all").itinerario.all());
    EXPECT_TRUE(abilitati(u"All").itinerario.all());
    EXPECT_TRUE(abilitati(u"zz").itinerario.none());
    EXPECT_EQ(abilitati(u"Fi").itinerario.count(), 1U);
    EXPECT_TRUE(abilitati(u"Fi").Abilitato(ComandoItinerario::Fine));
    // "Ca" deletes a stage here and computes there.
    const StatoComandi ca = AbilitaPulsantiComando(u"Ca", u"Ca", kTrip);
    EXPECT_TRUE(ca.Abilitato(ComandoItinerario::Cancella));
    EXPECT_FALSE(ca.Abilitato(ComandoItinerario::Ricalcola));
    EXPECT_TRUE(ca.Abilitato(Comando::Calcola));
    EXPECT_FALSE(ca.Abilitato(Comando::CancMeta));
}

TEST(ModiComandi, ExitIsStopWhileComputingAndEscLeavesWhereThatIsSafe) {
    struct Caso {
        QString modo;
        FattiSchermo fatti;
        bool stop, esc, elenco;
    };
    const std::vector<Caso> casi = {
        {u"Es"_s, kTrip, true, false, false},      {u"Es"_s, kEntry, false, false, false},
        {u"NuEs"_s, kTrip, false, false, false},   {u"NuRiEs"_s, kTrip, false, true, false},
        {u"NuRi"_s, kTrip, false, true, false},    {u"NuSaEsRi"_s, kTrip, false, false, false},
        {u"NuRi"_s, kEntry, false, false, false},  {u"aLL"_s, kTrip, false, false, true},
        {u"all"_s, kSchedule, false, false, true}, {u"zz"_s, kTrip, false, false, false}};
    for (const Caso& caso : casi) {
        const StatoComandi stato = AbilitaPulsantiComando(caso.modo, u"zz", caso.fatti);
        EXPECT_EQ(stato.stop, caso.stop) << caso.modo.toStdString();
        EXPECT_EQ(stato.escEsce, caso.esc) << caso.modo.toStdString();
        EXPECT_EQ(stato.chiudeElenco, caso.elenco) << caso.modo.toStdString();
    }
}

TEST(ModiComandi, OtherProgramsAreImportedIntoAnEmptyItineraryOnly) {
    EXPECT_TRUE(AbilitaPulsantiComando(u"all", u"all", {true, false, 0}).altriPacchetti);
    EXPECT_FALSE(AbilitaPulsantiComando(u"all", u"all", {true, false, 1}).altriPacchetti);
}

}  // namespace
}  // namespace cronovia
