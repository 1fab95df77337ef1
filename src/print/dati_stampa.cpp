// SPDX-License-Identifier: GPL-3.0-or-later
#include "print/dati_stampa.h"

#include <algorithm>
#include <utility>

#include "itinerary/posizioni.h"
#include "schedule/costi.h"
#include "schedule/testi_giornata.h"
#include "schedule/testi_ore.h"

namespace cronovia {

namespace {

// Whether its column of stops has a text.
bool ConSosta(const Cronovia& cronovia, const RigaCronovia& riga) {
    if (riga.genere != GenereRiga::Guida) return riga.fineGiorno || !riga.sosta.Nulla();
    const RigaCalcolo& tappa = cronovia.tabella.righe[static_cast<std::size_t>(riga.tappa)];
    return !(*tappa.voci)[static_cast<std::size_t>(riga.voce)].tempo.Nulla();
}

// Behind the last row stands that row itself.
std::vector<RigaStampata> Righe(const Cronovia& cronovia) {
    std::vector<RigaStampata> righe;
    righe.reserve(cronovia.righe.size());
    for (std::size_t i = 0; i < cronovia.righe.size(); ++i) {
        const RigaCronovia& riga = cronovia.righe[i];
        const RigaCronovia& dopo = cronovia.righe[std::min(i + 1, cronovia.righe.size() - 1)];
        const auto limite = riga.limite ? std::optional(Testi(*riga.limite)) : std::nullopt;
        righe.push_back({riga.genere, riga.eventi.riposo, riga.eventi.notte || riga.eventi.notteTardiva,
                         ConSosta(cronovia, dopo), limite, TestiMostrati(cronovia, i), riga.tappa, 0,
                         InRitardo(cronovia, riga)});
    }
    return righe;
}

std::vector<GiornoStampato> Giorni(const std::vector<Giornata>& giornate, const Cronovia& cronovia) {
    std::vector<StrisciaDelGiorno> strisce = Strisce(cronovia, giornate);
    std::vector<GiornoStampato> giorni;
    giorni.reserve(giornate.size());
    for (std::size_t i = 0; i < giornate.size(); ++i) {
        giorni.push_back({giornate[i], TestiRinvii(giornate[i], cronovia), std::move(strisce[i])});
    }
    return giorni;
}

}  // namespace

DatiStampa PreparaStampa(const Meta& meta, const Cronovia& cronovia) {
    const auto giornate = meta.dataInizio ? Giornate(cronovia, *meta.dataInizio) : std::vector<Giornata>();
    const std::optional<Costi> costi = CostiDelViaggio(giornate);
    DatiStampa dati{
        meta,
        cronovia.orario,
        Righe(cronovia),
        Giorni(giornate, cronovia),
        Testi(cronovia.fine),
        Testi(cronovia.totali, cronovia.orario.GuidaGiorno()),
        static_cast<int>(std::count_if(cronovia.righe.begin(), cronovia.righe.end(),
                                       [](const RigaCronovia& riga) { return riga.genere == GenereRiga::Traghetto; })),
        cronovia.scadenza ? Testo(*cronovia.scadenza, cronovia) : QString(),
        costi ? TestoCosti(*costi) : QString()};
    for (std::size_t i = 0; i < dati.giorni.size(); ++i) {
        for (const int riga : dati.giorni[i].giornata.righe) dati.righe[static_cast<std::size_t>(riga)].giorno = i;
    }
    return dati;
}

std::shared_ptr<const MappaStampata> PreparaMappa(const DatiStampa& dati, const Cronovia& cronovia,
                                                  std::span<const Tappa> righe,
                                                  std::span<const PosizioneTappa> posizioni, Coste coste) {
    std::vector<Giornata> giornate;
    giornate.reserve(dati.giorni.size());
    for (const GiornoStampato& giorno : dati.giorni) giornate.push_back(giorno.giornata);
    const GiorniItinerario giorni = giornate.empty() ? GiorniItinerario() : GiorniItinerario(cronovia, giornate, righe);
    return std::make_shared<const MappaStampata>(MappaStampata{
        ComponiMappa(righe, posizioni, giornate, giorni), std::move(coste), LocalitaSenzaPosizione(righe, posizioni)});
}

}  // namespace cronovia
