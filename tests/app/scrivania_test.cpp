#include "app/scrivania.h"

#include <SQLiteCpp/Database.h>
#include <gtest/gtest.h>

#include <memory>

#include "support/copione.h"

namespace cronovia {
namespace {

using namespace Qt::StringLiterals;

constexpr bool kAnnullabile = true;
const QString kSalvataggio = u"Salvataggio itinerario"_s;
const QString kVuoiSalvare = u"Vuoi salvare l'itinerario?"_s;
const QString kFine = u"Fine inserimento"_s;
const QString kUscire = u"Hai chiesto di uscire dalla funzione 'Itinerari':\n\nVuoi salvare le eventuali modifiche?"_s;

struct AvanzamentoDiProva : Progress {
    bool StopRequested() override { return stop; }
    bool stop = false;
};

QString Nomi(const RigheItinerario& righe) {
    QStringList nomi;
    for (const Tappa& tappa : righe) nomi += tappa.localita.isEmpty() ? u"-"_s : tappa.localita;
    return nomi.join(u' ');
}

class ScrivaniaTest : public testing::Test {
  protected:
    std::unique_ptr<Scrivania> NuovaScrivania() {
        return std::make_unique<Scrivania>(cartella_.Percorso(),
                                           Scrivania::Volti{copione_, avanzamento_,
                                                            [] {
                                                                return QDateTime({2027, 6, 5}, {10, 52});
                                                            },
                                                            [] {}});
    }
    void Salva(Answer risposta) {
        copione_.Domanda(u"Confermi inserimento meta?"_s, u"Inserimento meta"_s, risposta);
        scrivania_->Salva();
    }
    void NuovaMeta(const QString& localita) {
        scrivania_->Nuovo();
        Destinazione(localita, u"ITALIA"_s);
        Salva(Answer::Yes);
    }
    void Destinazione(const QString& localita, const QString& nazione) {
        Meta meta = scrivania_->MetaInCorso();
        meta.localita = localita;
        meta.nazione = nazione;
        scrivania_->ImpostaMeta(meta);
    }
    void CancMeta(Answer risposta) {
        copione_.Domanda(u"Confermi annullamento meta?"_s, u"Annullamento meta"_s, risposta);
        scrivania_->CancMeta();
    }
    bool Inserisce(const QString& localita, int km, Durata sosta = {}) {
        CampiTappa campi{localita, {}, km, TipoStrada::Autostrada, sosta, false};
        return scrivania_->Inserisce(campi);
    }
    /// A trip with these stages on its entry screen, not saved.
    void MetaConTappe(const QString& localita, const QStringList& tappe) {
        NuovaMeta(localita);
        scrivania_->Itinerario();
        for (const QString& tappa : tappe) ASSERT_TRUE(Inserisce(tappa, 100));
    }
    void Memorizza(Answer risposta) {
        copione_.Domanda(kVuoiSalvare, kSalvataggio, risposta, kAnnullabile);
        scrivania_->Memorizza();
    }
    /// Does not save, and answers this to the question whether to go back to what is saved.
    void Recupera(Answer risposta) {
        copione_.Domanda(kVuoiSalvare, kSalvataggio, Answer::No, kAnnullabile);
        copione_.Domanda(u"Vuoi recuperare l'itinerario originale?"_s, kSalvataggio, risposta);
        scrivania_->Memorizza();
    }
    void Esce(Answer risposta) {
        copione_.Domanda(kUscire, kFine, risposta, kAnnullabile);
        scrivania_->Fine();
    }
    /// The stages in the archive, as another window would find them.
    QString Memorizzate() { return Nomi(Sessione(cartella_.Percorso()).ApriMeta(u"1"_s).tappe); }
    QString Archivio(const QString& fatto) const {
        return u"Archivio %1: %2"_s.arg(QDir::toNativeSeparators(cartella_.Archivio()), fatto);
    }
    SQLite::Database AltroProgramma(const char* sql) {
        SQLite::Database altro(cartella_.Archivio().toStdString(), SQLite::OPEN_READWRITE);
        altro.exec(sql);
        return altro;
    }
    [[nodiscard]] QString Righe() const { return Nomi(scrivania_->Righe()); }
    [[nodiscard]] QString Modo() const { return scrivania_->Comandi().modoComandi; }

