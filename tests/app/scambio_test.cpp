// SPDX-License-Identifier: GPL-3.0-or-later
// The exchange screen without a widget, taking an import back, and the earlier release's data from the window.
#include <gmock/gmock.h>

#include "exchange/scambio.h"
#include "exchange/vecchi/vecchi_record.h"
#include "support/postazione.h"

namespace cronovia {
namespace {

using namespace Qt::StringLiterals;
using prova::Tutto;

const QString kExport = u"Export delle mète selezionate"_s;
const QString kImport = u"Import delle mète selezionate nei propri archivi"_s;
const QString kAnnulla = u"|Annulla importazione"_s;

class ScambioTest : public prova::PostazioneTest {
  protected:
    Archive AltraFinestra() { return Archive::Open(cartella_.Path()); }
    QStringList Archivio() {
        Archive archive = AltraFinestra();
        return Tutto(archive);
    }
    [[nodiscard]] const TavoloScambio& Tavolo() const { return postazione_->Su<schermata::Scambio>()->tavolo; }
    QString Lista(int lista) {
        QStringList nomi;
        for (const MetaInElenco& meta : Tavolo().Mete(lista)) nomi += meta.localita;
        return nomi.join(u' ');
    }
    void Sposta(int lista, int riga) {
        comandi::SulloScambio(*postazione_, [&](TavoloScambio& tavolo) { tavolo.TrasferisceMeta(lista, riga); });
    }
    void Tutte(int lista) {
        comandi::SulloScambio(*postazione_, [&](TavoloScambio& tavolo) { tavolo.TrasferisceTutte(lista); });
    }
    void ImExp(const QString& file = {}) {
        file_ = file;
        comandi::ImExp(*postazione_);
    }
    /// Imports all trips of the file; the closing box tells this and is answered so.
    void Importa(Answer annulla) {
        comandi::ApriFile(*postazione_, amiciIei_);
        Tutte(1);
        copione_.Domanda(u"Confermi import delle mète selezionate nei propri archivi?"_s, kImport, Answer::Yes);
        copione_.Domanda(
            u"Sono stati inseriti:\r\n\r\n2 mète/itinerari;\r\n1 tratti stradali;\r\n"
            "1 guide/informazioni località.\r\n"_s +
                kAnnulla,
            {}, annulla);
        if (annulla == Answer::Yes) copione_.Messaggio(u"L'importazione di amici.iei è stata annullata."_s);
        ImExp();
    }

