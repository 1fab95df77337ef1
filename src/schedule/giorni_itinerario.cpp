// SPDX-License-Identifier: GPL-3.0-or-later
#include "schedule/giorni_itinerario.h"

#include <algorithm>

namespace cronovia {

namespace {

constexpr int kMaiRaggiunta = -1;

int TappaDella(const Cronovia& cronovia, const Fascia& fascia) {
    return cronovia.righe[static_cast<std::size_t>(fascia.riga)].tappa;
}

}  // namespace

GiorniItinerario::GiorniItinerario(const Cronovia& cronovia, const std::vector<Giornata>& giornate,
                                   std::span<const Tappa> righe) {
    if (giornate.empty()) return;
    for (std::size_t i = 0; i < righe.size(); ++i) {
        if (!righe[i].localita.isEmpty()) rigaDi_.push_back(static_cast<int>(i) + 1);
    }
    Arrivi(cronovia, giornate.front().data);
    Cambi(cronovia, giornate.front().data);
}

// The driving or sailing to a stage ends on that day; one that takes no time is reached with the one before.
void GiorniItinerario::Arrivi(const Cronovia& cronovia, NumeroGiorno partenza) {
    arrivo_.assign(rigaDi_.size(), kMaiRaggiunta);
    for (const Fascia& fascia : cronovia.fasce) {
        int& arrivo = arrivo_[static_cast<std::size_t>(TappaDella(cronovia, fascia))];
        const RigaCronovia& riga = cronovia.righe[static_cast<std::size_t>(fascia.riga)];
        if (fascia.genere == GenereFascia::Marcia || riga.genere == GenereRiga::Traghetto) {
            arrivo = fascia.data - partenza + (fascia.a > kGiornoOrologio ? 1 : 0);
        } else if (arrivo == kMaiRaggiunta) {
            arrivo = fascia.data - partenza;
        }
    }
    int giorno = 0;
    for (int& arrivo : arrivo_) giorno = arrivo = std::max(giorno, arrivo);
}

void GiorniItinerario::Cambi(const Cronovia& cronovia, NumeroGiorno partenza) {
    int giorno = 0;
    int tappaPrima = 0;
    for (const Fascia& fascia : cronovia.fasce) {
        const int tappa = TappaDella(cronovia, fascia);
        const int nuovo = fascia.data - partenza;
        if (nuovo > giorno) {
            const int riga = Riga(tappa);
            if (cambi_.empty() || cambi_.back().riga != riga) {
                cambi_.push_back({riga, giorno + 2, nuovo + 1, tappa == tappaPrima});
            }
            cambi_.back().a = nuovo + 1;
            giorno = nuovo;
        }
        tappaPrima = tappa;
    }
}

std::optional<std::pair<int, int>> GiorniItinerario::Righe(int giornata) const {
    if (arrivo_.empty()) return std::nullopt;
    const auto [da, a] = std::equal_range(arrivo_.begin() + 1, arrivo_.end(), giornata);
    if (da == a) return std::nullopt;
    return std::pair(Riga(static_cast<int>(da - arrivo_.begin())), Riga(static_cast<int>(a - arrivo_.begin()) - 1));
}

std::optional<int> GiorniItinerario::RigaFinale(int giornata) const {
    const auto dopo = std::upper_bound(arrivo_.begin(), arrivo_.end(), giornata);
    if (dopo == arrivo_.begin() || *(dopo - 1) != giornata) return std::nullopt;
    return Riga(static_cast<int>(dopo - arrivo_.begin()) - 1);
}

std::optional<int> GiorniItinerario::GiornataDi(int riga) const {
    const auto dopo = std::upper_bound(rigaDi_.begin(), rigaDi_.end(), riga);
    if (dopo == rigaDi_.begin()) return std::nullopt;
    return arrivo_[static_cast<std::size_t>(dopo - rigaDi_.begin()) - 1];
}

}  // namespace cronovia
