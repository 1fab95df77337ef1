// Which commands can be used: facts of the document and the screen in front in, enabled commands and captions out.
#pragma once

#include <bitset>
#include <cstddef>

#include "app/schermate.h"

namespace cronovia {

/// The commands that have a button on the trip screen or on that of the entry.
enum class Comando {
    // The main commands.
    Nuovo,
    Ricerca,
    Salva,
    CancMeta,
    Calcola,
    Stampa,
    Itinerario,
    GuidaCitta,
    CancItin,
    Esce,
    Import,
    Export,
    Converte,
    // Those of the itinerary.
    Inserisce,
    Aggiunge,
    Cancella,
    Ricalcola,
    Ritorno,
    Cerca,
    Fine,
    Memorizza,
    Duplica,
    AzzeraSoste,
    Trasferisce,
    AltriPacchetti
};
inline constexpr std::size_t kComandi = static_cast<std::size_t>(Comando::AltriPacchetti) + 1;

/// What goes on at this moment.
enum class Attivita {
    Nessuna,
    Scrittura,  ///< the archive is written to: nothing else can begin
    Corsa,      ///< a run that can be stopped
};

/// What the document and the moment contribute.
struct Fatti {
    int tappe = 0;            ///< stages of the itinerary
    bool metaAperta = false;  ///< a stored trip is open, or was before the one that is filled in
    Attivita attivita = Attivita::Nessuna;
};

/// The commands at one moment.
struct StatoComandi {
    std::bitset<kComandi> abilitati;
    bool sblocca = false;  ///< Calculate reads Unlock
    bool stop = false;     ///< Exit reads Stop

    [[nodiscard]] bool Abilitato(Comando comando) const { return abilitati[static_cast<std::size_t>(comando)]; }
};

/// Depends on nothing but these two: a command is enabled when the screen allows it and nothing else goes on.
StatoComandi StatoDeiComandi(const Fatti& fatti, const Schermata& schermata);

}  // namespace cronovia
