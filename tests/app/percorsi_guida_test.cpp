// The guide screen, the copy screen, the way back and the guide's visits, on the desk.
#include <SQLiteCpp/Database.h>
#include <gtest/gtest.h>

#include <memory>

#include "app/scrivania.h"
#include "itinerary/itinerari.h"
#include "support/archivio.h"
#include "support/copione.h"
#include "trips/mete.h"

namespace cronovia {
namespace {

using namespace Qt::StringLiterals;

// "NAME+stop" words, "-" a free row.
QString Righe(const RigheItinerario& righe) {
    QStringList parole;
    for (const Tappa& tappa : righe) {
        const QString sosta = TestoSosta(tappa.sosta, tappa.fineGiorno);
        parole += (tappa.localita.isEmpty() ? u"-"_s : tappa.localita) + (sosta.isEmpty() ? u""_s : u'+' + sosta);
    }
    return parole.join(u' ');
}

class PercorsiGuidaTest : public testing::Test {
  protected:
    std::unique_ptr<Scrivania> NuovaScrivania() {
        return std::make_unique<Scrivania>(
            cartella_.Percorso(), Scrivania::Volti{copione_, avanzamento_, &QDateTime::currentDateTime, [] {}});
    }
    Archive& Archivio() { return sessione_.Archivio(); }
    /// A stored trip; every leg is 100 km, the first stage has a stop of an hour.
    QString Memorizza(const QString& localita, const QStringList& tappe) {
        const QString codice = sessione_.NuovaMeta(localita, u"ITALIA"_s, QDateTime({2027, 6, 5}, {9, 0}));
        RigheItinerario righe;
        for (const QString& nome : tappe) {
            Tappa tappa;
            tappa.localita = nome;
            tappa.numStrada = u"A"_s + QString::number(righe.size());
            tappa.km = 100;
            tappa.tipo = TipoStrada::Autostrada;
            if (righe.empty()) tappa.sosta = {0, 1, 0};
            righe.push_back(tappa);
        }
        MemorizzaTappeItinerario(Archivio(), codice, righe, {}, avanzamento_);
        return codice;
    }
    void NellaGuida(const QString& localita, const QString& codice, const QString& descrizione, const QString& tempo) {
        prova::NellaGuida(Archivio(), localita, codice, descrizione, tempo);
    }
    /// The guide as another window finds it.
    QString Guida() {
        QStringList voci;
        for (const Record& r : Archivio().Select({Table::GuidaCitta, {}})) {
            voci += r[guida::Localita] + u'/' + r[guida::CodiceGuida] + u'/' + r[guida::Descrizione] + u'/' +
                    r[guida::TempoSosta];
        }
        return voci.join(u' ');
    }
    static QString Elenco(const TavoloGuida& tavolo) {
        QStringList righe;
        for (const RigaGuida& riga : *tavolo.Elenco()) {
            righe += riga.voce ? riga.voce->descrizione : riga.localita + u':' + riga.sosta;
        }
        return righe.join(u' ');
    }
    bool Salva(const CampiVoce& campi) {
        bool salvata = false;
        scrivania_->SullaGuida([&](TavoloGuida& tavolo) { salvata = tavolo.SalvaRiga(campi); });
        return salvata;
    }
    void Vai(int riga) {
        scrivania_->SullaGuida([&](TavoloGuida& tavolo) { tavolo.InserisciGuida(riga); });
    }
    void CancellaRiga() { scrivania_->SullaGuida(&TavoloGuida::CancellaRiga); }
    [[nodiscard]] const TavoloGuida& Tavolo() const { return scrivania_->Guida().value(); }
    void Copia(const std::function<void(CopiaPercorso&)>& comando) { scrivania_->SullaCopia(comando); }
    void Assegna(std::size_t estremo, int riga) {
        Copia([&](CopiaPercorso& copia) { copia.SelezionaRiga(riga), copia.Assegna(estremo); });
    }

