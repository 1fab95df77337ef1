// The commands of the entry screen.
#include <algorithm>
#include <utility>

#include "app/scrivania.h"
#include "guide/guida_citta.h"
#include "interaction/failure.h"
#include "itinerary/itinerari.h"

namespace cronovia {

using namespace Qt::StringLiterals;

void Scrivania::Itinerario() {
    if (SenzaMeta()) return;
    cronovia_.reset();
    inserimento_ = true;
    ApplicaModo(u"zz"_s);
    modoItinerario_ = u"all"_s;
    SelezionaRiga(rigaCorrente_);
}

void Scrivania::SelezionaRiga(int riga) {
    const int tappe = NumeroTappe(righe_);
    rigaCorrente_ = std::max(1, riga > tappe ? tappe + 1 : riga);
    appenaInserita_ = false;
}

// Takes over a changed itinerary: times and visits are computed afresh.
void Scrivania::Mostra(StatoItinerario stato) {
    RicalcolaVisite(sessione_.Archivio(), stato.righe, OrarioCorretto(meta_.parametri));
    righe_ = std::move(stato.righe);
    RicalcolaTempi();
    SelezionaRiga(stato.rigaCorrente);
}

// Rows behind the last stage are free anyway and go. What changes nothing needs no undo.
bool Scrivania::Modifica(const QString& nome, RigheItinerario nuove, int riga) {
    nuove.resize(static_cast<std::size_t>(NumeroTappe(nuove)));
    if (nuove == righe_) {
        SelezionaRiga(riga);
        return true;
    }
    return Prova([&] {
        StatoItinerario prima{righe_, rigaCorrente_};
        Mostra({std::move(nuove), riga});
        cronologia_.Ricorda(nome, std::move(prima));
    });
}

bool Scrivania::Inserisce(CampiTappa campi) {
    if (campi.kmDigitati)
        campi.km = KmDellaTappa(campi.km, KmPrecedenti(righe_, riepilogo_, rigaCorrente_), rigaCorrente_);
    const std::vector<Message> rifiuti = ControllaTappa(campi, rigaCorrente_);
    for (const Message& rifiuto : rifiuti) volti_.interazione.Show(rifiuto);
    if (!rifiuti.empty()) return false;
    const bool nuova = rigaCorrente_ > static_cast<int>(righe_.size()) ||
                       righe_[static_cast<std::size_t>(rigaCorrente_ - 1)].localita.isEmpty();
    const QString nome = nuova ? u"inserimento di %1"_s : u"modifica di %1"_s;
    if (!Modifica(nome.arg(campi.localita), InserisceTappa(righe_, rigaCorrente_, campi), rigaCorrente_ + 1)) {
        return false;
    }
    appenaInserita_ = true;
    return true;
}

void Scrivania::Aggiunge() {
    Modifica(u"apertura di una riga"_s, InserisciRigheItinerario(righe_, rigaCorrente_, 1), rigaCorrente_);
}

void Scrivania::Cancella() {
    Modifica(u"cancellazione di una riga"_s, CancellaRiga(righe_, rigaCorrente_), rigaCorrente_);
}

void Scrivania::AzzeraSoste() {
    const Question domanda{
        u"Vuoi azzerare le soste indicate nell'itinerario?\n\n"
        "I tempi traghetto e riposi non sono influenzati e la\n"
        "cancellazione sarà effettiva dopo il salvataggio dell'itinerario.\n\nProcedo?"_s,
        u"Azzera soste itinerario"_s};
    if (volti_.interazione.Ask(domanda) != Answer::Yes) return;
    Modifica(u"azzeramento delle soste"_s, cronovia::AzzeraSoste(righe_), rigaCorrente_);
}

void Scrivania::Cerca() {
    elencoTappe_ = true;
    modoItinerario_ = u"Fi"_s;
}

void Scrivania::ScegliTappa(int riga) {
    elencoTappe_ = false;
    modoItinerario_ = u"all"_s;
    SelezionaRiga(riga);
}

bool Scrivania::MemorizzaTappe() {
    return SenzaComandi(u"L'itinerario non è stato salvato."_s, [&] {
        // Another window may have deleted the trip: stages without one would turn up in the next trip with its code.
        sessione_.ApriMeta(codiceMetaCorrente_);
        const EsitoMemorizzazione esito = MemorizzaTappeItinerario(sessione_.Archivio(), codiceMetaCorrente_, righe_,
                                                                   OrarioCorretto(meta_.parametri), volti_.avanzamento);
        memorizzate_ = righe_;
        if (esito.nomiAccorciati == 0) return;
        volti_.interazione.Show({TestoNomiAccorciati(esito), {}, Icon::Exclamation});
    });
}

void Scrivania::Memorizza() {
    const QString titolo = u"Salvataggio itinerario"_s;
    const Answer risposta = volti_.interazione.Ask({u"Vuoi salvare l'itinerario?"_s, titolo, true});
    if (risposta == Answer::Cancel) return;
    if (risposta == Answer::No &&
        volti_.interazione.Ask({u"Vuoi recuperare l'itinerario originale?"_s, titolo}) != Answer::Yes) {
        return;
    }
    if (risposta == Answer::Yes) {
        MemorizzaTappe();
        return;
    }
    Prova([&] {
        CaricaMetaCorrente();
        ApplicaModo(u"ZZ"_s);
        modoItinerario_ = u"all"_s;
        SelezionaRiga(1);
    });
}

void Scrivania::Fine() {
    if (copia_) return RinunciaDuplicaItinerario();
    if (elencoTappe_) {
        elencoTappe_ = false;
        modoItinerario_ = u"all"_s;
        return;
    }
    const Answer risposta =
        volti_.interazione.Ask({u"Hai chiesto di uscire dalla funzione 'Itinerari':\n\n"
                                "Vuoi salvare le eventuali modifiche?"_s,
                                u"Fine inserimento"_s, true});
    if (risposta == Answer::Cancel) return;
    if (risposta == Answer::Yes && !MemorizzaTappe()) return;
    EsciDallInserimento();
}

void Scrivania::EsciDallInserimento() {
    Prova([&] {
        CaricaMetaCorrente();
        inserimento_ = false;
        modoItinerario_ = u"zz"_s;
    });
}

void Scrivania::Ricalcola() {
    inserimento_ = false;
    daInserimento_ = true;
    EseguiCalcolo();
}

void Scrivania::Annulla() {
    if (guida_) return SullaGuida([](TavoloGuida& guida) { guida.Annulla(); });
    if (DaAnnullareImport()) return AnnullaImportazione();
    const auto stato = cronologia_.Annulla({righe_, rigaCorrente_});
    if (stato && !Prova([&] { Mostra(*stato); })) cronologia_.Ripeti(*stato);
}

void Scrivania::Ripeti() {
    if (guida_) return SullaGuida([](TavoloGuida& guida) { guida.Ripeti(); });
    const auto stato = cronologia_.Ripeti({righe_, rigaCorrente_});
    if (stato && !Prova([&] { Mostra(*stato); })) cronologia_.Annulla(*stato);
}

}  // namespace cronovia
