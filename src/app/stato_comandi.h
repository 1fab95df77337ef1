// SPDX-License-Identifier: GPL-3.0-or-later
// Which commands can be used: facts of the document and the screen in front in, enabled commands and captions out.
#pragma once

#include <bitset>
#include <cstddef>
#include <cstdint>
#include <map>
#include <optional>

#include "app/schermate.h"

namespace cronovia {

/// The commands of the window, in the order of their menus.
enum class Comando {
    // File
    Nuovo,
    Ricerca,
    Salva,
    CancMeta,
    Import,
    Export,
    PaginaTelefono,
    Calendario,
    Converte,
    Ripristina,
    Ripara,
    SalvaAltrove,
    ScambiaTutteDaPrima,
    ScambiaTutteDaSeconda,
    ImExp,
    FineScambio,
    Preferenze,
    Esce,
    // Modifica
    Annulla,
    Ripeti,
    Taglia,
    Copia,
    Incolla,
    CopiaGiornate,
    DuplicaRighe,
    TogliRighe,
    SpostaSu,
    SpostaGiu,
    SalvaDefault,
    CaricaDefault,
    RipristinaDefault,
    // Itinerario
    Itinerario,
    CancItin,
    Inserisce,
    Aggiunge,
    Cancella,
    DividiTappa,
    OrariENote,
    Cerca,
    Ritorno,
    Duplica,
    AltriPacchetti,
    ImportaTratto,
    AzzeraSoste,
    Trasferisce,
    Memorizza,
    Fine,
    AssegnaInizio,
    AssegnaFine,
    InserisceTratto,
    RinunciaCopia,
    // Cronovia
    Calcola,
    Ricalcola,
    Confronta,
    FineGiornata,
    ACasaEntro,
    Stampa,
    ScegliStampante,
    Anteprima,
    RinunciaStampa,
    AvviaStampa,
    RinunciaStampante,
    // Guida
    GuidaCitta,
    SalvaRigaGuida,
    CancellaRigaGuida,
    CercaInGuida,
    StampaGuida,
    FineGuida,
    ImportaSoste,
    ScegliStampanteGuida,
    AnteprimaGuida,
    RinunciaStampaGuida,
    // Vista
    DatiDelViaggio,
    Giornate,
    Mappa,
    // Aiuto
    Manuale,
    Tasti,
    Informazioni
};
/// How many commands there are.
inline constexpr std::size_t kComandi = static_cast<std::size_t>(Comando::Informazioni) + 1;

/// Moments in which commands can be used, as bits: several hold at once.
using Momenti = std::uint32_t;
namespace momento {
inline constexpr Momenti kVuota = 1U << 0;           ///< the archive has no trip, none was begun
inline constexpr Momenti kNuova = 1U << 1;           ///< a new trip is filled in
inline constexpr Momenti kNuovaDopoAltra = 1U << 2;  ///< and a stored one was open before
inline constexpr Momenti kAperta = 1U << 3;          ///< a stored trip is open
inline constexpr Momenti kVecchiDati = 1U << 4;      ///< data of the earlier release is offered
inline constexpr Momenti kElencoMete = 1U << 5;
inline constexpr Momenti kInserimento = 1U << 6;
inline constexpr Momenti kDueTappe = 1U << 7;     ///< stages are entered, and there are two at least
inline constexpr Momenti kSenzaTappe = 1U << 8;   ///< stages are entered, and there is none behind the departure
inline constexpr Momenti kElencoTappe = 1U << 9;  ///< the places to go to are listed over the entry
inline constexpr Momenti kCronovia = 1U << 10;
inline constexpr Momenti kStampa = 1U << 11;  ///< the schedule is to be printed: what or on what is chosen
inline constexpr Momenti kGuida = 1U << 12;   ///< its list is in use
inline constexpr Momenti kCopia = 1U << 13;
inline constexpr Momenti kScambio = 1U << 14;
inline constexpr Momenti kAnnullabile = 1U << 15;  ///< there is a step to be taken back; to be made again
inline constexpr Momenti kRipetibile = 1U << 16;
inline constexpr Momenti kCorsa = 1U << 17;              ///< a run that can be stopped is on; nothing else holds then
inline constexpr Momenti kLibera = 1U << 18;             ///< nothing goes on, whatever the screen
inline constexpr Momenti kSceltaStampa = 1U << 19;       ///< what to print of the schedule is chosen
inline constexpr Momenti kPagine = 1U << 20;             ///< and there are pages to look at
inline constexpr Momenti kSceltaStampaGuida = 1U << 21;  ///< what to print of the guide is chosen
inline constexpr Momenti kStampante = 1U << 22;          ///< a printer is chosen, for whatever printout
inline constexpr Momenti kVoce = 1U << 23;               ///< the current row of the guide has an entry
inline constexpr Momenti kTratto = 1U << 24;             ///< the stages to copy from are listed
inline constexpr Momenti kTrattoScelto = 1U << 25;       ///< and both ends are assigned
inline constexpr Momenti kPrimaPiena = 1U << 26;         ///< a list of the exchange screen has trips
inline constexpr Momenti kSecondaPiena = 1U << 27;
inline constexpr Momenti kElencoGuida = 1U << 29;  ///< the localities of the guide are listed over it
inline constexpr Momenti kMeteScelte = 1U << 28;   ///< the one whose trips the run takes
}  // namespace momento

/// What goes on at this moment.
enum class Attivita {
    Nessuna,    ///< any command may begin
    Scrittura,  ///< the archive is written to: nothing else can begin
    Corsa,      ///< a run that can be stopped
};

/// What the document and the moment contribute.
struct Fatti {
    int tappe = 0;            ///< stages of the itinerary
    bool metaAperta = false;  ///< a stored trip is open, or was before the one that is filled in
    Attivita attivita = Attivita::Nessuna;
    std::optional<QString> annulla = {};  ///< names of the steps that undo and redo are about; none: there is nothing
    std::optional<QString> ripeti = {};
};

/// The commands at one moment.
struct StatoComandi {
    std::bitset<kComandi> abilitati;     ///< by `Comando`
    std::map<Comando, QString> scritte;  ///< captions that are not those of the table

    [[nodiscard]] bool Abilitato(Comando comando) const { return abilitati[static_cast<std::size_t>(comando)]; }
};

/// Depends on nothing but these two: a command is enabled in its moments, while nothing else goes on.
StatoComandi StatoDeiComandi(const Fatti& fatti, const Schermata& schermata);

}  // namespace cronovia
