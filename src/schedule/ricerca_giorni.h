// SPDX-License-Identifier: GPL-3.0-or-later
// When a trip cannot be fitted to the days wanted: which days come nearest, with how much of its stops, and why.
#pragma once

#include <QString>
#include <optional>
#include <vector>

#include "interaction/progress.h"
#include "schedule/riga_cronovia.h"
#include "trips/meta.h"

namespace cronovia {

/// What the stops of all stages are scaled to, in per cent.
inline constexpr int kMassimoPercento = 999;

/// Stops that give a trip so many days, to be typed into its itinerary.
struct PropostaGiorni {
    int percento = 100;         ///< of what the stop policy retains
    int giorni = 0;             ///< of the trip when just these stops count
    std::vector<Durata> soste;  ///< as many as the table's rows; days are visiting days, 99 at most
};

/// The days that can be had.
struct RicercaGiorni {
    std::optional<PropostaGiorni> esatta;  ///< the days wanted, with the stops changed as little as possible
    std::optional<PropostaGiorni> sotto;   ///< else the most days below them; nothing when there are none
    std::optional<PropostaGiorni> sopra;   ///< and the least above, with one per cent more
    bool finoAllaScadenza = false;         ///< `sotto` are all that one can have and be home in time
    QString testo;                         ///< both in the words of people, and what cannot shrink
};

/// Looks for the days that `meta` wants, with whole per cents of the stops from 0 to `kMassimoPercento`. Where one has
/// to be home by an hour, stops with which one would be late count as too long. Nothing when the person stopped it.
std::optional<RicercaGiorni> CercaGiorni(const Meta& meta, const TabellaCalcolo& tabella, const OrarioCorretto& orario,
                                         Progress& progress);

}  // namespace cronovia
