// SPDX-License-Identifier: GPL-3.0-or-later
#include "store/archive.h"

#include <SQLiteCpp/Database.h>
#include <gtest/gtest.h>

#include <array>
#include <atomic>
#include <chrono>
#include <stdexcept>
#include <thread>

#include "store/archive_check.h"
#include "store/background_check.h"
#include "support/archivio.h"

namespace cronovia {
namespace {

using namespace Qt::StringLiterals;

class ArchiveTest : public prova::ConArchivio {
  protected:
    void Aggiungi(const QString& localita) { prova::NellaGuida(archive_, localita); }
    QStringList Localita(bool alfabetico = false) {
        QStringList localita;
        const Search tutte{Table::GuidaCitta, {}};
        const auto records = alfabetico ? archive_.Select(tutte, {guida::Localita}) : archive_.Select(tutte);
        for (const Record& record : records) localita += record[guida::Localita];
        return localita;
    }
};

TEST_F(ArchiveTest, ValuesComeBackAsTheyWere) {
    const std::array<QString, 5> valori = {u"L'Île-d'Œuf \"à\"; --"_s, u"09"_s, u"a\0b"_s, u"  :  "_s, u""_s};
    archive_.Insert(Table::GuidaCitta, valori);
    const Record record = archive_.SelectFirst({Table::GuidaCitta, {}}).value();
    EXPECT_EQ(record.values, std::vector<QString>(valori.begin(), valori.end()));
}

TEST_F(ArchiveTest, UpdateAndDeleteTouchOneRow) {
    for (const QString& nome : {u"Alba"_s, u"Bra"_s, u"Cuneo"_s}) Aggiungi(nome);
    Record bra = archive_.SelectFirst({Table::GuidaCitta, {{guida::Localita, NamePattern(u"bra")}}}).value();
    bra[guida::Localita] = u"Dronero"_s;
    archive_.Update(Table::GuidaCitta, bra);
    EXPECT_EQ(Localita(), (QStringList{u"Alba"_s, u"Dronero"_s, u"Cuneo"_s}));
    archive_.Delete(Table::GuidaCitta, bra.id);
    EXPECT_EQ(Localita(), (QStringList{u"Alba"_s, u"Cuneo"_s}));
}

TEST_F(ArchiveTest, WhatDoesNotGoWithOtherRowsIsToldOf) {
    prova::Inserisci(archive_, Table::MeteVandro, {u"000001"_s});
    prova::Inserisci(archive_, Table::Itinerari, {u"000001"_s, u"0001"_s});
    for (const QString& codice : {u"000001"_s, u"000002"_s}) {
        for (const Table tabella : TripTablesOnDemand()) {
            prova::Inserisci(archive_, tabella, {codice, u"0001"_s});
        }
    }
    prova::Inserisci(archive_, Table::Itinerari, {u"000003"_s, u"0001"_s});
    QStringList detti;
    for (const Finding& finding : CheckArchive(cartella_.Path())) detti += finding.text + finding.detail;
    EXPECT_EQ(detti, (QStringList{u"Ci sono tappe di mète che non ci sono più (tappe: 1).000003"_s,
                                  u"Ci sono orari fissati di tappe che non ci sono più (tappe: 1).000002 0001"_s,
                                  u"Ci sono scadenze di mète che non ci sono più (scadenze: 1).000002"_s,
                                  u"Ci sono distanze stimate di tappe che non ci sono più (tappe: 1).000002 0001"_s}));
}

// Two indexes in each other's place: no page is in disorder.
TEST_F(ArchiveTest, ALargeOneIsLookedThroughBesideTheWork) {
    for (const QString& nome : {u"Alba"_s, u"Bra"_s}) prova::Inserisci(archive_, Table::Itinerari, {u"000001"_s, nome});
    const auto danneggiato = [this] {
        std::optional<bool> esito;
        std::atomic<bool> finito = false;
        BackgroundCheck controllo(archive_.Path());
        controllo.Start([&](std::optional<bool> damaged) {
            esito = damaged;
            finito = true;
        });
        while (!finito) std::this_thread::yield();
        return esito;
    };
    EXPECT_EQ(danneggiato(), false);
    SQLite::Database(archive_.Path().toStdString(), SQLite::OPEN_READWRITE)
        .exec(
            "PRAGMA writable_schema = ON; UPDATE sqlite_master SET rootpage = (SELECT SUM(rootpage) FROM "
            "sqlite_master WHERE name IN ('Itinerari_CodiceMeta', 'Itinerari_Sequenza')) - rootpage WHERE name IN "
            "('Itinerari_CodiceMeta', 'Itinerari_Sequenza')");
    EXPECT_EQ(danneggiato(), true);
    BackgroundCheck fermato(archive_.Path());
    fermato.Start([](std::optional<bool> damaged) { EXPECT_EQ(damaged, true); });
    fermato.Stop();
}

TEST_F(ArchiveTest, WhatIsWiderThanItsFieldIsRefused) {
    Aggiungi(QString(30, u'à'));
    const QString messaggio = prova::MessaggioDi([&] { Aggiungi(QString(31, u'à')); });
    EXPECT_TRUE(messaggio.endsWith(u"al massimo 30 caratteri."_s)) << messaggio.toStdString();
    EXPECT_EQ(Localita(), QStringList{QString(30, u'à')});
}

TEST_F(ArchiveTest, ATransactionHappensWholeOrNotAtAll) {
    Aggiungi(u"Alba"_s);
    {
        const Transaction transaction(archive_);
        Aggiungi(u"Bra"_s);
        archive_.Delete(Table::GuidaCitta, 1);
        EXPECT_EQ(Localita(), QStringList{u"Bra"_s});
    }
    EXPECT_EQ(Localita(), QStringList{u"Alba"_s});
    Transaction transaction(archive_);
    for (const bool intera : {true, false}) {
        Transaction dentro(archive_);
        Aggiungi(u"Bra"_s);
        if (intera) dentro.Commit();
    }
    EXPECT_EQ(Archive::Open(cartella_.Path()).Count(Table::GuidaCitta), 1);
    transaction.Commit();
    EXPECT_EQ(Archive::Open(cartella_.Path()).Count(Table::GuidaCitta), 2);
}

// Another program, which writes as soon as it may.
class Altro {
  public:
    explicit Altro(const QString& cartella, std::int64_t id = 1)
        : filo_([this, cartella, id] {
              try {
                  Archive::Open(cartella).Delete(Table::GuidaCitta, id);
                  scritto_ = true;
              } catch (const Failure&) {
              }
          }) {}
    ~Altro() { filo_.join(); }
    Altro(const Altro&) = delete;
    Altro& operator=(const Altro&) = delete;

