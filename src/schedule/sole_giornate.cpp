// SPDX-License-Identifier: GPL-3.0-or-later
#include "schedule/sole_giornate.h"

#include "calendar/ora_fissa.h"
#include "calendar/testo.h"
#include "places/sole.h"
#include "schedule/testi_giornata.h"

namespace cronovia {

using namespace Qt::StringLiterals;

namespace {

QString OraSulQuadrante(int minuti) {
    const int nelGiorno = (minuti % kMinutiDelGiorno + kMinutiDelGiorno) % kMinutiDelGiorno;
    return QString::number(nelGiorno / 60) + u':' + Zero(nelGiorno % 60, 2);
}

// The stage that is reached last on a day; nothing on a day that ends on the way, or without rows.
std::optional<int> TappaDellaSera(const Giornata& giornata, const Cronovia& cronovia) {
    if (giornata.inViaggio || giornata.notteInTraghetto || giornata.righe.empty()) return std::nullopt;
    return cronovia.righe[static_cast<std::size_t>(giornata.righe.back())].tappa;
}

bool ArrivaDopo(const Giornata& giornata, int minuto) {
    return giornata.arrivo && giornata.arrivo->Valore() * 60 > static_cast<float>(minuto) * 100;
}

}  // namespace

std::vector<Tappa> TappeCalcolate(const Cronovia& cronovia) {
    std::vector<Tappa> tappe;
    for (const auto& riga : cronovia.tabella.righe) tappe.push_back(riga.tappa);
    return tappe;
}

// A day begins where the one before it ended.
std::vector<SoleGiornata> SoleDelleGiornate(const std::vector<Giornata>& giornate, const Cronovia& cronovia,
                                            std::span<const PosizioneTappa> posizioni) {
    std::vector<SoleGiornata> soli;
    const auto dove = [&](std::optional<int> tappa) -> std::optional<Posizione> {
        if (!tappa || *tappa < 0 || static_cast<std::size_t>(*tappa) >= posizioni.size()) return std::nullopt;
        const PosizioneTappa& posizione = posizioni[static_cast<std::size_t>(*tappa)];
        return posizione.Certa() ? posizione.posizione : std::nullopt;
    };
    std::optional<int> tappa = 0;
    for (const Giornata& giornata : giornate) {
        const int daUtc = MinutiDaUtcInItalia(giornata.data);
        SoleGiornata sole;
        if (const auto mattina = dove(tappa)) sole.alba = SoleDi(giornata.data, *mattina, daUtc).alba;
        const bool fermo = giornata.righe.empty() && !giornata.inViaggio && !giornata.notteInTraghetto;
        if (!fermo) tappa = TappaDellaSera(giornata, cronovia);
        if (const auto sera = dove(tappa)) sole.tramonto = SoleDi(giornata.data, *sera, daUtc).tramonto;
        if (sole.tramonto && ArrivaDopo(giornata, *sole.tramonto)) sole.arrivoAlBuio = giornata.notte;
        soli.push_back(sole);
    }
    return soli;
}

QStringList TestiRinvii(const Giornata& giornata, const Cronovia& cronovia, const SoleGiornata& sole) {
    QStringList testi = TestiRinvii(giornata, cronovia);
    if (!sole.arrivoAlBuio.isEmpty()) {
        testi += u"arrivo %1 dopo il tramonto (%2)"_s.arg(ALuogo(sole.arrivoAlBuio), OraSulQuadrante(*sole.tramonto));
    }
    return testi;
}

}  // namespace cronovia
