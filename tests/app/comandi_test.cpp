// SPDX-License-Identifier: GPL-3.0-or-later
// The commands of the trip screen, the entry and the schedule, without a window.
#include <SQLiteCpp/Database.h>

#include "app/comandi_percorso.h"

#include <QDateTime>

#include "support/postazione.h"

namespace cronovia {
namespace {

using namespace Qt::StringLiterals;

class ComandiTest : public prova::PostazioneTest {
  protected:
    [[nodiscard]] QString Archivio(const QString& fatto) const {
        return u"Archivio %1: %2"_s.arg(QDir::toNativeSeparators(cartella_.Archivio()), fatto);
    }
    SQLite::Database AltroProgramma(const char* sql) {
        SQLite::Database altro(cartella_.Archivio().toStdString(), SQLite::OPEN_READWRITE);
        altro.exec(sql);
        return altro;
    }
};

TEST_F(ComandiTest, TheListOfTripsAndTheTripChosenFromIt) {
    copione_.Messaggio(u"Nessuna mèta nel database!"_s, u"Database vuoto"_s);
    comandi::Ricerca(*postazione_);
    EXPECT_EQ(Schermo(), u"vuota"_s);
    for (const auto& nome : {u"AOSTA AUTOSTRADA"_s, u"ZARA"_s, u"BARI"_s}) NuovaMeta(nome);
    comandi::Ricerca(*postazione_);
    EXPECT_EQ(Schermo(), u"elenco"_s);
    QStringList nomi;
    for (const MetaInElenco& meta : postazione_->Su<schermata::ElencoMete>()->mete) nomi += meta.localita;
    EXPECT_EQ(nomi.join(u','), u"BARI,ZARA,aosta autostrada"_s);
    comandi::ScegliMeta(*postazione_, u"000002"_s);
    EXPECT_EQ(postazione_->documento.Campi().localita, u"ZARA"_s);
    EXPECT_EQ(Schermo(), u"aperta"_s);
    EXPECT_EQ(NuovaPostazione()->documento.Codice(), u"000002"_s);
}

TEST_F(ComandiTest, DeletingATripFallsBackToTheHighestCode) {
    for (const auto& nome : {u"UNO"_s, u"DUE"_s, u"TRE"_s}) {
        MetaConTappe(nome, {nome, u"X"_s});
        Esce(Answer::Yes);
    }
    comandi::ScegliMeta(*postazione_, u"000002"_s);
    CancMeta(Answer::No);
    EXPECT_EQ(Righe(), u"DUE X"_s);
    for (const auto& [resta, schermo] :
         {std::pair{u"000003"_s, u"aperta"_s}, {u"000001"_s, u"aperta"_s}, {u""_s, u"vuota"_s}}) {
        CancMeta(Answer::Yes);
        EXPECT_EQ(postazione_->documento.Codice(), resta);
        EXPECT_EQ(Schermo(), schermo);
    }
    EXPECT_EQ(Righe(), u""_s);
    EXPECT_EQ(Sessione(cartella_.Path()).Archivio().Count(Table::Itinerari), 0);
}

TEST_F(ComandiTest, EveryVerbIsUndoneAndDoneAgainByName) {
    MetaConTappe(u"UNO"_s, {u"A"_s, u"B"_s});
    ASSERT_TRUE(Inserisce(u"C"_s, 0, {0, 1, 0}));
    const QString titolo = u"Azzera soste itinerario"_s;
    const QString azzera =
        u"Vuoi azzerare le soste indicate nell'itinerario?\n\nI tempi traghetto e riposi non sono "
        "influenzati e la\ncancellazione sarà effettiva dopo il salvataggio dell'itinerario."
        "\n\nProcedo?\n\nUNO (000001)"_s;
    struct Passo {
        QString nome;
        std::function<void()> verbo;
        QString righe;
        RigheItinerario dopo = {};
    };
    std::vector<Passo> passi = {
        {u"azzeramento delle soste"_s, [&] { comandi::AzzeraSoste(*postazione_); }, u"A B C"_s},
        {u"modifica di BB"_s, [&] { comandi::SelezionaRiga(*postazione_, 2), Inserisce(u"BB"_s, 7); }, u"A BB C"_s},
        {u"apertura di una riga"_s, [&] { comandi::Aggiunge(*postazione_); }, u"A BB - C"_s},
        {u"inserimento di N"_s, [&] { Inserisce(u"N"_s, 8); }, u"A BB N C"_s},
        {u"cancellazione di una riga"_s, [&] { comandi::Cancella(*postazione_); }, u"A BB N"_s},
    };
    copione_.Domanda(azzera, titolo, Answer::No);
    comandi::AzzeraSoste(*postazione_);
    const RigheItinerario prima = postazione_->documento.Righe();
    EXPECT_EQ(prima[2].sosta.ore, 1);
    copione_.Domanda(azzera, titolo, Answer::Yes);
    for (Passo& passo : passi) {
        passo.verbo();
        EXPECT_EQ(Righe(), passo.righe);
        EXPECT_EQ(postazione_->DaAnnullare(), passo.nome);
        passo.dopo = postazione_->documento.Righe();
    }
    for (std::size_t i = passi.size(); i > 0; --i) {
        comandi::Annulla(*postazione_);
        EXPECT_TRUE(postazione_->documento.Righe() == (i > 1 ? passi[i - 2].dopo : prima))
            << passi[i - 1].nome.toStdString();
        EXPECT_EQ(postazione_->DaRipetere(), passi[i - 1].nome);
    }
    for (const Passo& passo : passi) {
        comandi::Ripeti(*postazione_);
        EXPECT_TRUE(postazione_->documento.Righe() == passo.dopo) << passo.nome.toStdString();
    }
    comandi::Annulla(*postazione_);
    Inserisce(u"Z"_s, 9);
    EXPECT_EQ(postazione_->DaRipetere(), std::nullopt);  // a new change forgets what was undone
    Memorizza(Answer::Yes);
    EXPECT_EQ(postazione_->DaAnnullare(), u"modifica di Z"_s);  // saving takes nothing back
}

TEST_F(ComandiTest, DaysWantedStopAndWhatCannotBeComputed) {
    MetaConTappe(u"UNO"_s, {u"A"_s, u"B"_s});
    Esce(Answer::Yes);
    const auto calcola = [&](int giorni, int media, const QString& messaggio, const QString& titolo) {
        Meta meta = postazione_->documento.Campi();
        meta.giorniAdeguamento = giorni;
        meta.parametri.mediaKm[0] = media;
        postazione_->documento.ImpostaCampi(meta);
        if (!messaggio.isEmpty()) copione_.Messaggio(messaggio, titolo);
        comandi::Calcola(*postazione_);
        return postazione_->documento.Calcolata().has_value();
    };
    const QString titolo = u"Calcolo cronovia"_s;
    // There is no stop to stretch.
    EXPECT_TRUE(calcola(
        5, 75,
        u"Elaborazione impossibile! (tentativi effettuati n. 11) Non ci sono soste da allungare: il giorno è 1."_s,
        titolo));
    comandi::Calcola(*postazione_);
    avanzamento_.stop = true;
    EXPECT_FALSE(calcola(5, 75, {}, {}));
    EXPECT_EQ(Schermo(), u"aperta"_s);
    avanzamento_.stop = false;
    const QString ferma = u"Calcolo impossibile: la velocità media per le strade di tipo «Autostrada» è 0."_s;
    Meta tardi = Viaggio().Campi();
    tardi.parametri.oraCena = 2100_cent;  // too late for the night
    Viaggio().ImpostaCampi(tardi);
    EXPECT_FALSE(calcola(1, 0, ferma, {}));
    EXPECT_EQ(Viaggio().Campi().parametri.oraCena, 2100_cent);
    EXPECT_EQ(Schermo(), u"aperta"_s);
    EXPECT_TRUE(calcola(1, 75, u"Elaborazione conclusa in 1 tentativi!"_s, titolo));
}

TEST_F(ComandiTest, ClosingAsksWhenThereAreUnsavedChanges) {
    MetaConTappe(u"UNO"_s, {u"A"_s});
    const std::vector<std::pair<Answer, bool>> casi = {
        {Answer::Cancel, false}, {Answer::No, true}, {Answer::Yes, true}};
    for (const auto& [risposta, chiude] : casi) {
        EXPECT_EQ(Memorizzate(), u""_s);
        DomandaModifiche(risposta);
        if (risposta == Answer::Yes) copione_.Messaggio(u"Nomi accorciati…"_s);
        EXPECT_EQ(comandi::PossoChiudere(*postazione_), chiude);
        if (risposta != Answer::No) continue;
        EXPECT_TRUE(comandi::PossoChiudere(*postazione_) && Congeda(*postazione_));  // what was declined is gone
        EXPECT_EQ(Schermo(), u"aperta"_s);
        comandi::Itinerario(*postazione_);
        RigheItinerario lunga(1);
        lunga[0].localita = u"A"_s;
        lunga[0].numStrada = QString(90, u'x');
        Viaggio().Modifica({}, lunga, 2);
    }
    EXPECT_EQ(Memorizzate(), u"A"_s);
    EXPECT_TRUE(comandi::PossoChiudere(*postazione_));
    comandi::SelezionaRiga(*postazione_, 2);
    ASSERT_TRUE(Inserisce(u"B"_s, 5));
    comandi::Annulla(*postazione_);
    EXPECT_TRUE(comandi::PossoChiudere(*postazione_));  // nothing differs from what is saved
    Esce(Answer::No);
    comandi::Nuovo(*postazione_);
    EXPECT_TRUE(comandi::PossoChiudere(*postazione_));
    Destinazione(u"DUE"_s, {});
    DomandaModifiche(u"La nuova mèta «DUE» non è stata salvata."_s, Answer::Cancel);
    EXPECT_FALSE(comandi::PossoChiudere(*postazione_));
}

TEST_F(ComandiTest, WhatCannotBeSavedStaysOnScreen) {
    MetaConTappe(u"UNO"_s, {u"A"_s, u"B"_s});
    Memorizza(Answer::Yes);
    ASSERT_TRUE(Inserisce(u"C"_s, 5));
    {
        const SQLite::Database altro = AltroProgramma("BEGIN EXCLUSIVE");
        copione_.Messaggio(Archivio(u"l'archivio è in uso da un altro programma; riprova tra poco."_s));
        EXPECT_FALSE(Inserisce(u"D"_s, 5));
        *postazione_->Su<schermata::Inserimento>() = comandi::NuovoInserimento(Viaggio());  // it is wiped out again
    }
    EXPECT_EQ(Righe(), u"A B C"_s);
    EXPECT_EQ(postazione_->documento.Riepilogo().tappe.size(), 3U);
    EXPECT_EQ(postazione_->DaAnnullare(), u"inserimento di C"_s);
    // A disk that is full in the midst of it.
    const SQLite::Database altro =
        AltroProgramma("ALTER TABLE Itinerari ADD COLUMN pieno TEXT CHECK (Sequenza <> '0003')");
    DomandaModifiche(Answer::Yes);
    copione_.Messaggio(u"L'itinerario non è stato salvato.\n\n"_s + Archivio(u"…"_s));
    EXPECT_FALSE(comandi::PossoChiudere(*postazione_));
    EXPECT_EQ(Righe(), u"A B C"_s);
    EXPECT_EQ(Memorizzate(), u"A B"_s);
    // Nor is a trip lost whose deletion fails.
    Esce(Answer::No);
    const SQLite::Database ancora = AltroProgramma("BEGIN IMMEDIATE");
    copione_.Domanda(u"Confermi annullamento meta?\n\nUNO (000001)"_s, u"Annullamento meta"_s, Answer::Yes);
    copione_.Messaggio(u"La mèta non è stata cancellata.\n\n"_s + Archivio(u"…"_s));
    comandi::CancMeta(*postazione_);
    EXPECT_EQ(Schermo(), u"aperta"_s);
    EXPECT_EQ(Righe(), u"A B"_s);
    EXPECT_EQ(Memorizzate(), u"A B"_s);
}

TEST_F(ComandiTest, ARouteIsPutIntoAnEmptyItineraryAndTakenAwayAgain) {
    NuovaMeta(u"UNO"_s);
    comandi::Itinerario(*postazione_);
    comandi::Aggiunge(*postazione_);
    const auto altriPacchetti = [this](const QString& nome) {
        file_ = nome.isEmpty() ? nome : u"" CRONOVIA_EXAMPLES "/"_s + nome;
        comandi::AltriPacchetti(*postazione_);
    };
    const QString percorso = u"percorsi/torino-messina.txt"_s;
    const auto domanda = [&](Answer risposta) {
        copione_.Domanda(
            u"Tappe riconosciute: 9, da TORINO a MESSINA.\nChilometri: 405; traghetti: 1.\n\nVuoi riportarle nell'itinerario?"_s,
            u"Import del percorso"_s, risposta);
    };
    altriPacchetti({});
    copione_.Messaggio(
        u"Attenzione!\n\nFile non riconosciuto!\n\nAttualmente sono riconosciuti:\n. MapPoint\n"
        ". Autoroute 66\n. Route 2000-2001\n\nContatta l'autore per l'eventuale abilitazione."_s);
    altriPacchetti(u"sicilia.iei"_s);
    copione_.Messaggio(u"Il file …"_s);
    altriPacchetti(u"manca.txt"_s);
    domanda(Answer::No);
    altriPacchetti(percorso);
    EXPECT_EQ(NumeroTappe(postazione_->documento.Righe()), 0);
    EXPECT_EQ(postazione_->DaAnnullare(), std::nullopt);
    EXPECT_TRUE(postazione_->Comandi().Abilitato(Comando::Inserisce));
    domanda(Answer::Yes);
    altriPacchetti(percorso);
    EXPECT_EQ(Righe(), u"TORINO CEVA SAVONA GENOVA GENOVA-PALERMO PALERMO CEFALÙ MILAZZO MESSINA"_s);
    EXPECT_EQ(postazione_->documento.RigaCorrente(), 10);
    EXPECT_EQ(postazione_->documento.Riepilogo().totali.traghetti, 1);
    EXPECT_FALSE(postazione_->Comandi().Abilitato(Comando::AltriPacchetti));
    EXPECT_EQ(Memorizzate(), u""_s);
    copione_.Messaggio(
        u"Impossibile: sono presenti delle tappe!\n\nE' ammesso solo con itinerario vuoto.\n\n"
        "Se vuoi procedere con l'import da MapPoint,\nè necessario cancellare l'itinerario."_s);
    altriPacchetti(percorso);
    EXPECT_EQ(postazione_->DaAnnullare(), u"import del percorso"_s);
    comandi::Annulla(*postazione_);
    EXPECT_EQ(NumeroTappe(postazione_->documento.Righe()), 0);
    comandi::Ripeti(*postazione_);
    Memorizza(Answer::Yes);
    EXPECT_EQ(Memorizzate(), Righe());
}

TEST_F(ComandiTest, ATripChangedMeanwhileIsNeverOverwrittenUnseen) {
    NuovaMeta(u"UNO"_s);
    MetaConTappe(u"DUE"_s, {u"A"_s});
    const std::unique_ptr<Postazione> altra = NuovaPostazione();
    copione_.Domanda(u"Confermi annullamento meta?\n\nDUE (000002)"_s, u"Annullamento meta"_s, Answer::Yes);
    comandi::CancMeta(*altra);
    const auto salva = [this](const QString& perche, const QString& sovrascrivi, Answer risposta) {
        DomandaModifiche(u"La mèta «DUE» (codice %1) ha modifiche non salvate."_s.arg(Viaggio().Codice()), Answer::Yes);
        copione_.Domanda(
            perche +
                u"\n\n«Ricarica» mostra l'archivio com'è adesso e rinuncia a ciò che hai scritto tu.\n«Sovrascrivi» "_s +
                sovrascrivi,
            u"Mèta cambiata nell'archivio"_s, risposta, true);
        comandi::Fine(*postazione_);
    };
    const auto rifiutata = [&](const QString& perche) {
        salva(perche, u"salva la tua come nuova mèta."_s, Answer::Cancel);
        EXPECT_EQ(Righe(), u"A"_s);
        EXPECT_EQ(Sessione(cartella_.Path()).Archivio().Count(Table::Itinerari), 0);
        for (const auto& comando : std::vector<std::function<void()>>{
                 [this] { Viaggio().SalvaCampi(Viaggio().DecidiSalvataggio()); },
                 [this] { Viaggio().CancellaTappe(avanzamento_); }, [this] { Viaggio().Cancella(avanzamento_); }}) {
            EXPECT_EQ(prova::MessaggioDi(comando), perche);
        }
    };
    rifiutata(u"La mèta «DUE» (codice 000002) non è più nell'archivio: un'altra finestra l'ha cancellata."_s);
    const auto altraNuova = [this](const QString& nome) {
        return Sessione(cartella_.Path()).NuovaMeta(nome, u"ITALIA"_s, QDateTime({2027, 6, 5}, {9, 0}));
    };
    ASSERT_EQ(altraNuova(u"TRE"_s), u"000002"_s);
    const QString unAltra =
        u"La mèta con il codice 000002 non è più «DUE», ma «TRE»: un'altra finestra l'ha cambiata."_s;
    rifiutata(unAltra);
    salva(unAltra, u"salva la tua come nuova mèta."_s, Answer::Yes);
    EXPECT_EQ(Viaggio().Codice(), u"000003"_s);
    EXPECT_EQ(Memorizzate(u"2"_s) + u'|' + Memorizzate(u"3"_s), u"|A"_s);
    // What the person was shown is overwritten, and nothing that came after it.
    comandi::Itinerario(*postazione_);
    Inserisce(u"B"_s, 5);
    const auto altroScrive = [this](const char* sql) { AltroProgramma(sql); };
    altroScrive("UPDATE Itinerari SET Chilometri = '7'; UPDATE MeteVandro SET Nazione = 'MALTA'");
    const QString cambiata =
        u"Un'altra finestra ha modificato la mèta «DUE» (codice 000003) dopo che l'hai aperta.\n\n"
        "Che cosa è cambiato:\n- dati della mèta: nazione\n- tappe cambiate: A"_s;
    salva(cambiata, u"mette la tua al suo posto."_s, Answer::Cancel);
    const MetaCambiata vista = [this] {
        try {
            Viaggio().Cancella(avanzamento_);
        } catch (const MetaCambiata& failure) {
            return failure;
        }
        throw std::logic_error("deleted");
    }();
    altroScrive("INSERT INTO Itinerari (CodiceMeta, Sequenza, Localita) VALUES ('000003', '0002', 'Z')");
    EXPECT_EQ(prova::MessaggioDi([&] { Viaggio().Sovrascrivi(vista, avanzamento_); }),
              QString(cambiata).replace(u"- tappe"_s, u"- tappe aggiunte: Z\n- tappe"_s));
    EXPECT_EQ(Memorizzate(u"3"_s), u"A Z"_s);
    Viaggio().Ricarica({});
    EXPECT_EQ(Righe() + Viaggio().Campi().nazione, u"A ZMALTA"_s);
    comandi::Nuovo(*postazione_);
    Destinazione(u"SEI"_s, u"ITALIA"_s);
    const Salvataggio nuova = Viaggio().DecidiSalvataggio();
    altraNuova(u"SEI"_s);
    EXPECT_EQ(prova::MessaggioDi([&] { Viaggio().SalvaCampi(nuova); }),
              u"Nel frattempo un'altra finestra ha salvato o cancellato la mèta «SEI»: riprova."_s);
    EXPECT_EQ(Viaggio().Codice(), u"000003"_s);
}

TEST_F(ComandiTest, ADeletedTripComesBackAndItsCodeIsNoOneElsesMeanwhile) {
    for (const auto& nome : {u"UNO"_s, u"DUE"_s}) {
        MetaConTappe(nome, {nome, u"X"_s});
        Esce(Answer::Yes);
    }
    CancMeta(Answer::Yes);
    CancMeta(Answer::Yes);
    EXPECT_EQ(Schermo(), u"vuota"_s);
    NuovaMeta(u"TRE"_s);
    EXPECT_EQ(Viaggio().Codice(), u"000003"_s);
    EXPECT_EQ(postazione_->DaAnnullare(), u"cancellazione di «UNO»"_s);
    copione_.Messaggio(u"La mèta «UNO» è di nuovo nell'archivio, con il codice 000001."_s);
    comandi::Annulla(*postazione_);
    EXPECT_EQ(Righe(), u"UNO X"_s);
    // Where the name was given away the step waits; where the code was, another one is taken.
    ASSERT_EQ(Sessione(cartella_.Path()).NuovaMeta(u"DUE"_s, u"MALTA"_s, QDateTime({2027, 6, 5}, {9, 0})), u"000002"_s);
    copione_.Messaggio(u"Esiste già la mèta DUE con il codice 000002."_s);
    comandi::Annulla(*postazione_);
    AltroProgramma("UPDATE MeteVandro SET Localita = 'ALTRA' WHERE CodiceMeta = '000002'");
    copione_.Messaggio(u"La mèta «DUE» è di nuovo nell'archivio, con il codice 000004."_s);
    comandi::Annulla(*postazione_);
    EXPECT_EQ(Righe() + u'|' + Memorizzate(u"2"_s) + u'|' + Memorizzate(u"4"_s), u"DUE X||DUE X"_s);
    EXPECT_EQ(postazione_->DaAnnullare(), std::nullopt);
}

TEST_F(ComandiTest, TheHistoryOfATripGoesWithIt) {
    NuovaMeta(u"DUE"_s);
    MetaConTappe(u"UNO"_s, {u"A"_s, u"B"_s});
    comandi::Annulla(*postazione_);
    ASSERT_TRUE(postazione_->DaAnnullare() && postazione_->DaRipetere());
    Esce(Answer::No);
    // The same trip, loaded anew, and another one.
    for (const auto& codice : {u"000002"_s, u"000001"_s}) {
        comandi::ScegliMeta(*postazione_, codice);
        comandi::Itinerario(*postazione_);
        EXPECT_EQ(postazione_->DaAnnullare(), std::nullopt);
        EXPECT_EQ(postazione_->DaRipetere(), std::nullopt);
        comandi::Annulla(*postazione_);
        comandi::Ripeti(*postazione_);
        EXPECT_EQ(Righe(), u""_s);
        EXPECT_FALSE(Viaggio().Modificato());
        Esce(Answer::No);
    }
}

TEST_F(ComandiTest, FieldsAndStagesAreComparedWithWhatWasLoaded) {
    MetaConTappe(u"UNO"_s, {u"A"_s, u"B"_s});
    EXPECT_TRUE(Viaggio().TappeModificate() && !Viaggio().CampiModificati());
    Esce(Answer::Yes);
    EXPECT_FALSE(Viaggio().Modificato());
    Meta meta = Viaggio().Campi();
    meta.parametri.oraCena = 2100_cent;  // too late for the night
    Viaggio().ImpostaCampi(meta);
    EXPECT_TRUE(Viaggio().CampiModificati() && !Viaggio().TappeModificate());
    copione_.Domanda(u"Confermi modifica dati mèta?"_s, u"Modifica dati mèta"_s, Answer::Yes);
    comandi::Salva(*postazione_);
    EXPECT_NE(Viaggio().Campi().parametri.oraCena, 2100_cent);
    EXPECT_FALSE(Viaggio().Modificato());  // what the program put right is no change of the person's
}

}  // namespace
}  // namespace cronovia
