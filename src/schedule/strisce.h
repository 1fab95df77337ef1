// SPDX-License-Identifier: GPL-3.0-or-later
// The picture of a day: its 24 hours as bars of what they are spent on, for screen and paper alike.
#pragma once

#include <QString>
#include <QStringView>
#include <cstdint>
#include <vector>

#include "schedule/giornate.h"

namespace cronovia {

/// What a bar stands for.
enum class GenerePezzo : std::uint8_t {
    Marcia,
    Visita,
    Traghetto,
    Pranzo,
    Cena,
    Riposo,
    Notte,
    GiornoDiRiposo,
    Attesa
};
inline constexpr int kGeneriPezzo = 9;  ///< how many kinds there are

/// A bar: from an hour of one day to another one, of 0 to 24.
struct PezzoDelGiorno {
    GenerePezzo genere = GenerePezzo::Marcia;
    Centesimi da;
    Centesimi a;
    int riga = kSenzaRiga;  ///< position of the schedule's row that it belongs to
    QString luogo;          ///< locality; "verso X" on the way, "in traghetto" of a night at sea

    static constexpr int kSenzaRiga = -1;  ///< nights and days of rest have none
};
/// The bars of a day.
using StrisciaDelGiorno = std::vector<PezzoDelGiorno>;

/// The bars of each day, in the order of time and side by side; what lies between two of them is free, or a wait for
/// the visiting hours. The nights are those between two days of the journey, from the night hour to breakfast.
std::vector<StrisciaDelGiorno> Strisce(const Cronovia& cronovia, const std::vector<Giornata>& giornate);

/// How a bar is filled, so that kinds differ without colours too.
enum class Trama : std::uint8_t { Piena, Diagonali, Controdiagonali, Incroci, Punti, Orizzontali, Verticali };

/// The look of a kind of bar.
struct AspettoPezzo {
    QStringView nome;  ///< "guida", for legends
    Trama trama = Trama::Piena;
    std::uint32_t fondo = 0;  ///< 0xRRGGBB
    std::uint32_t segno = 0;  ///< of the pattern's strokes, and of the outline
};
const AspettoPezzo& Aspetto(GenerePezzo genere);

}  // namespace cronovia
