// SPDX-License-Identifier: GPL-3.0-or-later
// The guide screen, the guide's visits, and copying from a trip that changes meanwhile, without a window.
#include "support/archivio.h"

#include <QDateTime>

#include "support/postazione.h"

namespace cronovia {
namespace {

using namespace Qt::StringLiterals;

class PercorsiGuidaTest : public prova::PostazioneTest {
  protected:
    Archive& Archivio() { return sessione_.Archivio(); }
    /// A stored trip; every leg is 100 km, the first stage has a stop of an hour.
    QString MetaMemorizzata(const QString& localita, const QStringList& tappe) {
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
        comandi::SullaGuida(*postazione_, [&](TavoloGuida& tavolo) { salvata = tavolo.SalvaRiga(campi); });
        return salvata;
    }
    void Vai(int riga) {
        comandi::SullaGuida(*postazione_, [&](TavoloGuida& tavolo) { tavolo.VaiAllaRiga(riga); });
    }
    void CancellaRiga() { comandi::SullaGuida(*postazione_, &TavoloGuida::CancellaRiga); }
    [[nodiscard]] const TavoloGuida& Tavolo() const { return *postazione_->Su<schermata::Guida>()->tavolo; }
    [[nodiscard]] const TavoloCopia& CopiaAperta() const { return postazione_->Su<schermata::Copia>()->tavolo; }
    void Copia(const std::function<void(TavoloCopia&)>& comando) { comandi::SullaCopia(*postazione_, comando); }

