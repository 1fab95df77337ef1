// How the window starts, and what its lists offer.
#include <QProcess>
#include <QStandardPaths>

#include "trips/mete.h"
#include "ui/finestra.h"

namespace cronovia {
namespace {

using namespace Qt::StringLiterals;
using AvvioTest = prova::FinestraTest;

const QString kTutti =
    u"Calcola CancItin CancMeta Esce Export GuidaCitta Import Itinerario Nuovo Ricerca Salva Stampa"_s;

TEST_F(AvvioTest, AnEmptyFolder) {
    Apri();
    EXPECT_EQ(Abilitati(), u"Esce Import Nuovo"_s);
    EXPECT_EQ(Testo(u"txtLocalita"_s), u""_s);
    EXPECT_EQ(Testo(u"txtInizioGSett"_s), u"Sab"_s);
    EXPECT_EQ(Scelta(u"cmbInizio_3"_s) + Scelta(u"cmbInizio_4"_s), u"1045"_s);
    EXPECT_EQ(Scelta(u"cmbMediaKm_0"_s), u"75"_s);
    EXPECT_EQ(Scelta(u"cmbOra_1"_s) + Scelta(u"cmbMin_1"_s), u"1230"_s);
    EXPECT_EQ(Scelta(u"cmbSoste"_s), u"3 - Sosta Maggiore"_s);
}

TEST_F(AvvioTest, OldDataIsOfferedUntilTheFirstCommand) {
    Apri();
    EXPECT_FALSE(Pulsante(u"cmdConverte"_s).isVisible());
    prova::ScriviFile(QDir(cartella_.Percorso()).filePath(u"VandMete.dat"_s), {});
    Apri();
    EXPECT_TRUE(Pulsante(u"cmdConverte"_s).isVisible() && Pulsante(u"cmdConverte"_s).isEnabled());
    Premi(u"cmdNuovo"_s);
    EXPECT_FALSE(Pulsante(u"cmdConverte"_s).isVisible());
}

TEST_F(AvvioTest, TheTripThatWasCurrentComesBack) {
    ImportaEsempio(u"provenza"_s);
    ImportaEsempio(u"sicilia"_s);
    {
        Sessione sessione(cartella_.Percorso());
        SalvaIlCodiceMetaCorrente(sessione.Archivio(), CodiciDelleMete(sessione.Archivio()).front());
    }
    Apri();
    const QString prima = Testo(u"txtLocalita"_s);
    EXPECT_EQ(Abilitati(), kTutti);
    EXPECT_NE(Cella(0, 1), u""_s);
    {
        Sessione sessione(cartella_.Percorso());
        SalvaIlCodiceMetaCorrente(sessione.Archivio(), u"000077"_s);  // deleted meanwhile
    }
    Apri();
    EXPECT_NE(Testo(u"txtLocalita"_s), prima);
    EXPECT_EQ(Abilitati(), kTutti);
}

TEST_F(AvvioTest, AProcessEndsWithAMessageWhenTheArchiveCannotBeOpened) {
    const auto avvia = [&] {
        QProcess processo;
        processo.start(QCoreApplication::applicationFilePath(), {u"--avvio"_s, cartella_.Percorso()});
        EXPECT_TRUE(processo.waitForFinished());
        EXPECT_EQ(processo.exitStatus(), QProcess::NormalExit);
        return std::pair{processo.exitCode(), QString::fromUtf8(processo.readAllStandardOutput())};
    };
    EXPECT_EQ(avvia(), (std::pair{0, QString()}));
    const QByteArray robaccia(5000, 'x');
    prova::ScriviFile(cartella_.Archivio(), robaccia);
    const auto [codice, box] = avvia();
    EXPECT_EQ(codice, 1);
    EXPECT_TRUE(box.startsWith(u"Errore apertura database"_s)) << box.toStdString();
    EXPECT_EQ(prova::LeggiFile(cartella_.Archivio()), robaccia);
}

TEST_F(AvvioTest, WhatTheListsOffer) {
    // First, last and number of entries.
    const std::vector<std::pair<QString, QString>> liste = {
        {u"cmbInizio_0"_s, u"01..30 30"_s},   {u"cmbInizio_2"_s, u"1998..2032 35"_s},
        {u"cmbInizio_3"_s, u"00..24 25"_s},   {u"cmbMediaKm_0"_s, u"50..140 19"_s},
        {u"cmbMediaKm_1"_s, u"45..110 14"_s}, {u"cmbMediaKm_2"_s, u"30..70 9"_s},
        {u"cmbMediaKm_3"_s, u"20..60 9"_s},   {u"cmbOra_0"_s, u"00..11 12"_s},
        {u"cmbOra_1"_s, u"11..15 5"_s},       {u"cmbOra_2"_s, u"18..21 4"_s},
        {u"cmbOra_3"_s, u"20..24 5"_s},       {u"cmbOra_4"_s, u"00..02 3"_s},
        {u"cmbOra_5"_s, u"00..02 3"_s},       {u"cmbOra_6"_s, u"00..11 12"_s},
        {u"cmbOra_7"_s, u"16..24 9"_s},       {u"cmbOra_8"_s, u"01..24 24"_s},
        {u"cmbMin_0"_s, u"00..45 4"_s},       {u"cmbSosta_0"_s, u"00..15 16"_s},
        {u"cmbSosta_1"_s, u"00..23 24"_s},    {u"cmbSosta_2"_s, u"00..45 4"_s},
        {u"cmbRipM"_s, u"00..60 8"_s},        {u"cmbRipH"_s, u"00..08 9"_s},
        {u"cmbRipG"_s, u"00..05 6"_s},        {u"cmbRipGG"_s, u"00..10 11"_s}};
    Apri();
    for (const auto& [nome, voci] : liste) {
        const QComboBox& elenco = Elenco(nome);
        const int ultima = elenco.count() - 1;
        EXPECT_EQ(u"%1..%2 %3"_s.arg(elenco.itemText(0), elenco.itemText(ultima)).arg(ultima + 1), voci)
            << nome.toStdString();
    }
}

}  // namespace
}  // namespace cronovia
