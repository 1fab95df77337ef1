// SPDX-License-Identifier: GPL-3.0-or-later
#include "schedule/riga_cronovia.h"

#include <algorithm>

#include "calendar/durata.h"
#include "calendar/testo.h"

namespace cronovia {

std::array<QString, 7> TestiFine::Elenco() const { return {giorno, mese, anno, ore, minuti, giornoSettimana, giorni}; }

std::optional<Istante> UltimoMomento(std::span<const RigaCronovia> righe) {
    const auto ultima =
        std::find_if(righe.rbegin(), righe.rend(), [](const RigaCronovia& riga) { return ConMomento(riga.genere); });
    return ultima == righe.rend() ? std::nullopt : std::optional(Istante{ultima->data, ultima->ora});
}

bool InTempo(std::span<const RigaCronovia> righe, const std::optional<Istante>& entro) {
    const auto ultimo = UltimoMomento(righe);
    return !entro || !ultimo || *ultimo <= *entro;
}

bool InRitardo(const Cronovia& cronovia, const RigaCronovia& riga) {
    return riga.genere == GenereRiga::Attesa && cronovia.ore[static_cast<std::size_t>(riga.voce)].ritardo > 0_cent;
}

TestiFine Testi(const std::optional<FineViaggio>& fine) {
    if (!fine) return {};
    const Gma gma = GmaDelGiorno(fine->data);
    const QString ora = TestoOrologio(fine->ora);
    return {Zero(gma.giorno, 2),
            Zero(gma.mese, 2),
            Zero(gma.anno, 4),
            ora.left(2),
            ora.right(2),
            GiornoSettimana(fine->data),
            QString::number(fine->giorni)};
}

}  // namespace cronovia