    const QString amiciIei_ = cartella_.Path() + u"/amici.iei"_s;
    const QByteArray amici_ = prova::Mete("000001|ROMA|ITALIA\n000002|PISA|ITALIA\n") +
                              prova::Tappe("000002|0001|LUCCA\n") + prova::Guida("LUCCA|01|Mura\n");
};

TEST_F(ScambioTest, AnImportCanBeTakenBackFromItsClosingBox) {
    prova::ScriviFile(amiciIei_, amici_);
    const QStringList prima = Archivio();
    Importa(Answer::Yes);
    EXPECT_EQ(Archivio(), prima);
    EXPECT_EQ(postazione_->DaAnnullare(), std::nullopt);
    EXPECT_EQ(Schermo(), u"vuota"_s);
}

TEST_F(ScambioTest, AnImportCanBeTakenBackUntilTheNextChange) {
    {
        Archive archive = AltraFinestra();
        prova::Inserisci(archive, Table::MeteVandro, {u"000001"_s, u"ALBA"_s});
    }
    prova::ScriviFile(amiciIei_, amici_);
    const QStringList prima = Archivio();
    Importa(Answer::No);
    EXPECT_EQ(postazione_->documento.Codice(), u"000003"_s);
    EXPECT_EQ(Schermo(), u"aperta"_s);
    comandi::Ricerca(*postazione_);
    comandi::ScegliMeta(*postazione_, u"000002"_s);  // looking at a trip changes nothing
    EXPECT_EQ(postazione_->DaAnnullare(), u"importazione di amici.iei"_s);
    copione_.Messaggio(u"L'importazione di amici.iei è stata annullata."_s);
    comandi::Annulla(*postazione_);
    EXPECT_EQ(Archivio(), prima);
    EXPECT_EQ(postazione_->documento.Codice(), u"000001"_s);

    Importa(Answer::No);
    copione_.Domanda(u"Vuoi ripristinare i dati di default?\n\nALBA (000001)"_s, u"Dati di default"_s, Answer::Yes);
    copione_.Messaggio(u"Operazione eseguita!"_s, u"Dati di default"_s);
    comandi::RipristinaDefault(*postazione_);
    EXPECT_EQ(postazione_->DaAnnullare(), std::nullopt);
}

TEST_F(ScambioTest, TakingAnImportBackLeavesWhatWasTypedAsANewTrip) {
    prova::ScriviFile(amiciIei_, amici_);
    Importa(Answer::No);
    Meta nuova = postazione_->documento.Campi();
    nuova.localita = u"NARVIK"_s;
    postazione_->documento.ImpostaCampi(nuova);
    copione_.Messaggio(u"L'importazione di amici.iei è stata annullata."_s);
    comandi::Annulla(*postazione_);
    EXPECT_EQ(postazione_->documento.Campi().localita, u"NARVIK"_s);
    EXPECT_EQ(Schermo(), u"nuova"_s);
    EXPECT_EQ(postazione_->DaAnnullare(), std::nullopt);
}

TEST_F(ScambioTest, WhatAnotherWindowWroteSinceIsNotTakenBack) {
    prova::ScriviFile(amiciIei_, amici_);
    Importa(Answer::No);
    {
        Archive archive = AltraFinestra();
        prova::Inserisci(archive, Table::Itinerari, {u"000001"_s, u"0001"_s, u"NARNI"_s});
    }
    const QStringList prima = Archivio();
    copione_.Messaggio(u"L'importazione non si può più annullare: dopo di essa l'archivio è stato modificato."_s);
    comandi::Annulla(*postazione_);
    EXPECT_EQ(Archivio(), prima);
}

TEST_F(ScambioTest, TripsMoveAndTheRunTakesThoseChosen) {
    prova::ScriviFile(amiciIei_, amici_);
    Importa(Answer::No);
    comandi::Export(*postazione_);
    EXPECT_EQ(Lista(0), u"PISA ROMA"_s);
    EXPECT_EQ(Tavolo().ScrittaTutto(0) + Tavolo().ScrittaTutto(1),
              u"[2] Tutte a destra ---><--- Tutte a sinistra [0]"_s);
    ImExp(u"mai.iei"_s);  // nothing is chosen
    Sposta(0, 0);
    Sposta(0, 7);  // a free row
    EXPECT_EQ(Lista(0) + u"|"_s + Lista(1), u"ROMA|PISA"_s);
    EXPECT_EQ(Schermo(), u"scambio"_s);
    const QString altro = cartella_.Path() + u"/altro.iei"_s;
    prova::ScriviFile(altro, "mio");
    const QString esiste = u"Il file %1 esiste già: ricopro?"_s.arg(altro);
    copione_.Domanda(esiste, u"File %1 esistente"_s.arg(altro), Answer::No);
    ImExp(altro);
    copione_.Domanda(esiste, u"File %1 esistente"_s.arg(altro), Answer::Yes);
    copione_.Domanda(u"Confermi export delle mète selezionate?"_s, kExport, Answer::No);
    ImExp(altro);
    EXPECT_EQ(prova::LeggiFile(altro), "mio");
    copione_.Domanda(esiste, u"File %1 esistente"_s.arg(altro), Answer::Yes);
    copione_.Domanda(u"Confermi export delle mète selezionate?"_s, kExport, Answer::Yes);
    copione_.Messaggio(u"Le mète esportate si trovano sul file "_s + altro);
    ImExp(altro);
    {
        Archive archive = AltraFinestra();
        archive.DeleteMatching(Table::MeteVandro, Condition{mete::Localita, NamePattern::Exactly(u"PISA"_s)},
                               avanzamento_);
    }
    copione_.Domanda(esiste, u"File %1 esistente"_s.arg(altro), Answer::Yes);
    copione_.Domanda(u"Confermi export delle mète selezionate?"_s, kExport, Answer::Yes);
    copione_.Messaggio(u"Le mète scelte non sono più nell'archivio: niente è stato esportato."_s);
    ImExp(altro);
    EXPECT_EQ(Lista(1), u"PISA"_s);  // the screen stays as it was
    EXPECT_EQ(LeggiElencoMete(postazione_->sessione.Archivio(), altro, avanzamento_).value().size(), 1U);
    comandi::FineScambio(*postazione_);
    EXPECT_NE(Schermo(), u"scambio"_s);
}

TEST_F(ScambioTest, WhatCannotBeOpenedLeavesTheTripOnTheDesk) {
    prova::ScriviFile(amiciIei_, amici_);
    Importa(Answer::No);
    comandi::ScegliMeta(*postazione_, u"000001"_s);
    file_.clear();
    comandi::Import(*postazione_);
    EXPECT_EQ(postazione_->documento.Campi().localita, u"ROMA"_s);
    prova::ScriviFile(amiciIei_, "ciao");
    copione_.Messaggio(u"Il file %1 non è un file di scambio: non contiene la sezione delle mète."_s.arg(amiciIei_));
    comandi::ApriFile(*postazione_, amiciIei_);
    EXPECT_NE(Schermo(), u"scambio"_s);
    EXPECT_EQ(postazione_->documento.Campi().localita, u"ROMA"_s);
    comandi::Itinerario(*postazione_);
    copione_.Messaggio(u"Per importare %1 torna prima alla schermata della mèta."_s.arg(amiciIei_));
    comandi::ApriFile(*postazione_, amiciIei_);
    EXPECT_EQ(Schermo(), u"inserimento"_s);
}

TEST_F(ScambioTest, OldDataIsConvertedAfterAQuestion) {
    EXPECT_FALSE(postazione_->ConverteOfferto());
    QByteArray record = QByteArray("PROVENZA").leftJustified(97) + "0007";
    record = record.leftJustified(FormaVecchieMete().LunghezzaCampi()).leftJustified(128, '\0');
    prova::ScriviFile(cartella_.Path() + u"/VANDMETE.DAT"_s, record);
    prova::ScriviFile(cartella_.Path() + u"/vand0007.dat"_s, "guasto");
    postazione_ = NuovaPostazione();
    EXPECT_TRUE(postazione_->ConverteOfferto());
    const QString vuoi =
        u"Vuoi convertire i vecchi file nel corrente database?\n\n"
        "I dati già presenti nel database saranno integrati e non cancellati.\n\nProcedo?"_s;
    copione_.Domanda(vuoi, u"Conversione file"_s, Answer::No);
    comandi::Converte(*postazione_);
    EXPECT_TRUE(postazione_->ConverteOfferto());
    copione_.Domanda(vuoi, u"Conversione file"_s, Answer::Yes);
    copione_.Messaggio(u"Conversione eseguita...…"_s);
    comandi::Converte(*postazione_);
    EXPECT_FALSE(postazione_->ConverteOfferto());
    EXPECT_EQ(postazione_->documento.Campi().localita, u"PROVENZA"_s);
    EXPECT_EQ(Schermo(), u"aperta"_s);
}

}  // namespace
}  // namespace cronovia