    prova::CartellaDiProva cartella_;
    prova::Copione copione_;
    Progress avanzamento_;
    Sessione sessione_{cartella_.Percorso()};
    std::unique_ptr<Scrivania> scrivania_;
    const Question trasferisce_{
        u"Vuoi copiare le soste indicate nella Guida nelle tappe dell'itinerario?\n\nI tempi traghetto e riposi non "
        "sono influenzati e la\nmodifica sarà effettiva dopo il salvataggio dell'itinerario.\n\nProcedo?"_s,
        u"Copia soste Guida -> Itinerario"_s};
    const QString copiaConferma_ = u"Confermi inserimento tappe percorso?"_s;
    const QString copiaTitolo_ = u"Inserimento tappe percorso"_s;
};

TEST_F(PercorsiGuidaTest, TheGuideNeedsStoredStages) {
    Memorizza(u"UNO"_s, {});
    scrivania_ = NuovaScrivania();
    copione_.Messaggio(u"Impossibile... non esistono tappe memorizzate!"_s, u"Guida Città"_s);
    scrivania_->GuidaCitta();
    EXPECT_FALSE(scrivania_->Guida().has_value());
    EXPECT_EQ(scrivania_->Comandi().modoComandi, u"NuRiSaCmCaStItGcCiEsImEx"_s);
}

TEST_F(PercorsiGuidaTest, EntriesAreAddedChangedDeletedAndUndone) {
    NellaGuida(u"Roma"_s, u"08"_s, u"Trattoria"_s, u"00:00"_s);
    NellaGuida(u"ALTROVE"_s, u"08"_s, u"Osteria"_s, u"00:00"_s);
    Memorizza(u"UNO"_s, {u"ROMA"_s, u"ASTI"_s, u"Roma"_s});
    scrivania_ = NuovaScrivania();
    scrivania_->GuidaCitta();
    EXPECT_EQ(scrivania_->Comandi().modoComandi, u"zz"_s);
    EXPECT_EQ(Elenco(Tavolo()), u"ASTI: ROMA:00:01:00 Trattoria"_s);
    EXPECT_EQ(Tavolo().Campi(), (CampiVoce{{}, u"Ottimo"_s, 0, 0}));

    Vai(2);
    copione_.Messaggio(u"Errore! Manca il tempo stimato!!!"_s);
    EXPECT_FALSE(Salva({u"Colosseo"_s, u"Ottimo"_s, 0, 0}));
    EXPECT_TRUE(Salva({u"Colosseo"_s, u"Ottimo"_s, 2, 30}));
    // From the locality's row one goes on adding; type and time stay.
    EXPECT_EQ(Elenco(Tavolo()), u"ASTI: ROMA:00:01:00 Colosseo Trattoria"_s);
    EXPECT_EQ(Tavolo().RigaCorrente(), 2);
    EXPECT_EQ(Tavolo().Campi(), (CampiVoce{{}, u"Ottimo"_s, 2, 30}));
    EXPECT_TRUE(Salva({u"Pantheon"_s, u"Ottimo"_s, 1, 0}));
    // A changed entry is followed to its new place, so that what is typed next changes that one again.
    Vai(3);
    EXPECT_TRUE(Salva({u"Zoo"_s, u"Gpl"_s, 0, 0}));
    EXPECT_EQ(Elenco(Tavolo()), u"ASTI: ROMA:00:01:00 Pantheon Trattoria Zoo"_s);
    EXPECT_EQ(Tavolo().Corrente().voce->descrizione, u"Zoo"_s);
    CancellaRiga();
    EXPECT_EQ(Tavolo().Corrente().voce->descrizione, u"Trattoria"_s);
    Vai(99);  // below the list
    EXPECT_EQ(Tavolo().RigaCorrente(), 4);
    Vai(1);
    CancellaRiga();  // no entry, nothing to delete
    const QString finale = u"Roma/08/Trattoria/00:00 ALTROVE/08/Osteria/00:00 ROMA/01/Pantheon/01:00"_s;
    EXPECT_EQ(Guida(), finale);

    QStringList nomi;
    while (scrivania_->DaAnnullare()) {
        nomi += *scrivania_->DaAnnullare();
        scrivania_->Annulla();
    }
    EXPECT_EQ(nomi.join(u'|'),
              u"cancellazione di «Zoo»|modifica di «Zoo»|inserimento di «Pantheon»|"
              "inserimento di «Colosseo»"_s);
    EXPECT_EQ(Guida(), u"Roma/08/Trattoria/00:00 ALTROVE/08/Osteria/00:00"_s);
    while (scrivania_->DaRipetere()) scrivania_->Ripeti();
    EXPECT_EQ(Guida(), finale);

    scrivania_->FineGuida();
    EXPECT_FALSE(scrivania_->Guida().has_value());
    EXPECT_EQ(scrivania_->Righe().at(0).guida, (Durata{0, 1, 0}));  // the itinerary shows the new visit
    EXPECT_EQ(scrivania_->DaAnnullare(), std::nullopt);
}

TEST_F(PercorsiGuidaTest, WhatASecondWindowDidMeanwhile) {
    for (const auto& nome : {u"Foro *"_s, u"Foro Romano"_s}) NellaGuida(u"ROMA"_s, u"01"_s, nome, u"01:00"_s);
    const QString codice = Memorizza(u"UNO"_s, {u"ROMA"_s, u"ASTI"_s});
    scrivania_ = NuovaScrivania();
    scrivania_->GuidaCitta();
    Vai(3);
    ASSERT_EQ(Tavolo().Corrente().voce->descrizione, u"Foro *"_s);
    Archivio().Delete(Table::GuidaCitta, 1);
    copione_.Messaggio(
        u"L'annotazione mostrata era stata cambiata o cancellata nel frattempo:\ni dati sono stati inseriti come nuova annotazione."_s);
    EXPECT_TRUE(Salva({u"Foro di Nerva"_s, u"Ottimo"_s, 1, 0}));
    EXPECT_EQ(Guida(), u"ROMA/01/Foro Romano/01:00 ROMA/01/Foro di Nerva/01:00"_s);
    Archivio().Delete(Table::GuidaCitta, 3);
    copione_.Messaggio(
        u"Impossibile: l'annotazione è stata cambiata o cancellata nel frattempo\n"
        "(inserimento di «Foro di Nerva»)."_s);
    scrivania_->Annulla();
    EXPECT_EQ(scrivania_->DaAnnullare(), std::nullopt);
    Vai(3);
    Archivio().Delete(Table::GuidaCitta, 2);
    CancellaRiga();  // gone already: nothing is said, nothing else goes
    EXPECT_EQ(Elenco(Tavolo()), u"ASTI: ROMA:00:01:00"_s);
    CancellaMeta(Archivio(), codice, avanzamento_);
    copione_.Messaggio(u"Impossibile... non esistono tappe memorizzate!"_s, u"Guida Città"_s);
    Salva({u"Foro di Nerva"_s, u"Ottimo"_s, 1, 0});
    EXPECT_FALSE(scrivania_->Guida().has_value());
    EXPECT_EQ(scrivania_->Comandi().modoComandi, u"NuImEs"_s);
}

TEST_F(PercorsiGuidaTest, VisitTimesGoToTheFirstStageOfTheirLocality) {
    NellaGuida(u"ROMA"_s, u"01"_s, u"Foro"_s, u"02:20"_s);
    NellaGuida(u"Roma"_s, u"02"_s, u"Pantheon"_s, u"00:50"_s);
    NellaGuida(u"ASTI"_s, u"08"_s, u"Osteria"_s, u"00:00"_s);
    Memorizza(u"UNO"_s, {u"ROMA"_s, u"ASTI"_s, u"ROMA"_s});
    scrivania_ = NuovaScrivania();
    scrivania_->Itinerario();
    const auto trasferisce = [&](Answer risposta) {
        copione_.Domanda(trasferisce_.text, trasferisce_.title, risposta);
        scrivania_->Trasferisce();
        return Righe(scrivania_->Righe());
    };
    EXPECT_EQ(trasferisce(Answer::No), u"ROMA+00:01:00 ASTI ROMA"_s);
    EXPECT_EQ(trasferisce(Answer::Yes), u"ROMA+00:04:10 ASTI ROMA"_s);
    EXPECT_EQ(trasferisce(Answer::Yes), u"ROMA+00:07:20 ASTI ROMA"_s);
    EXPECT_EQ(scrivania_->DaAnnullare(), u"copia delle soste della guida"_s);
    scrivania_->Annulla();
    scrivania_->Annulla();
    EXPECT_EQ(Righe(scrivania_->Righe()), u"ROMA+00:01:00 ASTI ROMA"_s);
    // A day of stop is a day of visits; the end of the day stays.
    CampiTappa campi{u"ROMA"_s, {}, 100, TipoStrada::Locale, {0, 8, 0}, true};
    scrivania_->SelezionaRiga(3);
    ASSERT_TRUE(scrivania_->Inserisce(campi));
    scrivania_->SelezionaRiga(1);
    scrivania_->Cancella();
    EXPECT_EQ(trasferisce(Answer::Yes), u"ASTI ROMA+*01:02:10"_s);
}

TEST_F(PercorsiGuidaTest, TheWayBackIsOneUndoableChange) {
    Memorizza(u"UNO"_s, {u"A"_s, u"B"_s, u"C"_s, u"B"_s});
    scrivania_ = NuovaScrivania();
    scrivania_->Itinerario();
    scrivania_->Ritorno();
    EXPECT_EQ(Righe(scrivania_->Righe()), u"A+00:01:00 B C B A"_s);
    EXPECT_EQ(scrivania_->Riepilogo().totali.km.back(), 500);
    EXPECT_EQ(scrivania_->RigaCorrente(), 2);
    scrivania_->Ritorno();  // it is closed: nothing is added, nothing to undo
    EXPECT_EQ(scrivania_->DaAnnullare(), u"ritorno alla partenza"_s);
    scrivania_->Annulla();
    EXPECT_EQ(Righe(scrivania_->Righe()), u"A+00:01:00 B C B"_s);
}

TEST_F(PercorsiGuidaTest, AStretchOfAnotherTripIsCopied) {
    Memorizza(u"ZARA"_s, {u"P"_s, u"Q"_s, u"R"_s, u"S"_s});
    Memorizza(u"VUOTA"_s, {});
    Memorizza(u"BARI"_s, {u"A"_s, u"B"_s});
    scrivania_ = NuovaScrivania();
    scrivania_->Itinerario();
    scrivania_->Aggiunge();
    scrivania_->SelezionaRiga(9);
    scrivania_->Duplica();
    ASSERT_TRUE(scrivania_->Copia().has_value());
    EXPECT_EQ(scrivania_->RigaCorrente(), 3);  // the last stage
    EXPECT_EQ(scrivania_->Comandi().modoItinerario, u"Fi"_s);
    EXPECT_EQ(scrivania_->DaAnnullare(), std::nullopt);
    QStringList mete;
    for (const MetaInElenco& meta : scrivania_->Copia()->Mete()) mete += meta.localita + u' ' + meta.nazione;
    EXPECT_EQ(mete.join(u'|'), u"BARI ITALIA|ZARA ITALIA"_s);
    Copia([](CopiaPercorso& copia) { copia.ScegliMeta(2); });
    Assegna(0, 4);
    EXPECT_FALSE(scrivania_->Copia()->Scelto().has_value());
    scrivania_->InserisciPercorso(true);  // not ready: nothing is asked
    Assegna(1, 1);
    copione_.Domanda(copiaConferma_, copiaTitolo_, Answer::No);
    scrivania_->InserisciPercorso(true);
    ASSERT_TRUE(scrivania_->Copia().has_value());  // one may choose again
    Assegna(0, 3);
    copione_.Domanda(copiaConferma_, copiaTitolo_, Answer::Yes);
    scrivania_->InserisciPercorso(true);
    EXPECT_FALSE(scrivania_->Copia().has_value());
    EXPECT_EQ(Righe(scrivania_->Righe()), u"- A+00:01:00 B R Q P+00:01:00"_s);
    EXPECT_EQ(scrivania_->Righe()[3].numStrada, u"A3"_s);
    EXPECT_EQ(scrivania_->RigaCorrente(), 4);
    EXPECT_EQ(scrivania_->Comandi().modoItinerario, u"InAgCaRcRtCeFiMeDuAzTr"_s);
    EXPECT_EQ(scrivania_->DaAnnullare(), u"copia di un percorso"_s);
    scrivania_->Annulla();
    EXPECT_EQ(Righe(scrivania_->Righe()), u"- A+00:01:00 B"_s);
    scrivania_->Ripeti();
    scrivania_->Duplica();
    scrivania_->Fine();  // closes the lists alone
    EXPECT_FALSE(scrivania_->Copia().has_value());
    EXPECT_TRUE(scrivania_->InserimentoVisibile());
}

TEST_F(PercorsiGuidaTest, ATripEmptiedMeanwhileGivesNothingToCopy) {
    scrivania_ = NuovaScrivania();
    copione_.Messaggio(u"Non trovate mète memorizzate"_s);
    scrivania_->Duplica();
    EXPECT_FALSE(scrivania_->Copia().has_value());
    const QString altra = Memorizza(u"ZARA"_s, {u"P"_s, u"Q"_s});
    const QString propria = Memorizza(u"BARI"_s, {u"A"_s});
    scrivania_ = NuovaScrivania();
    scrivania_->Itinerario();
    scrivania_->Duplica();
    MemorizzaTappeItinerario(Archivio(), altra, {}, {}, avanzamento_);
    copione_.Messaggio(u"La mèta «ZARA» non ha più tappe memorizzate."_s);
    Copia([](CopiaPercorso& copia) { copia.SelezionaRiga(2); });
    Copia([](CopiaPercorso& copia) { copia.ScegliMeta(2); });
    EXPECT_EQ(scrivania_->Copia()->Mete().size(), 1U);
    EXPECT_EQ(scrivania_->Copia()->RigaCopia(), 1);
    CancellaMeta(Archivio(), propria, avanzamento_);
    copione_.Messaggio(u"Non esiste nessuna mèta con il codice 000002."_s);
    Copia([](CopiaPercorso& copia) { copia.ScegliMeta(1); });
    EXPECT_FALSE(scrivania_->Copia().has_value());  // there is nothing left to choose from
    EXPECT_EQ(Righe(scrivania_->Righe()), u"A+00:01:00"_s);
}

}  // namespace
}  // namespace cronovia
