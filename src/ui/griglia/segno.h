// SPDX-License-Identifier: GPL-3.0-or-later
// The kinds of rows that the grid tells apart by a small sign.
#pragma once

namespace cronovia {

/// What makes a row different at a glance.
enum class Segno {
    Nessuno,
    FineGiorno,  ///< a night or a change of day falls in the row or right behind it
    Pasto,       ///< a meal is taken behind the piece
    Riposo,      ///< whole rest days follow
    Sosta,
    Guida,
    Fissato,         ///< hours, notes or prices are set for the stage
    GiornataAperta,  ///< the line of a day whose rows are shown
    GiornataChiusa,  ///< or are not
};

}  // namespace cronovia
