// SPDX-License-Identifier: GPL-3.0-or-later
// What is offered when an archive cannot be opened.
#include "app/rimedi.h"

#include <QDateTime>

#include "app/riparazione.h"
#include "store/archive.h"
#include "support/archivio.h"
#include "support/copione.h"
#include "support/postazione.h"

namespace cronovia {
namespace {

using namespace Qt::StringLiterals;

class RimediTest : public testing::Test {
  protected:
    void SetUp() override {
        Archive archive = Archive::Open(cartella_.Path());
        archive.KeepDailyCopies([] { return QDateTime::currentDateTime(); }, [](const QString&) {},
                                [] { return kNewestCopies; });
        prova::NellaGuida(archive, u"ALBA"_s);
        archive.KeepCopy(u"prima di importare"_s);
        sano_ = prova::LeggiFile(cartella_.Archivio());
    }
    Rimedio Offre() {
        return OffreRimedio({cartella_.Path(), copione_, scegli_, QDateTime::currentDateTime()}, Failure(u"Guasto."_s));
    }

    prova::CartellaDiProva cartella_;
    prova::Copione copione_;
    QByteArray sano_;
    ScegliCopia scegli_ = [](const std::vector<CopiaInElenco>& copie) { return copie.front().copia.path; };
};

TEST_F(RimediTest, AnArchiveThatIsNoMoreComesBackFromItsCopy) {
    for (const QByteArray& resta : {QByteArray(), QByteArray(9000, 'x'), sano_.left(200)}) {
        prova::ScriviFile(cartella_.Archivio(), resta);
        const bool riparabile = resta.startsWith("SQLite");
        const QString titolo = u"Ripristina una copia"_s;
        const QString domanda = u"L'archivio di adesso non si può leggere. \n%1Ripristino la copia scelta?"_s.arg(
            resta.isEmpty() ? QString() : u"Il file di adesso resta nella cartella, messo da parte. "_s);
        const Answer ripristina = riparabile ? Answer::No : Answer::Yes;
        copione_.Domanda(u"Guasto.\n\nChe cosa vuoi fare?"_s, u"Cronovia"_s, ripristina, riparabile)
            .Domanda(domanda, titolo, Answer::No)
            .Domanda(u"Guasto.\n\nChe cosa vuoi fare?"_s, u"Cronovia"_s, ripristina, riparabile)
            .Domanda(domanda, titolo, Answer::Yes)
            .Messaggio(u"L'archivio è di nuovo quello della copia …"_s);
        EXPECT_EQ(Offre(), Rimedio::Fatto) << resta.size();
        EXPECT_EQ(Archive::Open(cartella_.Path()).Count(Table::GuidaCitta), 1);
    }
}

TEST_F(RimediTest, NothingIsOfferedWhereNothingHelps) {
    EXPECT_EQ(Offre(), Rimedio::Nessuno);  // in order: it is locked, perhaps
    prova::ScriviFile(cartella_.Archivio(), QByteArray("\0\1\0\0Standard Jet DB\0\1", 21));
    EXPECT_EQ(Offre(), Rimedio::Nessuno);
    prova::ScriviFile(cartella_.Archivio(), {});
    copione_.Domanda(u"Guasto.\n\nChe cosa vuoi fare?"_s, u"Cronovia"_s, Answer::No);
    EXPECT_EQ(Offre(), Rimedio::Rifiutato);
    QDir(CopiesFolder(cartella_.Path())).removeRecursively();
    EXPECT_EQ(Offre(), Rimedio::Nessuno);
    EXPECT_EQ(prova::LeggiFile(cartella_.Archivio()), QByteArray());
}

TEST_F(RimediTest, WhatARepairSavesIsToldAsItIs) {
    const ArchiveCopy copia{u"x"_s, QDateTime({2027, 6, 4}, {9, 5}), {}};
    Repair riparazione;
    riparazione.way = Repair::Way::Rows;
    riparazione.tables = {{Table::MeteVandro, 1200, 0, 0}, {Table::GuidaCitta, 0, 0, 0}, {Table::Itinerari, 0, 0, 3}};
    EXPECT_EQ(TestoRiparazione(riparazione),
              u"Le righe che si leggono sono salvate una per una.\nRighe delle mète: salvate 1.200.\n"
              "Righe degli itinerari: salvate 0, perse 3.\n"_s);
    riparazione.tables = {};
    riparazione.rebuilt = {u"ALBA"_s, u"BRA"_s};
    riparazione.doubts = {u"«ALBA» o «ALBB»"_s};
    riparazione.lastGood = copia;
    EXPECT_EQ(TestoRiparazione(riparazione),
              u"Le righe che si leggono sono salvate una per una.\nDi queste mète restano le tappe; data d'inizio e "
              "parametri sono da rivedere: ALBA, BRA.\nDa controllare, perché nel file si leggono due cose diverse: "
              "«ALBA» o «ALBB».\nL'ultima copia in ordine, che si può anche ripristinare, è del 04/06/2027 ore "
              "09:05.\n"_s);
    riparazione = {};
    riparazione.lastGood = copia;  // nothing of it is needed
    EXPECT_EQ(TestoRiparazione(riparazione), u"Le righe ci sono tutte: erano in disordine soltanto gli indici.\n"_s);
    EXPECT_EQ(TestoInOrdine({}), u"L'archivio è in ordine: non c'è niente da riparare."_s);
}

TEST_F(RimediTest, WhatCannotBeCopiedIsNotTakenForDamaged) {
    QDir(CopiesFolder(cartella_.Path())).removeRecursively();
    prova::ScriviFile(CopiesFolder(cartella_.Path()), "a file where the folder should be");
    Archive archive = Archive::Open(cartella_.Path());
    archive.KeepDailyCopies([] { return QDateTime::currentDateTime(); }, [](const QString&) {}, [] { return 10; });
    QString detto;
    try {
        archive.KeepCopy(u"prima di importare"_s);
    } catch (const Failure& failure) {
        detto = failure.Message();
    }
    EXPECT_TRUE(detto.startsWith(u"La copia di sicurezza dell'archivio"_s)) << detto.toStdString();
    EXPECT_EQ(archive.Damage(), QString());
}

using prova::PostazioneTest;

TEST_F(PostazioneTest, SavedElsewhereTheWorkGoesOnThere) {
    MetaConTappe(u"UNO"_s, {u"ALBA"_s});
    MettiAlSicuro(*postazione_);
    const prova::CartellaDiProva altra;
    altra.Crea();
    QString dove;
    postazione_->volti.lavoraIn = [&](const QString& cartella) { dove = cartella; };
    ASSERT_TRUE(QFile::remove(cartella_.Archivio()));  // under the open window
    for (const auto& [cartella, messaggio] :
         {std::pair{QString(), QString()},
          {cartella_.Path() + u"/non/esiste"_s, u"L'archivio non è stato copiato.…"_s},
          {altra.Path(), u"L'archivio è ora anche nella cartella …"_s},
          {altra.Path(), u"L'archivio non è stato copiato.…"_s}}) {
        file_ = cartella;
        if (!messaggio.isEmpty()) copione_.Messaggio(messaggio);
        comandi::SalvaAltrove(*postazione_);
    }
    EXPECT_EQ(dove, altra.Path());
    EXPECT_TRUE(Recupero(cartella_.Path()).Rimasti().empty());
    EXPECT_TRUE(altra.Contenuto().contains(u"Cronovia.recupero"_s));
    Memorizza(Answer::Yes);
    EXPECT_EQ(prova::Localita(Sessione(altra.Path()).ApriMeta(u"1"_s).tappe), u"ALBA"_s);
    EXPECT_FALSE(QFile::exists(cartella_.Archivio()));
}

}  // namespace
}  // namespace cronovia
