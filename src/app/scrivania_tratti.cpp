// The commands of the entry screen that make stages from other stages, or stops from the guide.
#include <algorithm>
#include <utility>

#include "app/scrivania.h"
#include "itinerary/itinerari.h"

namespace cronovia {

using namespace Qt::StringLiterals;

void Scrivania::Ritorno() {
    EsitoTratto esito = cronovia::Ritorno(righe_);
    Modifica(u"ritorno alla partenza"_s, std::move(esito.righe), esito.rigaCorrente);
}

void Scrivania::Trasferisce() {
    const Question domanda{
        u"Vuoi copiare le soste indicate nella Guida nelle tappe dell'itinerario?\n\n"
        "I tempi traghetto e riposi non sono influenzati e la\n"
        "modifica sarà effettiva dopo il salvataggio dell'itinerario.\n\nProcedo?"_s,
        u"Copia soste Guida -> Itinerario"_s};
    if (volti_.interazione.Ask(domanda) != Answer::Yes) return;
    Prova([&] {
        RigheItinerario righe =
            ConSosteDellaGuida(sessione_.Archivio(), righe_, OrarioCorretto(meta_.parametri), volti_.avanzamento);
        Modifica(u"copia delle soste della guida"_s, std::move(righe), rigaCorrente_);
    });
    volti_.avanzamento.Advance(0, 0);
}

void Scrivania::Duplica() {
    int riga = std::min(rigaCorrente_, NumeroTappe(righe_));
    while (riga > 1 && righe_[static_cast<std::size_t>(riga - 1)].localita.isEmpty()) --riga;
    SelezionaRiga(riga);
    if (Prova([&] { copia_.emplace(sessione_); })) modoItinerario_ = u"Fi"_s;
}

void Scrivania::SullaCopia(const std::function<void(CopiaPercorso&)>& comando) {
    if (!copia_) return;
    Prova([&] { comando(*copia_); });
    if (copia_->Mete().empty()) RinunciaDuplicaItinerario();
}

void Scrivania::InserisciPercorso(bool conSoste) {
    const std::optional<Tratto> tratto = copia_ ? copia_->Scelto() : std::nullopt;
    if (!tratto || !BoxConferma(volti_.interazione, u"IP"_s)) return;
    EsitoTratto esito = CopiaTratto(righe_, rigaCorrente_, *copia_->Tappe(), *tratto, conSoste);
    if (!Modifica(u"copia di un percorso"_s, std::move(esito.righe), esito.rigaCorrente)) return;
    RinunciaDuplicaItinerario();
}

void Scrivania::RinunciaDuplicaItinerario() {
    copia_.reset();
    modoItinerario_ = u"all"_s;
}

}  // namespace cronovia
