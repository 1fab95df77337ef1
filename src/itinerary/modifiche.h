// SPDX-License-Identifier: GPL-3.0-or-later
// The verbs that change an itinerary on screen. Rows are counted from 1; a row without locality is free.
#pragma once

#include <QString>
#include <span>
#include <vector>

#include "interaction/interaction.h"
#include "itinerary/riepilogo.h"
#include "itinerary/tappa.h"

namespace cronovia {

/// An itinerary with its free rows, as the grid shows it.
using RigheItinerario = std::vector<Tappa>;
/// How many an archive can hold: their sequence has four digits.
inline constexpr int kMassimoTappe = 9999;

/// Number of the last row that holds a stage; 0 for an empty itinerary.
int NumeroTappe(std::span<const Tappa> righe);

/// The first row whose kilometres are to be told; nothing when all are known.
std::optional<int> PrimaDaIndicare(std::span<const Tappa> righe);

/// What the entry fields hold.
struct CampiTappa {
    QString localita;
    QString numStrada;  ///< road numbers
    int km = 0;         ///< as typed: of the stage, or progressive ones (`KmDellaTappa`)
    std::optional<TipoStrada> tipo;
    Durata sosta;  ///< days are visiting days
    bool fineGiorno = false;
    bool kmProgressivi = false;  ///< typed since the row was shown, and meant as progressive ones where that can be
    bool kmLeggibili = true;     ///< false: what was typed is no whole number of kilometres
    bool kmDaIndicare = false;   ///< the row's kilometres are not known, and none are typed
    bool kmStimati = false;      ///< the kilometres are a guess that nobody has typed over

    friend bool operator==(const CampiTappa&, const CampiTappa&) = default;
};

/// The fields as a row shows them: one without road proposes that of the row above, but no ferry; one without type
/// counts as local, but for the first row.
CampiTappa CampiDellaRiga(std::span<const Tappa> righe, int riga);

/// Progressive kilometres of the row above; 0 where that row has no kilometres of its own.
std::int64_t KmPrecedenti(std::span<const Tappa> righe, const RiepilogoItinerario& riepilogo, int riga);

/// From row 3 on, kilometres beyond `precedenti` are progressive ones, when those exceed 100: the difference counts.
int KmDellaTappa(int km, std::int64_t precedenti, int riga);

/// Why the fields cannot become row `riga`, in the order in which the person reads it; empty when they can.
std::vector<Message> ControllaTappa(const CampiTappa& campi, int riga);

/// Writes a stage into a row, beyond the last row too, with free rows between; what is set for the row's stage stays.
/// Without kilometres, known or to be told, it has no road type.
RigheItinerario InserisceTappa(RigheItinerario righe, int riga, const CampiTappa& campi);

/// Sets what others set for the stage of a row; nothing changes for a free row.
RigheItinerario ImpostaVincoli(RigheItinerario righe, int riga, const VincoliTappa& vincoli);

/// Opens `numero` free rows before a row; beyond the last row at the end.
RigheItinerario InserisciRigheItinerario(RigheItinerario righe, int riga, int numero);

/// Takes a row away; nothing when there is none with that number.
RigheItinerario CancellaRiga(RigheItinerario righe, int riga);

/// Takes all stops away, with the ends of days.
RigheItinerario AzzeraSoste(RigheItinerario righe);

}  // namespace cronovia