    Sessione sessione_{cartella_.Path()};
    const Question trasferisce_{
        u"Vuoi copiare le soste indicate nella Guida nelle tappe dell'itinerario?\n\nI tempi traghetto e riposi non "
        "sono influenzati e la\nmodifica sarà effettiva dopo il salvataggio dell'itinerario.\n\nProcedo?\n\nUNO (000001)"_s,
        u"Copia soste Guida -> Itinerario"_s};
};

TEST_F(PercorsiGuidaTest, EntriesAreAddedChangedDeletedAndUndone) {
    NellaGuida(u"Roma"_s, u"08"_s, u"Trattoria"_s, u"00:00"_s);
    NellaGuida(u"ALTROVE"_s, u"08"_s, u"Osteria"_s, u"00:00"_s);
    MetaMemorizzata(u"UNO"_s, {u"ROMA"_s, u"ASTI"_s, u"Roma"_s});
    postazione_ = NuovaPostazione();
    comandi::GuidaCitta(*postazione_);
    EXPECT_EQ(Elenco(Tavolo()), u"ASTI: ROMA:00:01:00 Trattoria"_s);
    EXPECT_EQ(Tavolo().Campi(), (CampiVoce{{}, u"Ottimo"_s, 0, 0}));

    Vai(2);
    copione_.Messaggio(u"Errore! Manca il tempo stimato!!!"_s);
    EXPECT_FALSE(Salva({u"Colosseo"_s, u"Ottimo"_s, 0, 0}));
    EXPECT_TRUE(Salva({u"Colosseo"_s, u"Ottimo"_s, 2, 30}));
    copione_.Messaggio(u"L'annotazione «Colosseo» di ROMA c'è già, con la stessa tipologia e lo stesso tempo."_s);
    EXPECT_FALSE(Salva({u"Colosseo"_s, u"Ottimo"_s, 2, 30}));
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
    while (postazione_->DaAnnullare()) {
        nomi += *postazione_->DaAnnullare();
        comandi::Annulla(*postazione_);
    }
    EXPECT_EQ(nomi.join(u'|'),
              u"cancellazione di «Zoo»|modifica di «Zoo»|inserimento di «Pantheon»|"
              "inserimento di «Colosseo»"_s);
    EXPECT_EQ(Guida(), u"Roma/08/Trattoria/00:00 ALTROVE/08/Osteria/00:00"_s);
    while (postazione_->DaRipetere()) comandi::Ripeti(*postazione_);
    EXPECT_EQ(Guida(), finale);

    // The end of the program saves nothing unasked.
    Vai(1);
    comandi::SullaGuida(*postazione_, [](auto& tavolo) { tavolo.Scrivi({u"Terme"_s, u"Gpl"_s, 0, 0}); });
    EXPECT_TRUE(Congeda(*postazione_) && Congeda(*postazione_));
    EXPECT_EQ(Guida(), finale);
    DomandaModifiche(u"L'annotazione «Terme» di ASTI non è stata salvata.\nMèta: «UNO» (codice 000001)"_s, Answer::No);
    comandi::FineGuida(*postazione_);
    EXPECT_EQ(Schermo(), u"aperta"_s);
    EXPECT_EQ(postazione_->documento.Righe().at(0).guida, (Durata{0, 1, 0}));  // the itinerary shows the new visit
    EXPECT_EQ(postazione_->DaAnnullare(), std::nullopt);
}

TEST_F(PercorsiGuidaTest, WhatASecondWindowDidMeanwhile) {
    for (const auto& nome : {u"Foro *"_s, u"Foro Romano"_s}) NellaGuida(u"ROMA"_s, u"01"_s, nome, u"01:00"_s);
    const QString codice = MetaMemorizzata(u"UNO"_s, {u"ROMA"_s, u"ASTI"_s});
    postazione_ = NuovaPostazione();
    comandi::GuidaCitta(*postazione_);
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
    comandi::Annulla(*postazione_);
    EXPECT_EQ(postazione_->DaAnnullare(), std::nullopt);
    Vai(3);
    Archivio().Delete(Table::GuidaCitta, 2);
    CancellaRiga();  // gone already: nothing is said, nothing else goes
    EXPECT_EQ(Elenco(Tavolo()), u"ASTI: ROMA:00:01:00"_s);
    CancellaMeta(Archivio(), codice, avanzamento_);
    copione_.Messaggio(u"Impossibile... non esistono tappe memorizzate!"_s, u"Guida Città"_s);
    Salva({u"Foro di Nerva"_s, u"Ottimo"_s, 1, 0});
    EXPECT_EQ(Schermo(), u"vuota"_s);
}

TEST_F(PercorsiGuidaTest, VisitTimesGoToTheFirstStageOfTheirLocality) {
    NellaGuida(u"ROMA"_s, u"01"_s, u"Foro"_s, u"02:20"_s);
    NellaGuida(u"Roma"_s, u"02"_s, u"Pantheon"_s, u"00:50"_s);
    NellaGuida(u"ASTI"_s, u"08"_s, u"Osteria"_s, u"00:00"_s);
    MetaMemorizzata(u"UNO"_s, {u"ROMA"_s, u"ASTI"_s, u"ROMA"_s});
    postazione_ = NuovaPostazione();
    comandi::Itinerario(*postazione_);
    const auto trasferisce = [&](Answer risposta) {
        copione_.Domanda(trasferisce_.text, trasferisce_.title, risposta);
        comandi::Trasferisce(*postazione_);
        return RigheESoste();
    };
    EXPECT_EQ(trasferisce(Answer::No), u"ROMA+00:01:00 ASTI ROMA"_s);
    EXPECT_EQ(trasferisce(Answer::Yes), u"ROMA+00:04:10 ASTI ROMA"_s);
    EXPECT_EQ(trasferisce(Answer::Yes), u"ROMA+00:07:20 ASTI ROMA"_s);
    EXPECT_EQ(postazione_->DaAnnullare(), u"copia delle soste della guida"_s);
    comandi::Annulla(*postazione_);
    comandi::Annulla(*postazione_);
    EXPECT_EQ(RigheESoste(), u"ROMA+00:01:00 ASTI ROMA"_s);
    // A day of stop is a day of visits; the end of the day stays.
    const CampiTappa campi{u"ROMA"_s, {}, 100, TipoStrada::Locale, {0, 8, 0}, true};
    comandi::SelezionaRiga(*postazione_, 3);
    ASSERT_TRUE(Inserisce(campi));
    comandi::SelezionaRiga(*postazione_, 1);
    comandi::Cancella(*postazione_);
    EXPECT_EQ(trasferisce(Answer::Yes), u"ASTI ROMA+*01:02:10"_s);
}

TEST_F(PercorsiGuidaTest, ATripEmptiedMeanwhileGivesNothingToCopy) {
    postazione_ = NuovaPostazione();
    copione_.Messaggio(u"Non trovate mète memorizzate"_s);
    comandi::Duplica(*postazione_);
    EXPECT_NE(Schermo(), u"copia"_s);
    const QString altra = MetaMemorizzata(u"ZARA"_s, {u"P"_s, u"Q"_s});
    const QString propria = MetaMemorizzata(u"BARI"_s, {u"A"_s});
    postazione_ = NuovaPostazione();
    comandi::Itinerario(*postazione_);
    comandi::Duplica(*postazione_);
    MemorizzaTappeItinerario(Archivio(), altra, {}, {}, avanzamento_);
    copione_.Messaggio(u"La mèta «ZARA» non ha più tappe memorizzate."_s);
    Copia([](TavoloCopia& copia) { copia.SelezionaRiga(2); });
    Copia([](TavoloCopia& copia) { copia.ScegliMeta(2); });
    EXPECT_EQ(CopiaAperta().Mete().size(), 1U);
    EXPECT_EQ(CopiaAperta().RigaCopia(), 1);
    CancellaMeta(Archivio(), propria, avanzamento_);
    copione_.Messaggio(u"Non esiste nessuna mèta con il codice 000002."_s);
    Copia([](TavoloCopia& copia) { copia.ScegliMeta(1); });
    EXPECT_NE(Schermo(), u"copia"_s);  // there is nothing left to choose from
    EXPECT_EQ(RigheESoste(), u"A+00:01:00"_s);
}

}  // namespace
}  // namespace cronovia
