// SPDX-License-Identifier: GPL-3.0-or-later
#include "itinerary/tratti.h"

#include <algorithm>
#include <cstdlib>

namespace cronovia {

namespace {

bool Libera(const Tappa& tappa) { return tappa.localita.trimmed().isEmpty(); }

// A place, reached by the road of `tratto`; nothing is known of that road without it.
Tappa Raggiunta(const Tappa& luogo, const Tappa* tratto) {
    Tappa tappa;
    tappa.localita = luogo.localita;
    if (tratto == nullptr) return tappa;
    tappa.numStrada = tratto->numStrada;
    tappa.km = tratto->km;
    tappa.kmDaIndicare = tratto->kmDaIndicare;
    tappa.kmStimati = tratto->kmStimati;
    tappa.tipo = tratto->tipo;
    return tappa;
}

// They hold on other days too; the ferry of the way back has other hours.
VincoliTappa VincoliCopiati(const Tappa& tappa, bool stessoVerso) {
    if (!tappa.vincoli) return {};
    Vincoli vincoli = SenzaDate(tappa.vincoli).Valore();
    if (!stessoVerso) vincoli.traghetto.reset();
    return vincoli;
}

}  // namespace

ItinerarioConTratto Ritorno(std::span<const Tappa> righe) {
    ItinerarioConTratto esito;
    std::copy_if(righe.begin(), righe.end(), std::back_inserter(esito.righe),
                 [](const Tappa& t) { return !Libera(t); });
    const std::size_t tappe = esito.righe.size();
    esito.rigaCorrente = std::max(1, static_cast<int>(tappe));
    esito.trovata = false;
    if (tappe == 0) return esito;
    const QString ultima = esito.righe.back().localita.trimmed();
    for (std::size_t nota = tappe - 1; nota > 0; --nota) {
        if (esito.righe[nota - 1].localita.trimmed() != ultima) continue;
        esito.rigaCorrente = static_cast<int>(nota);
        esito.trovata = true;
        for (std::size_t i = nota - 1; i > 0; --i) {
            esito.righe.push_back(Raggiunta(esito.righe[i - 1], &esito.righe[i]));
        }
        break;
    }
    return esito;
}

Tratto TrattoEvidenziato(std::optional<int> inizio, std::optional<int> fine, int corrente) {
    const auto [primo, ultimo] = std::minmax({inizio.value_or(corrente), fine.value_or(corrente), corrente});
    return {primo, ultimo};
}

ItinerarioConTratto CopiaTratto(RigheItinerario righe, int riga, std::span<const Tappa> sorgente, Tratto tratto,
                                bool conSoste) {
    const int passo = tratto.da <= tratto.a ? 1 : -1;
    RigheItinerario nuove;
    for (int i = tratto.da; i != tratto.a + passo; i += passo) {
        const auto indice = static_cast<std::size_t>(i - 1);
        const std::size_t strada = passo > 0 ? indice : indice + 1;
        Tappa tappa = Raggiunta(sorgente[indice], strada < sorgente.size() ? &sorgente[strada] : nullptr);
        if (conSoste) {
            tappa.sosta = sorgente[indice].sosta;
            tappa.fineGiorno = sorgente[indice].fineGiorno;
            tappa.vincoli = VincoliCopiati(sorgente[indice], passo > 0);
        }
        nuove.push_back(std::move(tappa));
    }
    auto dove = static_cast<std::size_t>(riga - 1);
    if (dove < righe.size() && !Libera(righe[dove])) ++dove;
    dove = std::min(dove, righe.size());
    righe.insert(righe.begin() + static_cast<std::ptrdiff_t>(dove), nuove.begin(), nuove.end());
    return {std::move(righe), static_cast<int>(dove) + 1};
}

}  // namespace cronovia
