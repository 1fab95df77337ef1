// SPDX-License-Identifier: GPL-3.0-or-later
// The columns of the main grid: the one place where stages and schedule rows become texts, and where columns have
// their headings.
#pragma once

#include <QString>
#include <array>
#include <vector>

#include "itinerary/riepilogo.h"
#include "itinerary/tappa.h"
#include "schedule/riga_cronovia.h"

namespace cronovia {

/// A column, in the order in which they stand.
enum class Colonna {
    Numero,        ///< of the row, from 1
    Tappa,         ///< locality; in the schedule "verso: X" on the way there, "a: X" at a stop, " > text" of the guide,
                   ///< "attesa 01:10", "ritardo 00:25" or "margine 00:30" of an hour that others set
    NumeroStrada,  ///< road numbers, as typed
    Km,            ///< of the stage or piece, "1.234"; "~130" for a guess, empty for 0, "da indicare" where not known
    TipoStrada,    ///< letter of the road's type
    KmProgressivi,    ///< from the start, "12.345"
    Tempo,            ///< driving time, "hh:mm", hours beyond 24 too
    Sosta,            ///< "gg:hh:mm" in visiting days, a leading "*" when the day ends; "hh:mm" of a guide entry
    Guida,            ///< of the itinerary alone: visit times of the guide, "gg:hh:mm"
    GiornoSettimana,  ///< "Lun"; this and what follows, but for the notes, is of the schedule alone
    Data,             ///< "gg/mm/aaaa", when the row ends
    Ora,              ///< "hh:mm", empty at midnight; a leading "* " when whole rest days follow
    Note,             ///< meals, night, rests; the kind of a stop; the type of a guide entry; which hour others set;
                      ///< in the itinerary what is set for the stage
    LimiteRitorno,    ///< ">gg/mm-hh:mm" to drive on, "<gg/mm-hh:mm" to turn back
};
inline constexpr std::size_t kColonne = 14;

/// The texts of one row, by `Colonna`.
class RigaGriglia : public std::array<QString, kColonne> {
  public:
    using std::array<QString, kColonne>::operator[];
    QString& operator[](Colonna colonna) { return (*this)[static_cast<std::size_t>(colonna)]; }
    const QString& operator[](Colonna colonna) const { return (*this)[static_cast<std::size_t>(colonna)]; }
};

/// Where columns have headings: the grid with the itinerary or the schedule, the table file, paper.
enum class Vista { Itinerario, Cronovia, FileTabella, Carta };

/// The headings, by `Colonna`; empty where the view has none.
RigaGriglia Intestazioni(Vista vista);

/// The texts of a stage of the itinerary, `numero` counted from 1.
RigaGriglia TestiDellaTappa(int numero, const Tappa& tappa, const TempiTappa& tempi);

/// The texts of a row of the schedule, by its position from 0, which must be one of its rows.
RigaGriglia TestiDellaRiga(const Cronovia& cronovia, std::size_t posizione);

/// The same for people, on screen and paper: "~" before kilometres that are a guess. Other programs get them as
/// numbers.
RigaGriglia TestiMostrati(const Cronovia& cronovia, std::size_t posizione);

/// A return limit in its three parts, of which `Colonna::LimiteRitorno` is made.
struct TestiLimite {
    QChar segno;     ///< '>' to drive on, '<' to turn back
    QString giorno;  ///< "gg/mm"
    QString ora;     ///< "hh:mm"
};
TestiLimite Testi(const LimiteRitorno& limite);

/// The texts of all rows of the schedule.
std::vector<RigaGriglia> TestiDellaCronovia(const Cronovia& cronovia);

}  // namespace cronovia
