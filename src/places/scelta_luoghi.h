// SPDX-License-Identifier: GPL-3.0-or-later
// Which of the places of the same name a journey passes: decided for the whole journey at once, by its kilometres.
#pragma once

#include <QString>
#include <QStringList>
#include <optional>
#include <span>
#include <vector>

#include "places/confermate.h"
#include "places/gazzettino.h"
#include "places/posizione.h"

namespace cronovia {

/// A locality on the way, and how it is reached from the one before.
struct Passaggio {
    QString localita;
    std::optional<int> km;  ///< nothing: not known, or those of a ferry
    double fattore = 1.3;   ///< how much longer the road is than the straight way
};

/// Where a position comes from.
enum class FontePosizione {
    Sconosciuta,  ///< there is none
    Confermata,   ///< said by a person or a navigator's file
    Repertorio,   ///< a place that the program knows
    Interpolata,  ///< between its neighbours by kilometres
};

/// "confermata", "repertorio", "interpolata", "sconosciuta".
QString Testo(FontePosizione fonte);

/// Where a stage lies, and how one knows.
struct PosizioneTappa {
    std::optional<Posizione> posizione;  ///< nothing just when its source is `Sconosciuta`
    FontePosizione fonte = FontePosizione::Sconosciuta;
    QString nazione;  ///< of a place that the program knows, its code of two letters

    /// Whether it is more than a guess.
    [[nodiscard]] bool Certa() const {
        return fonte == FontePosizione::Confermata || fonte == FontePosizione::Repertorio;
    }
};

/// One for each passage. Confirmed positions stay; the names of the others are looked up, and the choice of places is
/// the one whose straight distances fit the kilometres best. A place that does not fit at all is none. What is left
/// lies between its neighbours by kilometres; before the first and behind the last known place nothing is guessed.
/// Places in the `nazioni` are a little more likely.
std::vector<PosizioneTappa> ScegliLuoghi(std::span<const Passaggio> passaggi, const PosizioniConfermate& confermate,
                                         Gazzettino& gazzettino, const QStringList& nazioni);

}  // namespace cronovia
