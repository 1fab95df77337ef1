// SPDX-License-Identifier: GPL-3.0-or-later
#include "schedule/mappa_viaggio.h"

#include <algorithm>
#include <cmath>

namespace cronovia {

namespace {

constexpr double kMinimoLato = 30;  // kilometres

// Which of the four sides of a part of the plane a point lies beyond, as bits.
unsigned Fuori(const PuntoMappa& punto, const RiquadroMappa& visto) {
    return (punto.x < visto.min.x ? 1U : 0U) | (punto.x > visto.max.x ? 2U : 0U) | (punto.y < visto.min.y ? 4U : 0U) |
           (punto.y > visto.max.y ? 8U : 0U);
}

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

RiquadroMappa RiquadroDi(std::span<const PuntoMappa> punti) {
    RiquadroMappa riquadro{punti.front(), punti.front()};
    for (const PuntoMappa& punto : punti) {
        riquadro.min = {std::min(riquadro.min.x, punto.x), std::min(riquadro.min.y, punto.y)};
        riquadro.max = {std::max(riquadro.max.x, punto.x), std::max(riquadro.max.y, punto.y)};
    }
    return riquadro;
}

std::vector<PuntoMappa> Sfrondata(std::span<const PuntoMappa> linea, const RiquadroMappa& visto, double passo) {
    std::vector<PuntoMappa> tenuti;
    unsigned penultimo = 0;
    unsigned ultimo = 0;
    for (const PuntoMappa& punto : linea) {
        const unsigned fuori = Fuori(punto, visto);
        const bool vicino = !tenuti.empty() && std::hypot(punto.x - tenuti.back().x, punto.y - tenuti.back().y) < passo;
        if (vicino && ultimo == fuori) continue;
        if (tenuti.size() > 1 && (penultimo & ultimo & fuori) != 0) {
            tenuti.back() = punto;
        } else {
            tenuti.push_back(punto);
            penultimo = ultimo;
        }
        ultimo = fuori;
    }
    return tenuti;
}

const LuogoSullaMappa* MappaViaggio::Luogo(int riga) const {
    const auto luogo = std::lower_bound(luoghi.begin(), luoghi.end(), riga,
                                        [](const LuogoSullaMappa& l, int r) { return l.riga < r; });
    return luogo != luoghi.end() && luogo->riga == riga ? &*luogo : nullptr;
}

std::optional<RiquadroMappa> MappaViaggio::Riquadro() const {
    if (luoghi.empty()) return {};
    std::vector<PuntoMappa> punti;
    punti.reserve(luoghi.size());
    for (const LuogoSullaMappa& luogo : luoghi) punti.push_back(luogo.dove);
    const RiquadroMappa stretto = RiquadroDi(punti);
    const PuntoMappa centro = stretto.Centro();
    const double x = std::max(stretto.Larghezza(), kMinimoLato) / 2;
    const double y = std::max(stretto.Altezza(), kMinimoLato) / 2;
    return RiquadroMappa{{centro.x - x, centro.y - y}, {centro.x + x, centro.y + y}};
}

std::optional<RiquadroMappa> MappaViaggio::Riquadro(int giornata) const { return DelGiorno(giornata).Riquadro(); }

MappaViaggio MappaViaggio::DelGiorno(int giornata) const {
    MappaViaggio giorno;
    for (std::size_t i = 0; i < luoghi.size(); ++i) {
        const bool parte = i < tratte.size() && tratte[i].giornata == giornata;
        const bool arriva = i > 0 && tratte[i - 1].giornata == giornata;
        if (parte || arriva || luoghi[i].giornata == giornata) giorno.luoghi.push_back(luoghi[i]);
        if (parte) giorno.tratte.push_back(tratte[i]);
    }
    return giorno;
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