    prova::CartellaDiProva cartella_;
    prova::Copione copione_;
    AvanzamentoDiProva avanzamento_;
    std::unique_ptr<Scrivania> scrivania_ = NuovaScrivania();
    const QString tutti_ = u"NuRiSaCmCaStItGcCiEsImEx"_s;
};

TEST_F(ScrivaniaTest, ATripIsSavedOnYesOnly) {
    EXPECT_EQ(Modo(), u"NuImEs"_s);
    scrivania_->Nuovo();
    EXPECT_EQ(Modo(), u"NuSaEs"_s);
    copione_.Messaggio(u"Campo Località: obbligatorio!"_s);
    scrivania_->Salva();
    Destinazione(u"LUCCA"_s, u" "_s);
    copione_.Messaggio(u"Campo Nazione: obbligatorio!"_s);
    scrivania_->Salva();
    Destinazione(u"LUCCA"_s, u"ITALIA"_s);
    Salva(Answer::No);
    EXPECT_EQ(NuovaScrivania()->CodiceMetaCorrente(), u""_s);
    EXPECT_EQ(scrivania_->MetaInCorso().localita, u"LUCCA"_s);
    Salva(Answer::Yes);
    EXPECT_EQ(Modo(), tutti_);
    scrivania_->Nuovo();
    EXPECT_EQ(Modo(), u"NuSaEsRi"_s);
    Destinazione(u"Lucca"_s, u"FRANCIA"_s);
    copione_.Domanda(u"Confermi modifica dati mèta?"_s, u"Modifica dati mèta"_s, Answer::Yes);
    scrivania_->Salva();
    EXPECT_EQ(scrivania_->MetaInCorso().codice, u"000001"_s);
    EXPECT_EQ(NuovaScrivania()->MetaInCorso().nazione.trimmed(), u"FRANCIA"_s);
}

TEST_F(ScrivaniaTest, TheListOfTripsAndTheTripChosenFromIt) {
    copione_.Messaggio(u"Nessuna mèta nel database!"_s, u"Database vuoto"_s);
    scrivania_->Ricerca();
    EXPECT_EQ(Modo(), u"NuImEs"_s);
    for (const auto& nome : {u"AOSTA AUTOSTRADA"_s, u"ZARA"_s, u"BARI"_s}) NuovaMeta(nome);
    scrivania_->Ricerca();
    EXPECT_EQ(Modo(), u"NuEs"_s);
    QStringList nomi;
    for (const MetaInElenco& meta : *scrivania_->ElencoMeteMostrato()) nomi += meta.localita;
    EXPECT_EQ(nomi.join(u','), u"BARI,ZARA,aosta autostrada"_s);
    scrivania_->ScegliMeta(u"000002"_s);
    EXPECT_EQ(scrivania_->MetaInCorso().localita, u"ZARA"_s);
    EXPECT_EQ(Modo(), tutti_);
    EXPECT_EQ(NuovaScrivania()->CodiceMetaCorrente(), u"000002"_s);
}

TEST_F(ScrivaniaTest, DeletingATripFallsBackToTheHighestCode) {
    for (const auto& nome : {u"UNO"_s, u"DUE"_s, u"TRE"_s}) {
        MetaConTappe(nome, {nome, u"X"_s});
        Esce(Answer::Yes);
    }
    scrivania_->ScegliMeta(u"000002"_s);
    CancMeta(Answer::No);
    EXPECT_EQ(Righe(), u"DUE X"_s);
    for (const auto& [resta, modo] : {std::pair{u"000003"_s, tutti_}, {u"000001"_s, tutti_}, {u""_s, u"NuImEs"_s}}) {
        CancMeta(Answer::Yes);
        EXPECT_EQ(scrivania_->CodiceMetaCorrente(), resta);
        EXPECT_EQ(Modo(), modo);
    }
    EXPECT_EQ(Righe(), u""_s);
    EXPECT_EQ(Sessione(cartella_.Percorso()).Archivio().Count(Table::Itinerari), 0);
}

TEST_F(ScrivaniaTest, AnItineraryIsDeletedAfterTwoQuestions) {
    MetaConTappe(u"UNO"_s, {u"A"_s, u"B"_s});
    Esce(Answer::Yes);
    const QString sicuro =
        u"Sei sicuro di voler cancellare l'itinerario?\n\nIn caso positivo, non sarà più recuperabile!"_s;
    const QString titolo = u"Annullamento itinerario"_s;
    const QString confermi = u"Confermi annullamento itinerario?"_s;
    copione_.Domanda(confermi, titolo, Answer::No);
    scrivania_->CancItin();
    for (const auto& [risposta, restano] : {std::pair{Answer::No, u"A B"_s}, {Answer::Yes, u""_s}}) {
        EXPECT_EQ(Memorizzate(), u"A B"_s);
        copione_.Domanda(confermi, titolo, Answer::Yes).Domanda(sicuro, titolo, risposta);
        scrivania_->CancItin();
        EXPECT_EQ(Memorizzate(), restano);
        EXPECT_EQ(Righe(), restano);
    }
}

TEST_F(ScrivaniaTest, EveryVerbIsUndoneAndDoneAgainByName) {
    MetaConTappe(u"UNO"_s, {u"A"_s, u"B"_s});
    ASSERT_TRUE(Inserisce(u"C"_s, 0, {0, 1, 0}));
    const QString titolo = u"Azzera soste itinerario"_s;
    const QString azzera =
        u"Vuoi azzerare le soste indicate nell'itinerario?\n\nI tempi traghetto e riposi non sono "
        "influenzati e la\ncancellazione sarà effettiva dopo il salvataggio dell'itinerario."
        "\n\nProcedo?"_s;
    struct Passo {
        QString nome;
        std::function<void()> verbo;
        QString righe;
        RigheItinerario dopo = {};
    };
    std::vector<Passo> passi = {
        {u"azzeramento delle soste"_s, [&] { scrivania_->AzzeraSoste(); }, u"A B C"_s},
        {u"modifica di BB"_s, [&] { scrivania_->SelezionaRiga(2), Inserisce(u"BB"_s, 7); }, u"A BB C"_s},
        {u"apertura di una riga"_s, [&] { scrivania_->Aggiunge(); }, u"A BB - C"_s},
        {u"inserimento di N"_s, [&] { Inserisce(u"N"_s, 8); }, u"A BB N C"_s},
        {u"cancellazione di una riga"_s, [&] { scrivania_->Cancella(); }, u"A BB N"_s},
    };
    copione_.Domanda(azzera, titolo, Answer::No);
    scrivania_->AzzeraSoste();
    const RigheItinerario prima = scrivania_->Righe();
    EXPECT_EQ(prima[2].sosta.ore, 1);
    copione_.Domanda(azzera, titolo, Answer::Yes);
    for (Passo& passo : passi) {
        passo.verbo();
        EXPECT_EQ(Righe(), passo.righe);
        EXPECT_EQ(scrivania_->Modifiche().DaAnnullare(), passo.nome);
        passo.dopo = scrivania_->Righe();
    }
    for (std::size_t i = passi.size(); i > 0; --i) {
        scrivania_->Annulla();
        EXPECT_TRUE(scrivania_->Righe() == (i > 1 ? passi[i - 2].dopo : prima)) << passi[i - 1].nome.toStdString();
        EXPECT_EQ(scrivania_->Modifiche().DaRipetere(), passi[i - 1].nome);
    }
    for (const Passo& passo : passi) {
        scrivania_->Ripeti();
        EXPECT_TRUE(scrivania_->Righe() == passo.dopo) << passo.nome.toStdString();
    }
    scrivania_->Annulla();
    Inserisce(u"Z"_s, 9);
    EXPECT_EQ(scrivania_->Modifiche().DaRipetere(), std::nullopt);  // a new change forgets what was undone
    Memorizza(Answer::Yes);
    EXPECT_EQ(scrivania_->Modifiche().DaAnnullare(), u"modifica di Z"_s);  // saving takes nothing back
}

TEST_F(ScrivaniaTest, SaveOrReset) {
    MetaConTappe(u"UNO"_s, {u"A"_s, u"B"_s});
    Memorizza(Answer::Cancel);
    EXPECT_EQ(Memorizzate(), u""_s);
    Memorizza(Answer::Yes);
    EXPECT_EQ(Memorizzate(), u"A B"_s);
    EXPECT_TRUE(scrivania_->InserimentoVisibile());
    ASSERT_TRUE(Inserisce(u"C"_s, 5));
    Recupera(Answer::No);
    EXPECT_EQ(Righe(), u"A B C"_s);
    Recupera(Answer::Yes);
    EXPECT_EQ(Righe(), u"A B"_s);
    EXPECT_EQ(Memorizzate(), u"A B"_s);
}

TEST_F(ScrivaniaTest, LeavingTheEntryScreen) {
    MetaConTappe(u"UNO"_s, {u"A"_s});
    EXPECT_EQ(Modo(), u"F"_s);
    Esce(Answer::Cancel);
    EXPECT_TRUE(scrivania_->InserimentoVisibile());
    Esce(Answer::Yes);
    EXPECT_FALSE(scrivania_->InserimentoVisibile());
    EXPECT_EQ(Modo(), tutti_);
    scrivania_->Itinerario();
    Inserisce(u"Z"_s, 1);
    Esce(Answer::No);
    EXPECT_EQ(Righe(), u"A"_s);
    EXPECT_EQ(Memorizzate(), u"A"_s);
}

TEST_F(ScrivaniaTest, RecalculatingAndUnlockingKeepsUnsavedEdits) {
    MetaConTappe(u"UNO"_s, {u"A"_s, u"B"_s});
    scrivania_->Ricalcola();
    ASSERT_TRUE(scrivania_->CronoviaMostrata().has_value());
    EXPECT_EQ(Modo(), u"CaSt"_s);
    copione_.Domanda(kUscire, kFine, Answer::Cancel, kAnnullabile);
    EXPECT_FALSE(scrivania_->PossoChiudere());
    scrivania_->Calcola();
    EXPECT_FALSE(scrivania_->CronoviaMostrata().has_value());
    EXPECT_TRUE(scrivania_->InserimentoVisibile());
    EXPECT_EQ(Righe(), u"A B"_s);
    Esce(Answer::Yes);
    // From the trip screen, unlocking leads back there.
    scrivania_->Calcola();
    scrivania_->Calcola();
    EXPECT_FALSE(scrivania_->InserimentoVisibile());
    EXPECT_EQ(Modo(), tutti_);
}

TEST_F(ScrivaniaTest, DaysWantedStopAndWhatCannotBeComputed) {
    MetaConTappe(u"UNO"_s, {u"A"_s, u"B"_s});
    Esce(Answer::Yes);
    const auto calcola = [&](int giorni, int media, const QString& messaggio, const QString& titolo) {
        Meta meta = scrivania_->MetaInCorso();
        meta.giorniAdeguamento = giorni;
        meta.parametri.mediaKm[0] = media;
        scrivania_->ImpostaMeta(meta);
        if (!messaggio.isEmpty()) copione_.Messaggio(messaggio, titolo);
        scrivania_->Calcola();
        return scrivania_->CronoviaMostrata().has_value();
    };
    const QString titolo = u"Calcolo cronovia"_s;
    // There is no stop to stretch.
    EXPECT_TRUE(calcola(5, 75, u"Elaborazione impossibile! (tentativi effettuati n. 11)"_s, titolo));
    scrivania_->Calcola();
    avanzamento_.stop = true;
    EXPECT_FALSE(calcola(5, 75, {}, {}));
    EXPECT_EQ(Modo(), tutti_);
    avanzamento_.stop = false;
    const QString ferma = u"Calcolo impossibile: la velocità media per le strade di tipo «Autostrada» è 0."_s;
    EXPECT_FALSE(calcola(1, 0, ferma, {}));
    EXPECT_EQ(Modo(), tutti_);
    EXPECT_TRUE(calcola(1, 75, u"Elaborazione conclusa in 1 tentativi!"_s, titolo));
}

TEST_F(ScrivaniaTest, PersonalDefaults) {
    struct Passo {
        QString verbo;
        Answer risposta;
        void (Scrivania::*comando)();
        int media, proposta;  ///< on the screen and for the next trip, afterwards
    };
    const std::vector<Passo> passi = {{u"salvare"_s, Answer::No, &Scrivania::SalvaDefault, 90, 75},
                                      {u"salvare"_s, Answer::Yes, &Scrivania::SalvaDefault, 90, 90},
                                      {u"ripristinare"_s, Answer::Yes, &Scrivania::RipristinaDefault, 75, 75}};
    const auto media = [](const Scrivania& scrivania) { return scrivania.MetaInCorso().parametri.mediaKm[0]; };
    Meta meta = scrivania_->MetaInCorso();
    meta.parametri.mediaKm[0] = 90;
    scrivania_->ImpostaMeta(meta);
    for (const Passo& passo : passi) {
        copione_.Domanda(u"Vuoi %1 i dati di default?"_s.arg(passo.verbo), u"Dati di default"_s, passo.risposta);
        if (passo.risposta == Answer::Yes) copione_.Messaggio(u"Operazione eseguita!"_s, u"Dati di default"_s);
        (*scrivania_.*passo.comando)();
        EXPECT_EQ(media(*scrivania_), passo.media);
        EXPECT_EQ(media(*NuovaScrivania()), passo.proposta);
    }
}

TEST_F(ScrivaniaTest, ClosingAsksWhenThereAreUnsavedChanges) {
    MetaConTappe(u"UNO"_s, {u"A"_s});
    const std::vector<std::pair<Answer, bool>> casi = {
        {Answer::Cancel, false}, {Answer::No, true}, {Answer::Yes, true}};
    for (const auto& [risposta, chiude] : casi) {
        EXPECT_EQ(Memorizzate(), u""_s);
        copione_.Domanda(kUscire, kFine, risposta, kAnnullabile);
        EXPECT_EQ(scrivania_->PossoChiudere(), chiude);
    }
    EXPECT_EQ(Memorizzate(), u"A"_s);
    EXPECT_TRUE(scrivania_->PossoChiudere());
    ASSERT_TRUE(Inserisce(u"B"_s, 5));
    scrivania_->Annulla();
    EXPECT_TRUE(scrivania_->PossoChiudere());  // nothing differs from what is saved
    Esce(Answer::No);
    scrivania_->Nuovo();
    EXPECT_TRUE(scrivania_->PossoChiudere());
    Destinazione(u"DUE"_s, {});
    const QString domanda = u"La nuova mèta «DUE» non è stata salvata: vuoi rinunciarvi?"_s;
    copione_.Domanda(domanda, u"Fine Lavoro"_s, Answer::No);
    EXPECT_FALSE(scrivania_->PossoChiudere());
}

TEST_F(ScrivaniaTest, WhatCannotBeSavedStaysOnScreen) {
    MetaConTappe(u"UNO"_s, {u"A"_s, u"B"_s});
    Memorizza(Answer::Yes);
    ASSERT_TRUE(Inserisce(u"C"_s, 5));
    {
        const SQLite::Database altro = AltroProgramma("BEGIN EXCLUSIVE");
        copione_.Messaggio(Archivio(u"l'archivio è in uso da un altro programma; riprova tra poco."_s));
        EXPECT_FALSE(Inserisce(u"D"_s, 5));
    }
    EXPECT_EQ(Righe(), u"A B C"_s);
    EXPECT_EQ(scrivania_->Riepilogo().tappe.size(), 3U);
    EXPECT_EQ(scrivania_->Modifiche().DaAnnullare(), u"inserimento di C"_s);
    // A disk that is full in the midst of it.
    const SQLite::Database altro = AltroProgramma(
        "CREATE TRIGGER pieno BEFORE INSERT ON Itinerari WHEN NEW.Sequenza = '0003' "
        "BEGIN SELECT RAISE(ABORT, 'pieno'); END");
    copione_.Domanda(kUscire, kFine, Answer::Yes, kAnnullabile);
    copione_.Messaggio(u"L'itinerario non è stato salvato.\n\n"_s + Archivio(u"…"_s));
    EXPECT_FALSE(scrivania_->PossoChiudere());
    EXPECT_EQ(Righe(), u"A B C"_s);
    EXPECT_EQ(Memorizzate(), u"A B"_s);
    // Nor is a trip lost whose deletion fails.
    Esce(Answer::No);
    AltroProgramma("CREATE TRIGGER fermo BEFORE DELETE ON MeteVandro BEGIN SELECT RAISE(ABORT, 'fermo'); END");
    copione_.Domanda(u"Confermi annullamento meta?"_s, u"Annullamento meta"_s, Answer::Yes);
    copione_.Messaggio(u"La mèta non è stata cancellata.\n\n"_s + Archivio(u"…"_s));
    scrivania_->CancMeta();
    EXPECT_EQ(Modo(), tutti_);
    EXPECT_EQ(Righe(), u"A B"_s);
    EXPECT_EQ(Memorizzate(), u"A B"_s);
}

TEST_F(ScrivaniaTest, ARouteIsPutIntoAnEmptyItineraryAndTakenAwayAgain) {
    NuovaMeta(u"UNO"_s);
    scrivania_->Itinerario();
    scrivania_->Aggiunge();
    const auto file = [](const QString& nome) { return [nome] { return u"" CRONOVIA_EXAMPLES "/"_s + nome; }; };
    const auto percorso = file(u"percorsi/torino-messina.txt"_s);
    const auto domanda = [&](Answer risposta) {
        copione_.Domanda(
            u"Tappe riconosciute: 9, da TORINO a MESSINA.\nChilometri: 405; traghetti: 1.\n\nVuoi riportarle nell'itinerario?"_s,
            u"Import del percorso"_s, risposta);
    };
    scrivania_->AltriPacchetti([] { return QString(); });
    copione_.Messaggio(
        u"Attenzione!\n\nFile non riconosciuto!\n\nAttualmente sono riconosciuti:\n. MapPoint\n"
        ". Autoroute 66\n. Route 2000-2001\n\nContatta l'autore per l'eventuale abilitazione."_s);
    scrivania_->AltriPacchetti(file(u"sicilia.iei"_s));
    copione_.Messaggio(u"Il file …"_s);
    scrivania_->AltriPacchetti(file(u"manca.txt"_s));
    domanda(Answer::No);
    scrivania_->AltriPacchetti(percorso);
    EXPECT_EQ(NumeroTappe(scrivania_->Righe()), 0);
    EXPECT_EQ(scrivania_->Modifiche().DaAnnullare(), std::nullopt);
    EXPECT_TRUE(scrivania_->Comandi().Abilitato(ComandoItinerario::Inserisce));
    domanda(Answer::Yes);
    scrivania_->AltriPacchetti(percorso);
    EXPECT_EQ(Righe(), u"TORINO CEVA SAVONA GENOVA GENOVA-PALERMO PALERMO CEFALÙ MILAZZO MESSINA"_s);
    EXPECT_EQ(scrivania_->RigaCorrente(), 10);
    EXPECT_EQ(scrivania_->Riepilogo().totali.traghetti, 1);
    EXPECT_FALSE(scrivania_->Comandi().altriPacchetti);
    EXPECT_EQ(Memorizzate(), u""_s);
    copione_.Messaggio(
        u"Impossibile: sono presenti delle tappe!\n\nE' ammesso solo con itinerario vuoto.\n\n"
        "Se vuoi procedere con l'import da MapPoint,\nè necessario cancellare l'itinerario."_s);
    scrivania_->AltriPacchetti(percorso);
    EXPECT_EQ(scrivania_->Modifiche().DaAnnullare(), u"import del percorso"_s);
    scrivania_->Annulla();
    EXPECT_EQ(NumeroTappe(scrivania_->Righe()), 0);
    scrivania_->Ripeti();
    Memorizza(Answer::Yes);
    EXPECT_EQ(Memorizzate(), Righe());
}

TEST_F(ScrivaniaTest, TheStagesOfATripDeletedMeanwhileAreNotLeftForTheNextOfItsCode) {
    NuovaMeta(u"UNO"_s);
    MetaConTappe(u"DUE"_s, {u"A"_s});
    const std::unique_ptr<Scrivania> altra = NuovaScrivania();
    copione_.Domanda(u"Confermi annullamento meta?"_s, u"Annullamento meta"_s, Answer::Yes);
    altra->CancMeta();
    copione_.Domanda(kUscire, kFine, Answer::Yes, kAnnullabile);
    copione_.Messaggio(u"L'itinerario non è stato salvato.\n\nNon esiste nessuna mèta con il codice 000002."_s);
    scrivania_->Fine();
    EXPECT_EQ(Righe(), u"A"_s);
    EXPECT_EQ(Sessione(cartella_.Percorso()).Archivio().Count(Table::Itinerari), 0);
    Esce(Answer::No);
    EXPECT_EQ(scrivania_->MetaInCorso().localita, u"UNO"_s);
}

}  // namespace
}  // namespace cronovia
