// SPDX-License-Identifier: GPL-3.0-or-later
// What a trip would come to with other stops or other days.
#pragma once

#include <QString>
#include <QStringList>
#include <optional>
#include <span>
#include <vector>

#include "schedule/calcola_cronovia.h"

namespace cronovia {

/// A trip with one stop policy, fitted to the days wanted.
struct Alternativa {
    CalcoloSoste soste = CalcoloSoste::SostaMaggiore;
    int voluti = 0;               ///< days wanted, 0 for as many as needed
    int giorni = 0;               ///< that it takes
    std::optional<Istante> fine;  ///< of the schedule; nothing without any moment
    Centesimi guidaMassima;       ///< the longest driving of a day
    std::optional<int> visite;    ///< time of visits, in per cent of the longer stops; nothing without any
    /// The longest, past hours that others set and past coming home; nothing without any such hour.
    std::optional<Centesimi> ritardo;
    bool attuale = false;  ///< as the trip is set now

    /// It takes the days wanted.
    [[nodiscard]] bool Riuscita() const { return voluti == 0 || voluti == giorni; }
};

/// Each stop policy with as many days as it needs, then the trip's own policy with each number of days from the least
/// to one and a half times those that it needs, with the timetable of `orario`. Nothing when the person stopped it. A
/// `Failure` where the trip cannot be computed.
std::optional<std::vector<Alternativa>> Alternative(const Meta& meta, const OrarioCorretto& orario,
                                                    std::span<const Tappa> tappe, LettoreGuida& guida,
                                                    Progress& progress);

/// "Sosta maggiore".
QString NomeCalcoloSoste(CalcoloSoste soste);

/// The columns in which they are shown, and an alternative in them.
QStringList IntestazioniAlternative();
QStringList TestiAlternativa(const Alternativa& alternativa);

}  // namespace cronovia
