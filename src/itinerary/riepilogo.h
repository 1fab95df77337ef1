// SPDX-License-Identifier: GPL-3.0-or-later
// Progressive distances, leg times and totals of an itinerary.
#pragma once

#include <QString>
#include <array>
#include <cstdint>
#include <optional>
#include <span>
#include <vector>

#include "itinerary/tappa.h"
#include "trips/orario.h"

namespace cronovia {

/// Totals by road type, in kilometres and hours; the last element is all types together.
struct Totali {
    std::array<std::int64_t, kTipiStrada + 1> km{};
    std::array<Centesimi, kTipiStrada + 1> tempo{};  ///< driving alone
    int traghetti = 0;                               ///< legs by ferry, with kilometres or without

    /// Adds a driven piece to its type and to all types.
    void Aggiunge(TipoStrada tipo, int kmTratta, Centesimi tempoTratta);
};
/// The place of all types together.
inline constexpr std::size_t kTuttiITipi = kTipiStrada;

/// The totals as their boxes show them; kilometres and times are empty where there are none. Times are "gg:hh:mm" with
/// days of driving, as many digits of them as it takes.
struct TestiTotali {
    std::array<QString, kTipiStrada + 1> km;
    std::array<QString, kTipiStrada + 1> tempo;
    QString traghetti;
};
/// `guidaGiorno` is the driving time of one day.
TestiTotali Testi(const Totali& totali, Centesimi guidaGiorno);

/// What one leg adds up to.
struct TempiTappa {
    std::int64_t kmProgressivi = 0;  ///< from the start to the end of the leg
    std::optional<Centesimi> tempo;  ///< nothing without kilometres or without a speed for its road

    friend bool operator==(const TempiTappa&, const TempiTappa&) = default;
};

/// What an itinerary adds up to.
struct RiepilogoItinerario {
    std::vector<TempiTappa> tappe;  ///< as many as the stages
    Totali totali;
    Centesimi guidaGiorno;      ///< day length of the driving totals
    int giorniMinimi = 0;       ///< days that driving alone needs; 0 without kilometres
    int giorniAdeguamento = 0;  ///< the days wanted, raised to the least ones
};

/// Adds up all rows; a free row, or a ferry with its own hours, has a leg of 0 km. `giorniAdeguamento` are the days
/// wanted, 0 for as many as needed.
RiepilogoItinerario CalcolaKmTempiItinerario(std::span<const Tappa> tappe, const OrarioCorretto& orario,
                                             int giorniAdeguamento);

/// The trip lengths on offer: 0 for "as many as needed", then 31 from the least days on, from 30 to 100 in steps of 5,
/// from 110 to 200 in tens; only 0 without kilometres.
std::vector<int> GiorniProposti(const RiepilogoItinerario& riepilogo);

/// The first road type that a stage uses although its average speed is 0; nothing when all is well.
std::optional<TipoStrada> TipoSenzaMedia(std::span<const Tappa> tappe, const OrarioCorretto& orario);

}  // namespace cronovia
