// SPDX-License-Identifier: GPL-3.0-or-later
// The screens of the window as values: each has what exists only while it is open.
#pragma once

#include <memory>
#include <optional>
#include <variant>
#include <vector>

#include "app/tavolo_copia.h"
#include "app/tavolo_guida.h"
#include "app/tavolo_scambio.h"
#include "itinerary/modifiche.h"
#include "trips/mete.h"

namespace cronovia::schermata {

/// The trip's fields and its itinerary.
struct Viaggio {
    /// Which trip is in front.
    enum class Fase {
        Vuota,   ///< the archive has no trip, none was begun
        Nuova,   ///< a new trip is filled in
        Aperta,  ///< a stored trip is open
    };
    Fase fase = Fase::Vuota;
    bool converteOfferto = false;  ///< data of the earlier release lies in the folder, and no command was given yet
};

/// The trips to choose from, over the trip screen.
struct ElencoMete {
    std::vector<MetaInElenco> mete;
    Viaggio da;  ///< where it leads back to
};

/// Entry of the stages.
struct Inserimento {
    CampiTappa campi;             ///< what the entry fields hold
    CampiTappa proposti = campi;  ///< what the row proposed for them
    int riga = 0;                 ///< that row
    int ancora = 0;               ///< row at the other end of the rows selected; 0: only the current one is
    bool appenaInserita = false;  ///< the row before the current one was inserted by the last command
    bool elencoTappe = false;     ///< the list of places to go to is open
    CampiTappa letti = proposti;  ///< the proposal as the fields show it, which cannot show all
};

/// A schedule in the place of the itinerary.
struct Cronovia {
    std::variant<Viaggio, Inserimento> da;  ///< where it was computed, and where unlocking leads back to
    int giornata = 0;                       ///< the day of the current row, from 0
};

/// How far a printout has come.
enum class PassoStampa {
    Scelte,     ///< what is to be printed
    Stampante,  ///< on what
    InCorso,    ///< it is printed
};

/// Printing the schedule.
struct Stampa {
    Cronovia da;  ///< where it leads back to
    PassoStampa passo = PassoStampa::Scelte;
    bool pagine = true;  ///< more is to be printed than the forms of the logbook
};

/// The guide list of the trip.
struct Guida {
    std::unique_ptr<TavoloGuida> tavolo;     ///< never null; its address does not change while the screen is open
    std::optional<PassoStampa> stampa = {};  ///< of its printout, while that is chosen
    bool elencoLocalita = false;             ///< the list of localities to go to is open
};

/// A stretch of another trip is chosen, beside the entry of stages.
struct Copia {
    TavoloCopia tavolo;
    Inserimento da;         ///< where it leads back to
    bool conSoste = false;  ///< stops come along
};

/// Export or import of trips.
struct Scambio {
    TavoloScambio tavolo;
};

}  // namespace cronovia::schermata

namespace cronovia {

/// The screen in front. Just one is.
using Schermata = std::variant<schermata::Viaggio, schermata::ElencoMete, schermata::Inserimento, schermata::Cronovia,
                               schermata::Stampa, schermata::Guida, schermata::Copia, schermata::Scambio>;

}  // namespace cronovia