    /// Whether it has written, after time enough to do so.
    [[nodiscard]] bool HaScritto() const {
        for (int i = 0; i < 20 && !scritto_; ++i) std::this_thread::sleep_for(std::chrono::milliseconds(10));
        return scritto_;
    }

  private:
    std::atomic<bool> scritto_ = false;
    std::thread filo_;
};

TEST_F(ArchiveTest, ReadingsTogetherSeeOneMomentAndAWriterWaitsForThemAndForAnotherOne) {
    for (const QString& nome : {u"Alba"_s, u"Bra"_s}) Aggiungi(nome);
    std::optional<Altro> altro;
    {
        const ReadSnapshot momento(archive_);
        EXPECT_EQ(archive_.Count(Table::GuidaCitta), 2);
        altro.emplace(cartella_.Path());
        { const ReadSnapshot dentro(archive_); }  // part of the outer one, which goes on
        EXPECT_FALSE(altro->HaScritto());
        EXPECT_EQ(Localita(), (QStringList{u"Alba"_s, u"Bra"_s}));
        EXPECT_THROW(Aggiungi(u"Cuneo"_s), std::logic_error);
        EXPECT_THROW(Transaction{archive_}, std::logic_error);
    }
    altro.reset();
    EXPECT_EQ(Localita(), QStringList{u"Bra"_s});
    {
        Transaction transaction(archive_);
        altro.emplace(cartella_.Path(), 2);
        { const ReadSnapshot dentro(archive_); }
        Aggiungi(u"Cuneo"_s);
        EXPECT_FALSE(altro->HaScritto());
        transaction.Commit();
    }
    altro.reset();
    EXPECT_EQ(Localita(), QStringList{u"Cuneo"_s});
}

TEST_F(ArchiveTest, RowsComeInTheOrderOfTheAlphabetOrOfTheirAdding) {
    const QStringList aggiunte = {u"zara"_s, u"Évora"_s, u"Esino"_s, u"ÅLESUND"_s, u"alba"_s, u"Alba"_s, u"Eze"_s};
    for (const QString& nome : aggiunte) Aggiungi(nome);
    EXPECT_EQ(Localita(), aggiunte);
    EXPECT_EQ(Localita(true),
              (QStringList{u"Alba"_s, u"alba"_s, u"ÅLESUND"_s, u"Esino"_s, u"Évora"_s, u"Eze"_s, u"zara"_s}));
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
    const Condition sant{guida::Localita, NamePattern(u"SANT?ANNA")};
    EXPECT_EQ(archive_.DeleteMatching(Table::GuidaCitta, sant, progresso), 2);
    EXPECT_EQ(Localita(), (QStringList{u"SANTANNA"_s, u"Alba"_s}));
    EXPECT_EQ(progresso.titolo, u"Cancellazione tabella GuidaCitta"_s);
    EXPECT_EQ(progresso.percentuali, (std::vector<double>{50, 100}));
    EXPECT_EQ(archive_.DeleteMatching(Table::GuidaCitta, std::nullopt, progresso), 2);
    EXPECT_EQ(archive_.Count(Table::GuidaCitta), 0);
}

}  // namespace
}  // namespace cronovia
