// SPDX-License-Identifier: GPL-3.0-or-later
#include "itinerary/posizioni.h"

#include <algorithm>
#include <cmath>

#include "places/nomi.h"

namespace cronovia {

namespace {

// A ferry's kilometres tell nothing: often they are 0 or those of the ride to the quay.
std::vector<Passaggio> InPassaggi(std::span<const Tappa> tappe) {
    std::vector<Passaggio> passaggi;
    passaggi.reserve(tappe.size());
    for (const Tappa& tappa : tappe) {
        const bool noti = !tappa.kmDaIndicare && !tappa.Traghetto();
        passaggi.push_back({tappa.localita, noti ? std::optional(tappa.km) : std::nullopt, FattoreStrada(tappa.tipo)});
    }
    return passaggi;
}

}  // namespace

double FattoreStrada(std::optional<TipoStrada> tipo) {
    if (!tipo) return 1.3;
    switch (*tipo) {
        case TipoStrada::Autostrada:
            return 1.22;
        case TipoStrada::SuperStrada:
            return 1.19;
        case TipoStrada::Principale:
            return 1.34;
        case TipoStrada::Locale:
            break;
    }
    return 1.42;
}

int KmStimati(double distanzaKm, std::optional<TipoStrada> tipo) {
    const double km = distanzaKm * FattoreStrada(tipo);
    const int passo = km >= 100 ? 10 : km >= 20 ? 5 : 1;
    return std::max(1, static_cast<int>(std::lround(km / passo)) * passo);
}

QStringList LocalitaSenzaPosizione(std::span<const Tappa> tappe, std::span<const PosizioneTappa> posizioni) {
    QStringList nomi;
    for (std::size_t i = 0; i < tappe.size(); ++i) {
        if (!posizioni[i].posizione && !tappe[i].localita.isEmpty()) nomi += tappe[i].localita;
    }
    nomi.removeDuplicates();
    return nomi;
}

std::vector<PosizioneTappa> PosizioniDelViaggio(const PosizioniConfermate& confermate, Gazzettino& gazzettino,
                                                std::span<const Tappa> tappe, const QString& nazione) {
    return ScegliLuoghi(InPassaggi(tappe), confermate, gazzettino, CodiciNazioni(nazione));
}

}  // namespace cronovia
