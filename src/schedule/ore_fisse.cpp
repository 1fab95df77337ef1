// SPDX-License-Identifier: GPL-3.0-or-later
#include "schedule/ore_fisse.h"

#include "schedule/orologio_indietro.h"
#include "schedule/rientro.h"

namespace cronovia {

namespace {

// Who comes longer after a departure has come for the next one.
constexpr Centesimi kPersoDaPoco = 1200_cent;

Istante MomentoDi(const RigaCronovia& riga) { return {riga.data, riga.ora}; }

// Upwards from the rows before `riga`, at whose end one should be at `limite`: the stage of the topmost row that ends
// too late. A ferry with its own hours makes a beginning: nothing before it could have been made up for.
int InRitardoDa(const Cronovia& cronovia, int riga, Istante limite) {
    OrologioIndietro orologio(limite, cronovia.orario);
    int tappa = 0;
    for (int i = riga - 1; i >= 0; --i) {
        const RigaCronovia& sopra = cronovia.righe[static_cast<std::size_t>(i)];
        if (!ConMomento(sopra.genere)) continue;
        if (MomentoDi(sopra) <= orologio.Momento()) return tappa;
        tappa = sopra.tappa;
        if (sopra.genere == GenereRiga::Traghetto) return tappa;
        orologio.Guida(TempoMostrato(sopra));
        orologio.PastiENotti();
    }
    return 0;
}

// The last moment at which one would have been in time.
Istante LimiteDi(const EsitoOra& ora, const Tappa& tappa) {
    if (ora.genere != GenereOra::Partenza) return ora.ora;
    const Istante partenza = ora.ora + (ora.perso ? 0_cent - kGiornoOrologio : 0_cent);
    return partenza + (0_cent - tappa.vincoli->traghetto->Imbarco());
}

}  // namespace

Imbarco ImbarcoPer(const TraghettoAOrario& traghetto, Istante alMolo) {
    const Istante pronto = alMolo + traghetto.Imbarco();
    const bool conData = traghetto.Partenza().Data().has_value();
    Imbarco imbarco{traghetto.Partenza().Il(pronto.data), {}, false, {}};
    if (imbarco.partenza < pronto) {
        imbarco.ritardo = pronto - imbarco.partenza;
        if (conData) {
            imbarco.partenza = pronto;
            return imbarco;
        }
        imbarco.partenza.data += 1;
    } else if (!conData) {
        imbarco.ritardo = pronto - imbarco.partenza + kGiornoOrologio;
    }
    const Istante prima{imbarco.partenza.data - 1, imbarco.partenza.ora};
    imbarco.perso = !conData && prima.data >= (alMolo + 0_cent).data && imbarco.ritardo < kPersoDaPoco;
    if (!imbarco.perso) {
        imbarco.ritardo = 0_cent;
        imbarco.margine = imbarco.partenza - pronto;
    }
    return imbarco;
}

void ConfrontaScadenza(const std::optional<Istante>& entro, Cronovia& cronovia) {
    if (!entro) return;
    if (const auto ultimo = UltimoMomento(cronovia.righe)) {
        cronovia.scadenza = EsitoScadenza{*entro, *entro - *ultimo, 0};
    }
}

void SegnaRitardi(Cronovia& cronovia) {
    for (EsitoOra& ora : cronovia.ore) {
        if (ora.ritardo <= 0_cent) continue;
        const Tappa& tappa = cronovia.tabella.righe[static_cast<std::size_t>(ora.tappa)].tappa;
        ora.daTappa = InRitardoDa(cronovia, ora.riga, LimiteDi(ora, tappa));
    }
    if (cronovia.scadenza && cronovia.scadenza->margine < 0_cent) {
        const auto righe = static_cast<int>(cronovia.righe.size());
        cronovia.scadenza->daTappa = InRitardoDa(cronovia, righe, cronovia.scadenza->entro);
    }
}

}  // namespace cronovia
