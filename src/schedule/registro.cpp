// SPDX-License-Identifier: GPL-3.0-or-later
#include "schedule/registro.h"

#include <algorithm>

namespace cronovia {

namespace {

GenereRinvio RinvioPerOra(const EsitoOra& esito) {
    if (esito.perso) return GenereRinvio::TraghettoPerso;
    return esito.genere == GenereOra::Partenza ? GenereRinvio::ImbarcoInRitardo : GenereRinvio::OraMancata;
}

}  // namespace

RigaCronovia& Registro::NuovaRiga(GenereRiga genere, int tappa) {
    RigaCronovia& riga = passata_.righe.emplace_back();
    riga.genere = genere;
    riga.tappa = tappa;
    return riga;
}

RigaCronovia& Registro::NuovaOra(EsitoOra esito, int tappa, Istante momento, NumeroGiorno oggi) {
    if (esito.ritardo > 0_cent) passata_.rinvii.push_back({RinvioPerOra(esito), oggi, esito.tappa, esito.ritardo, 0});
    esito.riga = UltimaPosizione() + 1;
    RigaCronovia& riga = NuovaRiga(GenereRiga::Attesa, tappa);
    riga.voce = static_cast<int>(passata_.ore.size());
    riga.data = momento.data;
    riga.ora = momento.ora;
    riga.cambiaGiorno = oggi > momento.data;
    passata_.ore.push_back(esito);
    return riga;
}

void Registro::ElencaGuida(int tappa, int voci) {
    for (int voce = 0; voce < voci; ++voce) NuovaRiga(GenereRiga::Guida, tappa).voce = voce;
}

RigaCronovia* Registro::Ultima(bool (*vale)(GenereRiga genere)) {
    const auto ultima = std::find_if(passata_.righe.rbegin(), passata_.righe.rend(),
                                     [&](const RigaCronovia& riga) { return vale(riga.genere); });
    return ultima == passata_.righe.rend() ? nullptr : &*ultima;
}

void Registro::Annota(GenereFascia genere, NumeroGiorno giorno, Centesimi inizio, Centesimi fine) {
    passata_.fasce.push_back({genere, UltimaPosizione(), giorno, inizio, fine});
}

void Registro::AnnotaFino(GenereFascia genere, Istante da, Istante a, Centesimi mattina, Centesimi sera) {
    for (NumeroGiorno giorno = da.data; giorno <= a.data; giorno += 1) {
        const Centesimi inizio = giorno == da.data ? da.ora : mattina;
        const Centesimi fine = giorno == a.data ? a.ora : std::max(sera, inizio);
        if (fine > inizio) Annota(genere, giorno, inizio, fine);
    }
}

void Registro::AnnotaSosta(const EsitoSosta& esito, int tappa, bool traghetto, NumeroGiorno oggi) {
    for (Fascia fascia : esito.fasce) {
        fascia.riga = UltimaPosizione() + 1;
        passata_.fasce.push_back(fascia);
    }
    if (esito.ritardo > 0_cent) {
        const auto genere = traghetto ? GenereRinvio::TraghettoPerso : GenereRinvio::ArrivoTardivo;
        passata_.rinvii.push_back({genere, oggi, tappa, esito.ritardo, 0});
    }
    if (esito.giorni > 1) {
        passata_.rinvii.push_back({GenereRinvio::SostaSuPiuGiorni, esito.fasce.front().data, tappa, {}, esito.giorni});
    }
}

}  // namespace cronovia
