// SPDX-License-Identifier: GPL-3.0-or-later
#include "itinerary/spostamenti.h"

#include <algorithm>
#include <utility>
#include <vector>

namespace cronovia {

namespace {

// A row, and the place from which its kilometres count; nothing: from whatever place is before it.
struct RigaConOrigine {
    Tappa tappa;
    std::optional<QString> da;
};
using RigheConOrigine = std::vector<RigaConOrigine>;

bool SenzaLuogo(const Tappa& tappa) { return tappa.localita.trimmed().isEmpty(); }

bool StessoLuogo(const QString& a, const QString& b) {
    return a.trimmed().compare(b.trimmed(), Qt::CaseInsensitive) == 0;
}

RigheConOrigine ConOrigine(const RigheItinerario& righe) {
    RigheConOrigine esito;
    esito.reserve(righe.size());
    QString luogo;
    for (const Tappa& tappa : righe) {
        esito.push_back({tappa, luogo});
        if (!SenzaLuogo(tappa)) luogo = tappa.localita;
    }
    return esito;
}

// The departure has no leg.
void DiventaPartenza(Tappa& tappa) {
    tappa.numStrada.clear();
    tappa.km = 0;
    tappa.kmDaIndicare = false;
    tappa.kmStimati = false;
    tappa.tipo.reset();
}

// From another place than its own: whether kilometres were lost by it.
bool CambiaOrigine(Tappa& tappa, const QString& luogo) {
    if (luogo.isEmpty()) {
        DiventaPartenza(tappa);
        return false;
    }
    tappa.km = 0;
    tappa.kmStimati = false;
    return !std::exchange(tappa.kmDaIndicare, true);
}

EsitoSpostamento Concluso(RigheConOrigine righe, Tratto tratto) {
    EsitoSpostamento esito;
    esito.tratto = tratto;
    QString luogo;
    for (RigaConOrigine& riga : righe) {
        if (!SenzaLuogo(riga.tappa)) {
            const bool rotta = riga.da && !StessoLuogo(*riga.da, luogo);
            if (rotta && CambiaOrigine(riga.tappa, luogo)) ++esito.daIndicare;
            luogo = riga.tappa.localita;
        }
        esito.righe.push_back(std::move(riga.tappa));
    }
    return esito;
}

// The rows of a stretch as positions from 0, the second one behind the last.
std::pair<std::ptrdiff_t, std::ptrdiff_t> Posizioni(const RigheConOrigine& righe, Tratto tratto) {
    const auto numero = static_cast<std::ptrdiff_t>(righe.size());
    const std::ptrdiff_t da = std::clamp<std::ptrdiff_t>(tratto.da - 1, 0, numero);
    return {da, std::clamp<std::ptrdiff_t>(tratto.a, da, numero)};
}

}  // namespace

EsitoSpostamento SpostaRighe(const RigheItinerario& righe, Tratto tratto, int dove) {
    RigheConOrigine nuove = ConOrigine(righe);
    const auto [da, a] = Posizioni(nuove, tratto);
    const auto meta = std::clamp<std::ptrdiff_t>(dove - 1, 0, static_cast<std::ptrdiff_t>(nuove.size()));
    const auto inizio = nuove.begin();
    auto prima = static_cast<int>(da) + 1;
    if (meta < da) {
        std::rotate(inizio + meta, inizio + da, inizio + a);
        prima = static_cast<int>(meta) + 1;
    } else if (meta > a) {
        std::rotate(inizio + da, inizio + a, inizio + meta);
        prima = static_cast<int>(meta - (a - da)) + 1;
    }
    return Concluso(std::move(nuove), {prima, prima + static_cast<int>(a - da) - 1});
}

EsitoSpostamento DuplicaRighe(const RigheItinerario& righe, Tratto tratto) {
    RigheConOrigine nuove = ConOrigine(righe);
    const auto [da, a] = Posizioni(nuove, tratto);
    const RigheConOrigine copie(nuove.begin() + da, nuove.begin() + a);
    nuove.insert(nuove.begin() + a, copie.begin(), copie.end());
    return Concluso(std::move(nuove), {static_cast<int>(a) + 1, static_cast<int>(a + a - da)});
}

EsitoSpostamento TogliRighe(const RigheItinerario& righe, Tratto tratto) {
    RigheConOrigine nuove = ConOrigine(righe);
    const auto [da, a] = Posizioni(nuove, tratto);
    nuove.erase(nuove.begin() + da, nuove.begin() + a);
    return Concluso(std::move(nuove), {static_cast<int>(da) + 1, static_cast<int>(da) + 1});
}

EsitoSpostamento InserisciRighe(const RigheItinerario& righe, int dove, const RigheItinerario& nuove,
                                const std::optional<QString>& prima) {
    RigheConOrigine esito = ConOrigine(righe);
    RigheConOrigine inserite = ConOrigine(nuove);
    if (!inserite.empty()) inserite.front().da = prima;
    const auto posto = std::clamp<std::ptrdiff_t>(dove - 1, 0, static_cast<std::ptrdiff_t>(esito.size()));
    esito.insert(esito.begin() + posto, inserite.begin(), inserite.end());
    const int prima1 = static_cast<int>(posto) + 1;
    return Concluso(std::move(esito), {prima1, prima1 + static_cast<int>(inserite.size()) - 1});
}

QString LuogoPrecedente(const RigheItinerario& righe, int riga) {
    const RigheConOrigine tutte = ConOrigine(righe);
    const auto posto = static_cast<std::size_t>(riga - 1);
    return posto < tutte.size() ? *tutte[posto].da : QString();
}

std::optional<RigheItinerario> DividiTappa(RigheItinerario righe, int riga, const QString& localita, int km) {
    const auto posto = static_cast<std::size_t>(riga - 1);
    if (riga < 2 || posto >= righe.size() || km <= 0 || km >= righe[posto].km) return std::nullopt;
    Tappa nuova;
    nuova.localita = localita;
    nuova.numStrada = righe[posto].numStrada;
    nuova.tipo = righe[posto].tipo;
    nuova.km = km;
    righe[posto].km -= km;
    righe.insert(righe.begin() + (riga - 1), nuova);
    return righe;
}

}  // namespace cronovia
