// SPDX-License-Identifier: GPL-3.0-or-later
#include "cli/simile.h"

#include <algorithm>
#include <cstddef>
#include <vector>

namespace cronovia {

namespace {

constexpr qsizetype kLettereDiUnInizio = 3;
constexpr qsizetype kLettereDiUnoSbaglio = 3;
constexpr qsizetype kMassimaParola = 40;

// Letters to be changed, added, taken away or swapped with the next one until `a` is `b`.
qsizetype Sbagli(const QString& a, const QString& b) {
    const auto larghezza = static_cast<std::size_t>(b.size()) + 1;
    std::vector<qsizetype> prima(larghezza);
    std::vector<qsizetype> ancoraPrima(larghezza);
    std::vector<qsizetype> riga(larghezza);
    for (std::size_t j = 0; j < larghezza; ++j) prima[j] = static_cast<qsizetype>(j);
    for (qsizetype i = 1; i <= a.size(); ++i) {
        riga[0] = i;
        for (std::size_t j = 1; j < larghezza; ++j) {
            const auto k = static_cast<qsizetype>(j);
            const bool uguali = a[i - 1] == b[k - 1];
            riga[j] = std::min({prima[j] + 1, riga[j - 1] + 1, prima[j - 1] + (uguali ? 0 : 1)});
            const bool scambiate = i > 1 && k > 1 && a[i - 1] == b[k - 2] && a[i - 2] == b[k - 1];
            if (scambiate) riga[j] = std::min(riga[j], ancoraPrima[j - 2] + 1);
        }
        ancoraPrima.swap(prima);
        prima.swap(riga);
    }
    return prima.back();
}

}  // namespace

std::optional<QString> PiuSimile(const QString& parola, const QStringList& note) {
    if (parola.size() > kMassimaParola) return std::nullopt;
    const QString minuscola = parola.toLower();
    std::optional<QString> simile;
    qsizetype minimo = std::max<qsizetype>(minuscola.size(), kLettereDiUnoSbaglio) / kLettereDiUnoSbaglio + 1;
    for (const QString& nota : note) {
        const bool inizio = minuscola.size() >= kLettereDiUnInizio && nota.toLower().startsWith(minuscola);
        const qsizetype sbagli = inizio ? 0 : Sbagli(minuscola, nota.toLower());
        if (sbagli >= minimo) continue;
        minimo = sbagli;
        simile = nota;
    }
    return simile;
}

}  // namespace cronovia
