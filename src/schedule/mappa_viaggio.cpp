// SPDX-License-Identifier: GPL-3.0-or-later
#include "schedule/mappa_viaggio.h"

#include <algorithm>

namespace cronovia {

namespace {

constexpr double kMinimoLato = 30;  // kilometres

class Estensione {
  public:
    void Aggiungi(const PuntoMappa& punto) {
        if (!riquadro_) riquadro_ = {punto, punto};
        riquadro_->min = {std::min(riquadro_->min.x, punto.x), std::min(riquadro_->min.y, punto.y)};
        riquadro_->max = {std::max(riquadro_->max.x, punto.x), std::max(riquadro_->max.y, punto.y)};
    }

    [[nodiscard]] std::optional<RiquadroMappa> Riquadro() const {
        if (!riquadro_) return {};
        const PuntoMappa centro = riquadro_->Centro();
        const double x = std::max(riquadro_->Larghezza(), kMinimoLato) / 2;
        const double y = std::max(riquadro_->Altezza(), kMinimoLato) / 2;
        return RiquadroMappa{{centro.x - x, centro.y - y}, {centro.x + x, centro.y + y}};
    }

  private:
    std::optional<RiquadroMappa> riquadro_;
};

void SegnaNotti(const std::vector<Giornata>& giornate, const GiorniItinerario& giorni, MappaViaggio& mappa) {
    for (const Giornata& giornata : giornate) {
        if (giornata.ultima || giornata.inViaggio || giornata.notteInTraghetto) continue;
        const auto riga = giorni.RigaFinale(giornata.numero - 1);
        if (!riga) continue;
        const auto luogo = std::lower_bound(mappa.luoghi.begin(), mappa.luoghi.end(), *riga,
                                            [](const LuogoSullaMappa& l, int r) { return l.riga < r; });
        if (luogo != mappa.luoghi.end() && luogo->riga == *riga) luogo->notte = true;
    }
}

}  // namespace

bool RiquadroMappa::Contiene(const PuntoMappa& punto) const {
    return punto.x >= min.x && punto.x <= max.x && punto.y >= min.y && punto.y <= max.y;
}

bool RiquadroMappa::Tocca(const RiquadroMappa& altro) const {
    return altro.min.x <= max.x && altro.max.x >= min.x && altro.min.y <= max.y && altro.max.y >= min.y;
}

const LuogoSullaMappa* MappaViaggio::Luogo(int riga) const {
    const auto luogo = std::lower_bound(luoghi.begin(), luoghi.end(), riga,
                                        [](const LuogoSullaMappa& l, int r) { return l.riga < r; });
    return luogo != luoghi.end() && luogo->riga == riga ? &*luogo : nullptr;
}

std::optional<RiquadroMappa> MappaViaggio::Riquadro() const {
    Estensione estensione;
    for (const LuogoSullaMappa& luogo : luoghi) estensione.Aggiungi(luogo.dove);
    return estensione.Riquadro();
}

std::optional<RiquadroMappa> MappaViaggio::Riquadro(int giornata) const {
    Estensione estensione;
    for (const TrattaSullaMappa& tratta : tratte) {
        if (tratta.giornata != giornata) continue;
        estensione.Aggiungi(tratta.da);
        estensione.Aggiungi(tratta.a);
    }
    for (const LuogoSullaMappa& luogo : luoghi) {
        if (luogo.giornata == giornata) estensione.Aggiungi(luogo.dove);
    }
    return estensione.Riquadro();
}

MappaViaggio ComponiMappa(std::span<const Tappa> righe, std::span<const PosizioneTappa> posizioni,
                          const std::vector<Giornata>& giornate, const GiorniItinerario& giorni) {
    MappaViaggio mappa;
    for (std::size_t i = 0; i < righe.size(); ++i) {
        if (righe[i].localita.isEmpty() || !posizioni[i].posizione) continue;
        const int riga = static_cast<int>(i) + 1;
        const int giornata = giornate.empty() ? kSenzaGiornata : giorni.GiornataDi(riga).value_or(kSenzaGiornata);
        const PuntoMappa dove = Proietta(*posizioni[i].posizione);
        if (!mappa.luoghi.empty()) {
            mappa.tratte.push_back({riga, giornata, righe[i].Traghetto(), mappa.luoghi.back().dove, dove});
        }
        mappa.luoghi.push_back(
            {riga, righe[i].localita, dove, posizioni[i].fonte, !righe[i].SenzaSosta(), false, giornata});
    }
    SegnaNotti(giornate, giorni, mappa);
    return mappa;
}

}  // namespace cronovia
