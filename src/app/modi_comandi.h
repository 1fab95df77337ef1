// Which commands can be used: mode strings and screen facts in, enabled commands and captions out.
#pragma once

#include <QString>
#include <QStringView>
#include <array>
#include <bitset>

namespace cronovia {

/// The main commands, in the order of their codes "Nu", "Ri", "Sa", "Cm", "Ca", "St", "It", "Gc", "Ci", "Es", "Im",
/// "Ex".
enum class Comando {
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
    Export
};
inline constexpr std::size_t kComandi = 12;

/// The commands of the itinerary, in the order of their codes "In", "Ag", "Ca", "Rc", "Rt", "Ce", "Fi", "Me", "Du",
/// "Az", "Tr".
enum class ComandoItinerario {
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
    Trasferisce
};
inline constexpr std::size_t kComandiItinerario = 11;

/// What the mode strings are applied to.
struct FattiSchermo {
    bool inserimentoVisibile = false;  ///< the entry frame is open
    bool daSbloccare = false;          ///< the calculate button offers to unlock
    int numeroTappe = 0;               ///< stages in the grid
};

struct StatoComandi {
    QString modoComandi;  ///< after the rules below: what the strings have become
    QString modoItinerario;
    std::bitset<kComandi> comandi;
    std::bitset<kComandiItinerario> itinerario;
    bool altriPacchetti = false;  ///< import from other programs
    bool stop = false;            ///< Exit reads Stop
    bool escEsce = false;         ///< the Esc key means Exit

    [[nodiscard]] bool Abilitato(Comando comando) const { return comandi[static_cast<std::size_t>(comando)]; }
    [[nodiscard]] bool Abilitato(ComandoItinerario c) const { return itinerario[static_cast<std::size_t>(c)]; }
};

/// A command is enabled when its code occurs in its mode string; "all" in any case stands for every one. While the
/// calculate button offers to unlock, only Calculate and Print are left, except while a printer is chosen ("vv"); while
/// stages are entered, no main command is.
StatoComandi AbilitaPulsantiComando(QStringView modoComandi, QStringView modoItinerario, const FattiSchermo& fatti);

}  // namespace cronovia
