// SPDX-License-Identifier: GPL-3.0-or-later
// What one pass over a trip writes down.
#pragma once

#include "schedule/riga_cronovia.h"
#include "schedule/simulazione.h"
#include "schedule/sosta.h"

namespace cronovia {

/// Writes the rows of a pass, what their times are spent on, and why something is late, in the order in which it
/// happens. The clock is the caller's, who completes the rows too: each is good until the next one. Stages are
/// positions in the calculation table.
class Registro {
  public:
    /// Writes into `passata`, which must outlive it.
    explicit Registro(Passata& passata) : passata_(passata) {}

    /// A row without a moment yet.
    RigaCronovia& NuovaRiga(GenereRiga genere, int tappa);
    /// The row of an hour that others set, which ends at `momento`, and the reason on `oggi` when one is late by it.
    RigaCronovia& NuovaOra(EsitoOra esito, int tappa, Istante momento, NumeroGiorno oggi);
    /// A row for each of so many entries of the guide.
    void ElencaGuida(int tappa, int voci);

    /// The last row of a kind for which `vale` holds; null when there is none.
    RigaCronovia* Ultima(bool (*vale)(GenereRiga genere));

    /// A time of a day, spent on the last row.
    void Annota(GenereFascia genere, NumeroGiorno giorno, Centesimi inizio, Centesimi fine);
    /// The time between two moments, spent on the last row: each day from an hour to another.
    void AnnotaFino(GenereFascia genere, Istante da, Istante a, Centesimi mattina, Centesimi sera);
    /// What a stop, or a ferry at whichever hour, that begins on `oggi` and whose row comes next spends its time on and
    /// puts off.
    void AnnotaSosta(const EsitoSosta& esito, int tappa, bool traghetto, NumeroGiorno oggi);

  private:
    [[nodiscard]] int UltimaPosizione() const { return static_cast<int>(passata_.righe.size()) - 1; }

    Passata& passata_;
};

}  // namespace cronovia
