// SPDX-License-Identifier: GPL-3.0-or-later
// What a person tells of prices for a whole trip.
#pragma once

#include <QString>
#include <array>
#include <optional>
#include <span>

namespace cronovia {

/// Whole numbers of small parts, so that sums of money are exact. What is not told costs nothing.
struct PrezziViaggio {
    std::optional<int> kmLitro;     ///< hundredths of a kilometre that a litre lasts: from 50 to 9999
    std::optional<int> carburante;  ///< of a litre, in thousandths of a euro
    std::optional<int> pedaggio;    ///< of a kilometre of motorway, in thousandths of a euro
    std::optional<int> notte;       ///< of a night, in hundredths of a euro

    friend bool operator==(const PrezziViaggio&, const PrezziViaggio&) = default;
};
inline constexpr std::size_t kPrezziViaggio = 4;  ///< how many they are

/// As they are stored and typed, in the order of the members: "9,5", "1,859"; empty for what is not told.
std::array<QString, kPrezziViaggio> TestiDeiPrezzi(const PrezziViaggio& prezzi);

/// Those of such texts, and the first of them, from 0, that is no price, or out of its limits; all such are left out,
/// and counted.
struct PrezziLetti {
    PrezziViaggio prezzi;
    std::optional<std::size_t> rifiutato = {};
    int rifiutati = 0;
};
PrezziLetti LeggiPrezzi(std::span<const QString> testi);

/// Why the text of that member is refused.
QString MessaggioPrezzo(std::size_t quale, const QString& testo);

}  // namespace cronovia
