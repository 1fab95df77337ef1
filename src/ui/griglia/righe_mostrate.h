// SPDX-License-Identifier: GPL-3.0-or-later
// Which rows of the grid stand for which rows of the schedule.
#pragma once

#include <optional>
#include <vector>

#include "schedule/giornate.h"

namespace cronovia {

/// A line for each day, and below it the rows of that day unless it is closed. Rows of the grid, rows of the schedule
/// and days all count from 0.
class RigheMostrate {
  public:
    RigheMostrate() = default;
    /// All rows of the schedule, each of which belongs to one of the days. Days whose place was closed in `prima` are.
    explicit RigheMostrate(const std::vector<Giornata>& giornate, const RigheMostrate& prima);

    /// How many rows the grid has.
    [[nodiscard]] int Numero() const { return numero_; }
    [[nodiscard]] int Giornate() const { return static_cast<int>(giorni_.size()); }
    /// The day whose line that row of the grid is; nothing for the others.
    [[nodiscard]] std::optional<int> Linea(int griglia) const;
    /// The row of the schedule that stands there; nothing on the line of a day.
    [[nodiscard]] std::optional<int> Riga(int griglia) const;
    /// The day that a row of the grid belongs to, its line too.
    [[nodiscard]] int GiornataDi(int griglia) const;

    /// Where the line of a day stands.
    [[nodiscard]] int DoveLinea(int giornata) const { return Di(giornata).linea; }
    /// Where a row of the schedule stands: at the line of its day while that is closed.
    [[nodiscard]] int DoveRiga(int riga) const;

    /// How many rows of the schedule a day has.
    [[nodiscard]] int RigheDi(int giornata) const { return Di(giornata).righe; }
    [[nodiscard]] bool Chiusa(int giornata) const { return Di(giornata).chiusa; }
    void Chiudi(int giornata, bool chiusa);

  private:
    struct Giorno {
        int linea = 0;
        int prima = 0;  // row of the schedule
        int righe = 0;
        bool chiusa = false;
    };
    [[nodiscard]] const Giorno& Di(int giornata) const { return giorni_[static_cast<std::size_t>(giornata)]; }
    void Numera();

    std::vector<Giorno> giorni_;
    int numero_ = 0;
};

}  // namespace cronovia
