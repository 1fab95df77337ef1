// SPDX-License-Identifier: GPL-3.0-or-later
#include "itinerary/tappa.h"

#include <cmath>

namespace cronovia {

using namespace Qt::StringLiterals;

std::optional<TipoStrada> LeggiTipoStrada(QStringView lettera) {
    const qsizetype indice = lettera.size() == 1 ? QStringView(u"ASPL").indexOf(lettera.front()) : -1;
    if (indice < 0) return std::nullopt;
    return static_cast<TipoStrada>(indice);
}

QString LetteraTipoStrada(std::optional<TipoStrada> tipo) { return tipo ? NomeTipoStrada(*tipo).left(1) : QString(); }

QString LetteraStrada(const Tappa& tappa) {
    return tappa.km == 0 ? LetteraTipoStrada(tappa.tipo) : LetteraTipoStrada(tappa.TipoEffettivo());
}

std::vector<QString> LocalitaDelleTappe(std::span<const Tappa> tappe) {
    std::vector<QString> localita;
    localita.reserve(tappe.size());
    for (const Tappa& tappa : tappe) {
        if (!tappa.localita.isEmpty()) localita.push_back(tappa.localita);
    }
    return localita;
}

QString TestoSosta(const Durata& sosta, bool fineGiorno) { return (fineGiorno ? u"*"_s : QString()) + Testo(sosta); }

Centesimi TempoDiGuida(int km, int mediaKm) {
    return Centesimi(std::floor(static_cast<double>(km) / mediaKm * 100.0 + 0.5));
}

}  // namespace cronovia
