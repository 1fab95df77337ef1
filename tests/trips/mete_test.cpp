#include "trips/mete.h"

#include <gtest/gtest.h>

#include <QStringList>
#include <array>
#include <utility>

#include "calendar/testo.h"
#include "support/prova.h"

namespace cronovia {
namespace {

using namespace Qt::StringLiterals;

class MeteTest : public ::testing::Test {
  protected:
    QString Inserisci(const QString& localita, const QString& nazione = u"ITALIA"_s) {
        Meta meta;
        meta.localita = localita;
        meta.nazione = nazione;
        meta.dataInizio = NumeroGiorno(731813);
        return InserisciMeta(archive_, meta);
    }
    void Cancella(const QString& codice) {
        const Condizione condizione{mete::CodiceMeta, NamePattern::Exactly(codice)};
        archive_.CancellaTabella(Tabella::MeteVandro, condizione, progresso_);
    }

    prova::CartellaDiProva cartella_;
    Archive archive_ = Archive::Open(cartella_.Percorso());
    Progress progresso_;
};

TEST(NuovoCodiceMeta, IsTheLowestFreeNumber) {
    using Caso = std::pair<std::vector<QString>, QString>;
    const std::array<Caso, 6> casi = {Caso{{}, u"000001"_s},
                                      {{u"000001"_s, u"000002"_s, u"000004"_s}, u"000003"_s},
                                      {{u"000001"_s, u"000002"_s, u"000003"_s}, u"000004"_s},
                                      {{u"000003"_s, u"000001"_s, u"000002"_s}, u"000004"_s},
                                      {{u"000002"_s, u"000003"_s}, u"000001"_s},
                                      {{u"000001"_s, u"000001"_s, u"000000"_s}, u"000002"_s}};
    for (const auto& [codici, atteso] : casi) EXPECT_EQ(NuovoCodiceMeta(codici), atteso);
}

TEST(NuovoCodiceMeta, IsRefusedWhenAllAreTaken) {
    std::vector<QString> codici;
    for (int i = 1; i < 1'000'000; ++i) codici.push_back(Zero(i, 6));
    EXPECT_FALSE(prova::MessaggioDi([&] { NuovoCodiceMeta(codici); }).isEmpty());
    codici[899'999].clear();
    EXPECT_EQ(NuovoCodiceMeta(codici), u"900000"_s);
}

TEST_F(MeteTest, ANewTripGetsACodeAndBecomesTheCurrentOne) {
    EXPECT_EQ(RicercaMetaCorrente(archive_), u""_s);
    EXPECT_EQ(Inserisci(u" CAPO NORD "_s), u"000001"_s);
    EXPECT_EQ(Inserisci(u"SICILIA"_s), u"000002"_s);
    EXPECT_EQ(RicercaMetaCorrente(archive_), u"000002"_s);
    const Meta meta = CaricaDatiAnagraficiMeta(archive_, u"000001").value();
    EXPECT_EQ(meta.localita, u"CAPO NORD"_s);
    EXPECT_EQ(meta.nazione, u"ITALIA"_s);
    EXPECT_FALSE(CaricaDatiAnagraficiMeta(archive_, u"000003").has_value());
    EXPECT_FALSE(CaricaDatiAnagraficiMeta(archive_, u"*").has_value());
    Inserisci(u"PROVENZA"_s);
    Cancella(u"000002"_s);
    EXPECT_EQ(Inserisci(u"CORSICA"_s), u"000002"_s);
    EXPECT_EQ(CodiciDelleMete(archive_), (std::vector<QString>{u"000001"_s, u"000002"_s, u"000003"_s}));
}

TEST_F(MeteTest, AVanishedCurrentTripGivesWayToTheHighestCode) {
    for (const QString& localita : {u"CAPO NORD"_s, u"SICILIA"_s, u"PROVENZA"_s}) Inserisci(localita);
    SalvaIlCodiceMetaCorrente(archive_, u"000001"_s);
    EXPECT_EQ(RicercaMetaCorrente(archive_), u"000001"_s);
    EXPECT_EQ(archive_.Count(Tabella::MetaCorrente), 1);
    Cancella(u"000001"_s);
    EXPECT_EQ(RicercaMetaCorrente(archive_), u"000003"_s);
    Cancella(u"000003"_s);
    Cancella(u"000002"_s);
    EXPECT_EQ(RicercaMetaCorrente(archive_), u""_s);
}

TEST_F(MeteTest, ADestinationThatExistsAlreadyIsRefused) {
    Inserisci(u"SANT'ANNA"_s);
    for (const QString& stessa : {u"SANT'ANNA"_s, u"sant'anna"_s, u"SANT?ANNA"_s, u"SANT\"ANNA"_s}) {
        const QString messaggio = prova::MessaggioDi([&] { Inserisci(stessa); });
        EXPECT_TRUE(messaggio.contains(u"SANT'ANNA"_s) && messaggio.contains(u"000001"_s)) << messaggio.toStdString();
    }
    EXPECT_EQ(Inserisci(u"SANTANNA"_s), u"000002"_s);
}

TEST_F(MeteTest, WhatCannotBeSavedChangesNothing) {
    EXPECT_EQ(prova::MessaggioDi([&] { Inserisci(u"  "_s); }), u"Campo Località: obbligatorio!"_s);
    EXPECT_EQ(prova::MessaggioDi([&] { Inserisci(u"ROMA"_s, u" "_s); }), u"Campo Nazione: obbligatorio!"_s);
    EXPECT_TRUE(prova::MessaggioDi([&] { Inserisci(QString(31, u'X')); }).contains(u"troppo lungo"_s));
    EXPECT_EQ(archive_.Count(Tabella::MeteVandro), 0);
    EXPECT_EQ(archive_.Count(Tabella::MetaCorrente), 0);
    EXPECT_EQ(Inserisci(QString(30, u'X'), QString(19, u'Y')), u"000001"_s);
    EXPECT_EQ(CaricaDatiAnagraficiMeta(archive_, u"000001")->nazione, QString(19, u'Y'));
}

TEST_F(MeteTest, MotorwaysAreStoredInSmallLetters) {
    Inserisci(u"VENEZIA AUTOSTRADA"_s);
    Inserisci(u"Autostrada del Sole"_s);
    Inserisci(u"VENEZIA"_s);
    EXPECT_EQ(CaricaDatiAnagraficiMeta(archive_, u"000001")->localita, u"venezia autostrada"_s);
    EXPECT_EQ(CaricaDatiAnagraficiMeta(archive_, u"000002")->localita, u"autostrada del sole"_s);
    EXPECT_EQ(CaricaDatiAnagraficiMeta(archive_, u"000003")->localita, u"VENEZIA"_s);
}

TEST_F(MeteTest, PersonalDefaultsAreKeptAndCanBeReset) {
    const ParametriViaggio standard;
    EXPECT_EQ(CaricaDefaultMeta(archive_), standard);
    EXPECT_EQ(archive_.Count(Tabella::Parametri), 1);  // the first start stores them
    ParametriViaggio personali;
    personali.mediaKm = {100, 80, 60, 40};
    personali.oraNotte = 2400_cent;
    personali.calcoloSoste = CalcoloSoste::SosteGuida;
    MemorizzaVariabiliMeta(archive_, personali);
    EXPECT_EQ(CaricaDefaultMeta(archive_), personali);
    EXPECT_EQ(CaricaDefaultMeta(archive_, true), standard);
    EXPECT_EQ(CaricaDefaultMeta(archive_), standard);
    EXPECT_EQ(archive_.Count(Tabella::Parametri), 1);
    EXPECT_EQ(
        archive_.SelectFirst({Tabella::Parametri, {}})->valori,
        (std::vector<QString>{u"75"_s, u"65"_s, u"50"_s, u"30"_s, u"0900"_s, u"1230"_s, u"0230"_s, u"2000"_s, u"0145"_s,
                              u"2230"_s, u"15"_s, u"03"_s, u"01"_s, u"05"_s, u"0900"_s, u"1800"_s, u"0600"_s, u"3"_s}));
}

}  // namespace
}  // namespace cronovia
