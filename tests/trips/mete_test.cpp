// SPDX-License-Identifier: GPL-3.0-or-later
#include "trips/mete.h"

#include <gtest/gtest.h>

#include <array>

#include "support/archivio.h"

namespace cronovia {
namespace {

using namespace Qt::StringLiterals;

class MeteTest : public prova::ConArchivio {
  protected:
    QString Inserisci(const QString& localita, const QString& nazione = u"ITALIA"_s) {
        Meta meta;
        meta.localita = localita;
        meta.nazione = nazione;
        meta.dataInizio = NumeroGiorno(731813);
        return InserisciMeta(archive_, meta);
    }
    void Cancella(const QString& codice) {
        const Condition condizione{mete::CodiceMeta, NamePattern::Exactly(codice)};
        archive_.DeleteMatching(Table::MeteVandro, condizione, progress_);
    }
};

TEST(NuovoCodiceMeta, IsTheLowestFreeNumber) {
    EXPECT_EQ(NuovoCodiceMeta({}), u"000001"_s);
    EXPECT_EQ(NuovoCodiceMeta(std::array{u"000004"_s, u"000002"_s, u"000001"_s}), u"000003"_s);
    EXPECT_EQ(NuovoCodiceMeta(std::array{u"000001"_s, u"000001"_s, u"000000"_s}), u"000002"_s);
}

TEST_F(MeteTest, ANewTripGetsACodeAndBecomesTheCurrentOne) {
    EXPECT_EQ(RicercaMetaCorrente(archive_), u""_s);
    EXPECT_EQ(Inserisci(u" CAPO NORD "_s), u"000001"_s);
    EXPECT_EQ(Inserisci(u"SICILIA"_s), u"000002"_s);
    EXPECT_EQ(RicercaMetaCorrente(archive_), u"000002"_s);
    EXPECT_EQ(CaricaMeta(archive_, u"000001").value().localita, u"CAPO NORD"_s);
    EXPECT_FALSE(CaricaMeta(archive_, u"*").has_value());
    Inserisci(u"VENEZIA AUTOSTRADA"_s);
    EXPECT_EQ(CaricaMeta(archive_, u"000003").value().localita, u"venezia autostrada"_s);
    Cancella(u"000002"_s);
    EXPECT_EQ(Inserisci(u"CORSICA"_s), u"000002"_s);
    EXPECT_EQ(CodiciDelleMete(archive_), (std::vector<QString>{u"000001"_s, u"000002"_s, u"000003"_s}));
}

TEST_F(MeteTest, AVanishedCurrentTripGivesWayToTheHighestCode) {
    for (const QString& localita : {u"CAPO NORD"_s, u"SICILIA"_s, u"PROVENZA"_s}) Inserisci(localita);
    SalvaIlCodiceMetaCorrente(archive_, u"000001"_s);
    EXPECT_EQ(RicercaMetaCorrente(archive_), u"000001"_s);
    Cancella(u"000001"_s);
    EXPECT_EQ(RicercaMetaCorrente(archive_), u"000003"_s);
}

TEST_F(MeteTest, ADestinationThatExistsAlreadyIsRefused) {
    Inserisci(u"SANT'ANNA"_s);
    Inserisci(u"SANTANNA"_s);
    Meta altra = CaricaMeta(archive_, u"000002").value();
    for (const QString& stessa : {u"SANT'ANNA"_s, u"sant'anna"_s, u"SANT?ANNA"_s, u" SANT\"ANNA"_s}) {
        altra.localita = stessa;
        const QString messaggio = u"Esiste già la mèta SANT'ANNA con il codice 000001."_s;
        EXPECT_EQ(prova::MessaggioDi([&] { Inserisci(stessa); }), messaggio);
        EXPECT_EQ(prova::MessaggioDi([&] { DecidiSalvataggio(archive_, altra); }), messaggio);
        EXPECT_EQ(prova::MessaggioDi([&] { SalvaMeta(archive_, altra, {false, u"000002"_s}); }), messaggio);
    }
    EXPECT_EQ(CaricaMeta(archive_, u"000002").value().localita, u"SANTANNA"_s);
    Meta prima = CaricaMeta(archive_, u"000001").value();
    prima.localita = u"SANT?ANNA"_s;  // its own
    SalvaMeta(archive_, prima, DecidiSalvataggio(archive_, prima));
    // Those that an earlier release left beside each other can still be changed.
    Record doppia = *archive_.SelectFirst({Table::MeteVandro, {{mete::CodiceMeta, NamePattern(u"000002")}}});
    doppia[mete::Localita] = u"SANT'ANNA"_s;
    archive_.Update(Table::MeteVandro, doppia);
    for (const QStringView codice : {u"000001", u"000002"}) {
        const Meta una = CaricaMeta(archive_, codice).value();
        EXPECT_EQ(SalvaMeta(archive_, una, DecidiSalvataggio(archive_, una)), codice);
    }
}

TEST_F(MeteTest, WhatCannotBeSavedChangesNothing) {
    struct Rifiutata {
        QString localita;
        QString nazione;
        std::optional<NumeroGiorno> data;
        std::array<int, kTipiStrada> medie;
        QString messaggio;
    };
    const std::array medie = ParametriViaggio().mediaKm;
    const NumeroGiorno giorno(731813);
    const QString data = u"La data d'inizio dev'essere un giorno dal 01/01/1901 al 31/12/2099."_s;
    for (const Rifiutata& caso : std::vector<Rifiutata>{
             {u"  "_s, u"ITALIA"_s, giorno, medie, u"Campo Località: obbligatorio!"_s},
             {u"ROMA"_s, u" "_s, giorno, medie, u"Campo Nazione: obbligatorio!"_s},
             {QString(31, u'X'), u"I"_s, giorno, medie,
              u"Il nome della località è troppo lungo: al massimo 30 caratteri."_s},
             {u"ROMA"_s, QString(20, u'X'), giorno, medie,
              u"Il nome della nazione è troppo lungo: al massimo 19 caratteri."_s},
             {u"ROMA"_s, u"I"_s, std::nullopt, medie, data},
             {u"ROMA"_s, u"I"_s, NumeroDelGiorno({31, 12, 1900}), medie, data},
             {u"ROMA"_s, u"I"_s, NumeroDelGiorno({1, 1, 2100}), medie, data},
             {u"ROMA"_s,
              u"I"_s,
              giorno,
              {1, 200, 0, 30},
              u"La velocità media su Principale dev'essere da 1 a 200 km/h."_s},
             {u"ROMA"_s,
              u"I"_s,
              giorno,
              {201, 65, 50, 0},
              u"La velocità media su Autostrada dev'essere da 1 a 200 km/h."_s},
         }) {
        Meta meta{{}, caso.localita, caso.nazione, caso.data, {}, {}, 0, {}};
        meta.parametri.mediaKm = caso.medie;
        EXPECT_EQ(prova::MessaggioDi([&] { InserisciMeta(archive_, meta); }), caso.messaggio);
        EXPECT_EQ(prova::MessaggioDi([&] { DecidiSalvataggio(archive_, meta); }), caso.messaggio);
        EXPECT_EQ(prova::MessaggioDi([&] { SalvaMeta(archive_, meta, {true, u"000001"_s}); }), caso.messaggio);
        if (caso.medie == medie) continue;
        EXPECT_EQ(prova::MessaggioDi([&] { MemorizzaDefaultMeta(archive_, meta.parametri); }), caso.messaggio);
    }
    EXPECT_EQ(archive_.Count(Table::MeteVandro) + archive_.Count(Table::MetaCorrente), 0);
    EXPECT_EQ(archive_.Count(Table::Parametri), 0);
}

TEST_F(MeteTest, PersonalDefaultsAreKeptAndCanBeReset) {
    const ParametriViaggio standard;
    EXPECT_EQ(CaricaDefaultMeta(archive_), standard);
    EXPECT_EQ(archive_.Count(Table::Parametri), 0);  // who reads does not write
    ParametriViaggio personali;
    personali.mediaKm = {100, 80, 60, 40};
    personali.oraNotte = 2400_cent;
    personali.calcoloSoste = CalcoloSoste::SosteGuida;
    MemorizzaDefaultMeta(archive_, personali);
    CompletaDefaultMeta(archive_);  // only an archive without them gets the standard ones
    EXPECT_EQ(CaricaDefaultMeta(archive_), personali);
    EXPECT_EQ(RipristinaDefaultMeta(archive_), standard);
    EXPECT_EQ(CaricaDefaultMeta(archive_), standard);
    EXPECT_EQ(archive_.Count(Table::Parametri), 1);
}

}  // namespace
}  // namespace cronovia
