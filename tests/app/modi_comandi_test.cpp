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
        bool stop = false;     ///< Exit reads Stop
        bool escEsce = false;  ///< Esc leaves, where that is safe
    };
    const std::vector<Caso> casi = {
        {u"zz"_s, kTrip, u""_s},
        {u"NuImEs"_s, kTrip, u"Nuovo Esce Import"_s},
        {u"All"_s, kTrip, kTutti},
        {u"nuimes"_s, kTrip, u""_s},  // codes tell capitals from small letters
        {u"NuSaEsRi"_s, kTrip, u"Nuovo Ricerca Salva Esce"_s},
        {u"NuRiEs"_s, kTrip, u"Nuovo Ricerca Esce"_s, false, true},
        {u"NuRi"_s, kTrip, u"Nuovo Ricerca"_s, false, true},
        {u"NuRi"_s, kEntry, u""_s},
        {u"Es"_s, kTrip, u"Esce"_s, true},
        {u"Es"_s, kEntry, u""_s},
        {u"all"_s, kSchedule, u"Calcola Stampa"_s},
        {u"zz"_s, kSchedule, u"Calcola Stampa"_s},
        {u"vv"_s, kSchedule, u""_s},  // a printer is being chosen
    };
    for (const Caso& caso : casi) {
        const StatoComandi stato = AbilitaPulsantiComando(caso.modo, u"zz", caso.fatti);
        EXPECT_EQ(Nomi(stato), caso.abilitati) << caso.modo.toStdString();
        EXPECT_TRUE(stato.itinerario.none()) << caso.modo.toStdString();
        EXPECT_EQ(stato.stop, caso.stop) << caso.modo.toStdString();
        EXPECT_EQ(stato.escEsce, caso.escEsce) << caso.modo.toStdString();
    }
}

TEST(ModiComandi, TheItineraryHasItsOwnString) {
    EXPECT_TRUE(AbilitaPulsantiComando(u"zz", u"all", kEntry).itinerario.all());
    // "Ca" deletes a stage here and computes there.
    const StatoComandi ca = AbilitaPulsantiComando(u"Ca", u"Ca", kTrip);
    EXPECT_TRUE(ca.Abilitato(ComandoItinerario::Cancella));
    EXPECT_EQ(ca.itinerario.count(), 1U);
    EXPECT_EQ(Nomi(ca), u"Calcola"_s);
}

}  // namespace
}  // namespace cronovia
