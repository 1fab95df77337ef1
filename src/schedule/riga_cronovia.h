// SPDX-License-Identifier: GPL-3.0-or-later
// The computed schedule: a timed row for every driving piece, stop and guide entry.
#pragma once

#include <QString>
#include <array>
#include <cstdint>
#include <optional>
#include <span>
#include <vector>

#include "calendar/date.h"
#include "calendar/ora_fissa.h"
#include "itinerary/riepilogo.h"
#include "schedule/tabella_calcolo.h"
#include "trips/orario.h"

namespace cronovia {

/// What a row tells of.
enum class GenereRiga : std::uint8_t {
    Tappa,      ///< a stage without driving or stop: only its name
    Marcia,     ///< a driving piece
    Sosta,      ///< a stop, a visit or a ferry without hours of its own
    Guida,      ///< an entry of the city guide
    Attesa,     ///< an hour that others set: the wait for it, the time left until it, or how late one is
    Traghetto,  ///< the sailing of a ferry with its own hours
};

/// Whether rows of this kind have a day and an hour.
constexpr bool ConMomento(GenereRiga genere) { return genere != GenereRiga::Tappa && genere != GenereRiga::Guida; }

/// What happens at the end of a driving piece, in the order in which it happens.
struct Eventi {
    bool pranzo : 1 = false;
    bool cena : 1 = false;
    bool notte : 1 = false;         ///< driving goes on the next morning
    bool riposo : 1 = false;        ///< one short rest or several
    bool notteTardiva : 1 = false;  ///< the night begins only after all this, because it ended past the night hour
};

/// Why a row stops; none: it does not.
enum class Motivo : std::uint8_t { Nessuno, Visita, VisitaFineGiorno, TraghettoVisita };

/// The latest moment of being here and still reaching the end in time.
struct LimiteRitorno {
    bool prosecuzione = true;  ///< driving on; else turning back
    NumeroGiorno data;
    Centesimi ora;
};

/// A row of the schedule. What does not belong to its kind is empty or 0.
struct RigaCronovia {
    GenereRiga genere = GenereRiga::Marcia;
    bool verso = false;         ///< the leg goes on after this piece
    bool riposoDopo = false;    ///< whole rest days follow, spent here; never on a guide entry
    bool fineGiorno = false;    ///< the stop lasts until the day's end
    bool cambiaGiorno = false;  ///< a night or a change of day falls in it, or right behind it
    Eventi eventi;
    Motivo motivo = Motivo::Nessuno;
    int tappa = 0;  ///< position of the stage in the calculation table; a wait at the quay is at the stage before
    int voce = 0;   ///< position of the entry in the stage's guide entries, or of the hour in the schedule's
    int km = 0;     ///< of this piece
    std::int64_t kmProgressivi = 0;  ///< from the start to the end of this piece
    Centesimi tempo;                 ///< driving time of this piece
    NumeroGiorno data;               ///< day on which the piece, or the stop, ends
    Centesimi ora;                   ///< and its hour, which may lie beyond 24
    Durata sosta;                    ///< the stop before this pass scaled it
    std::optional<LimiteRitorno> limite;
};

/// The last moment of rows; nothing when none has one.
std::optional<Istante> UltimoMomento(std::span<const RigaCronovia> righe);
/// Whether that is not after an hour; without the one or the other nothing is late.
bool InTempo(std::span<const RigaCronovia> righe, const std::optional<Istante>& entro);

/// What time is spent on.
enum class GenereFascia : std::uint8_t { Marcia, Visita, Traghetto, Pranzo, Cena, Riposo, Attesa };

/// A time of one day spent on one thing. What lies between two of them is the night, a day of rest, or a wait for the
/// visiting hours. Ferries with their own hours end with the day and go on with the next.
struct Fascia {
    GenereFascia genere = GenereFascia::Marcia;
    int riga = 0;       ///< position of the schedule's row that it belongs to
    NumeroGiorno data;  ///< the day on which it begins
    Centesimi da;       ///< hours of that day; an end beyond 24 hours lies in the next
    Centesimi a;
};

/// Why something happens later than a traveller would expect.
enum class GenereRinvio : std::uint8_t {
    ArrivoTardivo,     ///< reached after the end of the visiting hours: the stop begins the next day
    TraghettoPerso,    ///< the same of a ferry; of one with its own hours: reached when it had left
    SostaSuPiuGiorni,  ///< the stop does not fit into the visiting hours of one day
    NotteTardiva,      ///< a meal or rests ran past the night hour: the night begins behind them
    GiorniDiRiposo,    ///< whole rest days were due before driving on
    OraMancata,        ///< reached after an hour that others set
    ImbarcoInRitardo,  ///< the same of a ferry of one day, which is taken to wait
};

/// One thing that happens later.
struct Rinvio {
    GenereRinvio genere = GenereRinvio::ArrivoTardivo;
    NumeroGiorno data;  ///< the day on which it turns out; of rest days the first
    int tappa = 0;      ///< position of the stage in the calculation table: where the stop is, or the driving goes
    Centesimi ritardo;  ///< how far past the visiting hours, the night hour or the hour set; 0 for the other kinds
    int giorni = 0;     ///< days that the stop is spread over, or of rest; 0 for the other kinds
};

/// Which hour it is that others set.
enum class GenereOra : std::uint8_t {
    Partenza,  ///< a ferry leaves
    NonPrima,  ///< one must not arrive before it
    NonDopo,   ///< nor after it
};

/// How the journey meets an hour that others set.
struct EsitoOra {
    GenereOra genere = GenereOra::Partenza;
    int tappa = 0;                     ///< position in the calculation table of the stage that it is set for
    int riga = 0;                      ///< position of its row
    Istante ora;                       ///< the hour itself; of a ferry that was missed, the one of the next
    Centesimi attesa;                  ///< from the arrival, or the meal that it brought, to the hour; nights count
    Centesimi ritardo;                 ///< past the last moment at which one was in time; 0 when one was
    bool perso = false;                ///< a ferry left before, so long ago as `ritardo` tells; the next one is taken
    std::optional<Centesimi> margine;  ///< how much later one could arrive; nothing when it does not matter, or late
    int daTappa = 0;                   ///< since which stage it could not be met any more, by driving on alone
};

/// How the end of the journey stands to the hour at which one has to be home.
struct EsitoScadenza {
    Istante entro;
    Centesimi margine;  ///< from the last row to that hour; negative when one is late
    int daTappa = 0;    ///< since which stage, when one is late
};

/// End of the trip as of the last driving piece or landing.
struct FineViaggio {
    NumeroGiorno data;  ///< the day on which the journey would go on
    Centesimi ora;      ///< end of the last piece
    int giorni = 0;     ///< from the start date, which is day 1
};

/// The schedule of a trip, with all that its texts need.
struct Cronovia {
    TabellaCalcolo tabella;
    std::vector<RigaCronovia> righe;
    std::vector<Fascia> fasce;              ///< in the order of time
    std::vector<Rinvio> rinvii;             ///< in the order of time
    std::vector<EsitoOra> ore;              ///< the hours that others set, in the order of their rows
    std::optional<FineViaggio> fine;        ///< nothing without any driving
    std::optional<EsitoScadenza> scadenza;  ///< nothing when none is set, or nothing has an hour
    Totali totali;
    OrarioCorretto orario;  ///< as the last pass took it
    PrezziViaggio prezzi;   ///< of the trip
};

/// Whether a row tells of an hour that others set and that is missed.
bool InRitardo(const Cronovia& cronovia, const RigaCronovia& riga);

/// The trip's end as its boxes show it; empty texts without any driving.
struct TestiFine {
    QString giorno;  ///< "05"
    QString mese;    ///< "07"
    QString anno;    ///< "2027"
    QString ore;     ///< "18"; it and the minutes are empty at midnight
    QString minuti;
    QString giornoSettimana;  ///< "Lun"
    QString giorni;           ///< of the whole trip, "10"

    /// In the order of the members.
    [[nodiscard]] std::array<QString, 7> Elenco() const;
};
TestiFine Testi(const std::optional<FineViaggio>& fine);

}  // namespace cronovia
