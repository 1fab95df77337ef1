#include "store/archive.h"

#include <gtest/gtest.h>

#include <array>

#include "support/prova.h"

namespace cronovia {
namespace {

using namespace Qt::StringLiterals;

class ArchiveTest : public ::testing::Test {
  protected:
    void Aggiungi(const QString& localita, const QString& descrizione = u"Duomo"_s) {
        archive_.Insert(Tabella::GuidaCitta,
                        std::array<QString, 5>{localita, u"01"_s, descrizione, u"01:00"_s, u"0"_s});
    }
    QStringList Localita(const Ricerca& ricerca = {Tabella::GuidaCitta, {}}, bool alfabetico = false) {
        QStringList localita;
        const auto records = alfabetico ? archive_.Select(ricerca, {guida::Localita}) : archive_.Select(ricerca);
        for (const Record& record : records) localita += record[guida::Localita];
        return localita;
    }

    prova::CartellaDiProva cartella_;
    Archive archive_ = Archive::Open(cartella_.Percorso());
};

TEST_F(ArchiveTest, ValuesComeBackAsTheyWere) {
    const std::array<QString, 5> valori = {u"L'Île-d'Œuf \"à\"; --"_s, u"09"_s, QString(96, u'ß'), u"  :  "_s, u""_s};
    archive_.Insert(Tabella::GuidaCitta, valori);
    archive_.Insert(Tabella::TipoGuida, std::array<QString, 3>{u"10"_s, u"a\0b"_s, u"1"_s});
    const Record record = archive_.SelectFirst({Tabella::GuidaCitta, {}}).value();
    EXPECT_EQ(record.valori, std::vector<QString>(valori.begin(), valori.end()));
    const Record tipo = archive_.SelectFirst({Tabella::TipoGuida, {}}).value();
    EXPECT_EQ(tipo[tipoguida::Descrizione], u"a\0b"_s);
    EXPECT_EQ(tipo[tipoguida::TempoObbligatorio], u"1"_s);
}

TEST_F(ArchiveTest, UpdateAndDeleteTouchOneRow) {
    for (const QString& nome : {u"Alba"_s, u"Bra"_s, u"Cuneo"_s}) Aggiungi(nome);
    Record bra = archive_.SelectFirst({Tabella::GuidaCitta, {{guida::Localita, NamePattern(u"bra")}}}).value();
    bra[guida::Localita] = u"Dronero"_s;
    archive_.Update(Tabella::GuidaCitta, bra);
    EXPECT_EQ(Localita(), (QStringList{u"Alba"_s, u"Dronero"_s, u"Cuneo"_s}));
    archive_.Delete(Tabella::GuidaCitta, bra.id);
    EXPECT_EQ(Localita(), (QStringList{u"Alba"_s, u"Cuneo"_s}));
}

TEST_F(ArchiveTest, WhatIsWiderThanItsFieldIsRefused) {
    Aggiungi(QString(30, u'à'));
    const QString messaggio = prova::MessaggioDi([&] { Aggiungi(QString(31, u'à')); });
    EXPECT_TRUE(messaggio.contains(u"Localita"_s) && messaggio.contains(u"30"_s)) << messaggio.toStdString();
    Record record = archive_.SelectFirst({Tabella::GuidaCitta, {}}).value();
    record[guida::TempoSosta] = u"001:00"_s;
    prova::MessaggioDi([&] { archive_.Update(Tabella::GuidaCitta, record); });
    EXPECT_EQ(Localita(), QStringList{QString(30, u'à')});
    EXPECT_EQ(archive_.SelectFirst({Tabella::GuidaCitta, {}}).value()[guida::TempoSosta], u"01:00"_s);
}

TEST_F(ArchiveTest, ATransactionHappensWholeOrNotAtAll) {
    Aggiungi(u"Alba"_s);
    {
        const Transaction transaction(archive_);
        Aggiungi(u"Bra"_s);
        archive_.Delete(Tabella::GuidaCitta, 1);
        EXPECT_EQ(Localita(), QStringList{u"Bra"_s});
    }
    EXPECT_EQ(Localita(), QStringList{u"Alba"_s});
    prova::MessaggioDi([&] {
        Transaction transaction(archive_);
        Aggiungi(u"Bra"_s);
        Aggiungi(QString(31, u'x'));
        transaction.Commit();
    });
    EXPECT_EQ(Localita(), QStringList{u"Alba"_s});
    Transaction transaction(archive_);
    Aggiungi(u"Bra"_s);
    transaction.Commit();
    EXPECT_EQ(Archive::Open(cartella_.Percorso()).Count(Tabella::GuidaCitta), 2);
}

TEST_F(ArchiveTest, RowsComeInTheOrderOfTheAlphabetOrOfTheirAdding) {
    const QStringList aggiunte = {u"zara"_s, u"Évora"_s, u"Esino"_s, u"ÅLESUND"_s, u"alba"_s, u"Alba"_s, u"Eze"_s};
    for (const QString& nome : aggiunte) Aggiungi(nome);
    EXPECT_EQ(Localita(), aggiunte);
    EXPECT_EQ(Localita({Tabella::GuidaCitta, {}}, true),
              (QStringList{u"Alba"_s, u"alba"_s, u"ÅLESUND"_s, u"Esino"_s, u"Évora"_s, u"Eze"_s, u"zara"_s}));
    Aggiungi(u"ALBA"_s);
    const Ricerca alba{Tabella::GuidaCitta, {{guida::Localita, NamePattern(u"ALBA")}}};
    EXPECT_EQ(archive_.SelectFirst(alba).value()[guida::Localita], u"alba"_s);
}

TEST_F(ArchiveTest, EveryConditionMustHold) {
    Aggiungi(u"Alba"_s, u"Duomo"_s);
    Aggiungi(u"Alba"_s, u"Torre"_s);
    Aggiungi(u"Bra"_s, u"Torre"_s);
    const Ricerca ricerca{Tabella::GuidaCitta,
                          {{guida::Localita, NamePattern(u"al*")}, {guida::Descrizione, NamePattern(u"TORRE")}}};
    ASSERT_EQ(archive_.Select(ricerca).size(), 1U);
    EXPECT_EQ(archive_.Select(ricerca).front().id, 2);
    EXPECT_TRUE(archive_.Exists(ricerca));
}

class ProgressoAnnotato : public Progress {
  public:
    void Title(const QString& title) override { titolo = title; }
    void Advance(double count, double total) override { percentuali.push_back(100 * count / total); }
    QString titolo;
    std::vector<double> percentuali;
};

TEST_F(ArchiveTest, DeletingByPatternTellsItsProgress) {
    for (const QString& nome : {u"SANT'ANNA"_s, u"Sant anna"_s, u"SANTANNA"_s, u"Alba"_s}) Aggiungi(nome);
    ProgressoAnnotato progresso;
    const Condizione sant{guida::Localita, NamePattern(u"SANT?ANNA")};
    EXPECT_EQ(archive_.CancellaTabella(Tabella::GuidaCitta, sant, progresso), 2);
    EXPECT_EQ(Localita(), (QStringList{u"SANTANNA"_s, u"Alba"_s}));
    EXPECT_EQ(progresso.titolo, u"Cancellazione tabella GuidaCitta"_s);
    EXPECT_EQ(progresso.percentuali, (std::vector<double>{50, 100}));
    EXPECT_EQ(archive_.CancellaTabella(Tabella::GuidaCitta, std::nullopt, progresso), 2);
    EXPECT_EQ(archive_.Count(Tabella::GuidaCitta), 0);
    EXPECT_EQ(archive_.CancellaTabella(Tabella::GuidaCitta, std::nullopt, progresso), 0);
}

}  // namespace
}  // namespace cronovia
