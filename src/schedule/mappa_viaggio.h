// SPDX-License-Identifier: GPL-3.0-or-later
// A journey on the map: what every face of it draws.
#pragma once

#include <QString>
#include <span>
#include <vector>

#include "places/proiezione.h"
#include "places/scelta_luoghi.h"
#include "schedule/giorni_itinerario.h"

namespace cronovia {

/// What belongs to no day, since there is no schedule.
inline constexpr int kSenzaGiornata = -1;

/// A place of the journey.
struct LuogoSullaMappa {
    int riga = 0;  ///< of the itinerary, from 1
    QString nome;
    PuntoMappa dove;
    FontePosizione fonte = FontePosizione::Sconosciuta;
    bool sosta = false;             ///< one stops here
    bool notte = false;             ///< a night is spent here
    int giornata = kSenzaGiornata;  ///< on which it is reached, from 0

    /// Its position is known, not guessed from its neighbours.
    [[nodiscard]] bool Certo() const { return fonte != FontePosizione::Interpolata; }
};

/// The straight way from one place to the next.
struct TrattaSullaMappa {
    int riga = 0;                   ///< of the place that it leads to
    int giornata = kSenzaGiornata;  ///< on which it is driven, from 0
    bool traghetto = false;
    PuntoMappa da;
    PuntoMappa a;
};

/// A part of the plane, in kilometres; its corners belong to it, and so does what touches them.
struct RiquadroMappa {
    PuntoMappa min;
    PuntoMappa max;

    [[nodiscard]] double Larghezza() const { return max.x - min.x; }
    [[nodiscard]] double Altezza() const { return max.y - min.y; }
    [[nodiscard]] PuntoMappa Centro() const { return {(min.x + max.x) / 2, (min.y + max.y) / 2}; }
    /// Whether they have a point in common.
    [[nodiscard]] bool Contiene(const PuntoMappa& punto) const;
    [[nodiscard]] bool Tocca(const RiquadroMappa& altro) const;
};

/// The smallest part with all of these points, which must not be none.
RiquadroMappa RiquadroDi(std::span<const PuntoMappa> punti);

/// A line without what does not matter for a part of the plane: of points that follow each other beyond one of its
/// sides, the first and the last one are kept; of those nearer than `passo` to the one before, the first.
std::vector<PuntoMappa> Sfrondata(std::span<const PuntoMappa> linea, const RiquadroMappa& visto, double passo);

/// A journey on the plane.
struct MappaViaggio {
    std::vector<LuogoSullaMappa> luoghi;   ///< in the order of the rows; those without a position are left out
    std::vector<TrattaSullaMappa> tratte;  ///< between places that follow each other here

    [[nodiscard]] bool Vuota() const { return luoghi.empty(); }
    /// Where a row of the itinerary lies; null when that is not known.
    [[nodiscard]] const LuogoSullaMappa* Luogo(int riga) const;
    /// The part of the plane with all places, or with those of a day and the way to them; at least 30 kilometres
    /// wide and high. Nothing without any.
    [[nodiscard]] std::optional<RiquadroMappa> Riquadro() const;
    [[nodiscard]] std::optional<RiquadroMappa> Riquadro(int giornata) const;
    /// What is driven on a day: its legs, the places where they begin and end, and those reached on it.
    [[nodiscard]] MappaViaggio DelGiorno(int giornata) const;
};

/// The map of an itinerary: its rows, as many positions, and its days when there is a schedule of just these rows.
MappaViaggio ComponiMappa(std::span<const Tappa> righe, std::span<const PosizioneTappa> posizioni,
                          const std::vector<Giornata>& giornate, const GiorniItinerario& giorni);

}  // namespace cronovia
