#include "app/stato_comandi.h"

#include <initializer_list>

namespace cronovia {

namespace {

using Comandi = std::initializer_list<Comando>;

constexpr Comandi kPrincipali = {Comando::Nuovo,    Comando::Ricerca, Comando::Salva,      Comando::CancMeta,
                                 Comando::Calcola,  Comando::Stampa,  Comando::Itinerario, Comando::GuidaCitta,
                                 Comando::CancItin, Comando::Esce,    Comando::Import,     Comando::Export};
constexpr Comandi kSempreInInserimento = {Comando::Inserisce,   Comando::Aggiunge,   Comando::Cerca,
                                          Comando::Fine,        Comando::Memorizza,  Comando::Duplica,
                                          Comando::AzzeraSoste, Comando::Trasferisce};
constexpr Comandi kConDueTappe = {Comando::Ricalcola, Comando::Ritorno, Comando::Cancella};

/// Enables what a screen allows while nothing else goes on.
struct Abilita {
    const Fatti& fatti;
    StatoComandi& stato;

    void Solo(Comandi comandi) const {
        for (const Comando comando : comandi) stato.abilitati.set(static_cast<std::size_t>(comando));
    }

    void operator()(const schermata::Viaggio& viaggio) const {
        using Fase = schermata::Viaggio::Fase;
        switch (viaggio.fase) {
            case Fase::Vuota:
                Solo({Comando::Nuovo, Comando::Import, Comando::Esce, Comando::Calcola, Comando::Stampa});
                break;
            case Fase::Nuova:
                Solo({Comando::Nuovo, Comando::Salva, Comando::Esce, Comando::Calcola, Comando::Stampa});
                if (fatti.metaAperta) Solo({Comando::Ricerca});
                break;
            case Fase::Aperta:
                Solo(kPrincipali);
                break;
        }
        if (viaggio.converteOfferto) Solo({Comando::Converte});
    }
    void operator()(const schermata::ElencoMete& /*elenco*/) const { Solo({Comando::Nuovo, Comando::Esce}); }
    void operator()(const schermata::Inserimento& inserimento) const {
        if (inserimento.elencoTappe) return Solo({Comando::Fine});
        Solo(kSempreInInserimento);
        if (fatti.tappe >= 2) Solo(kConDueTappe);
        if (fatti.tappe < (inserimento.appenaInserita ? 1 : 2)) Solo({Comando::AltriPacchetti});
    }
    void operator()(const schermata::Cronovia& /*cronovia*/) const { Solo({Comando::Calcola, Comando::Stampa}); }
    void operator()(const schermata::Stampa& stampa) const {
        if (!stampa.inCorso) Solo({Comando::Calcola, Comando::Stampa});
    }
    void operator()(const schermata::Guida& /*guida*/) const {}
    void operator()(const schermata::Copia& /*copia*/) const { Solo({Comando::Fine}); }
    void operator()(const schermata::Scambio& /*scambio*/) const {}
};

}  // namespace

StatoComandi StatoDeiComandi(const Fatti& fatti, const Schermata& schermata) {
    StatoComandi stato;
    stato.stop = fatti.attivita == Attivita::Corsa;
    stato.sblocca = !stato.stop && (std::holds_alternative<schermata::Cronovia>(schermata) ||
                                    std::holds_alternative<schermata::Stampa>(schermata));
    if (stato.stop) stato.abilitati.set(static_cast<std::size_t>(Comando::Esce));
    if (fatti.attivita == Attivita::Nessuna) std::visit(Abilita{fatti, stato}, schermata);
    return stato;
}

}  // namespace cronovia
