// SPDX-License-Identifier: GPL-3.0-or-later
#include "itinerary/suggerimenti.h"

#include <cmath>

namespace cronovia {

using namespace Qt::StringLiterals;

namespace {

bool OltreIlGiorno(const CampiTappa& campi, const ParametriViaggio& parametri, Centesimi guidaGiorno) {
    const int media = parametri.mediaKm[Indice(campi.tipo.value_or(TipoStrada::Locale))];
    return media > 0 && guidaGiorno > 0_cent && TempoDiGuida(campi.km, media) > guidaGiorno;
}

}  // namespace

std::vector<Suggerimento> SuggerimentiTappa(const CampiTappa& campi, int riga, const ParametriViaggio& parametri,
                                            Centesimi guidaGiorno) {
    std::vector<Suggerimento> suggerimenti;
    if (riga <= 1 || campi.localita.isEmpty()) return suggerimenti;
    const bool traghetto = campi.numStrada.contains("TRAGH"_L1);
    const bool sosta = !campi.sosta.Nulla();
    if (traghetto && campi.km == 0 && !sosta) suggerimenti.push_back(Suggerimento::TraghettoSenzaTempo);
    if (campi.fineGiorno && !sosta && !traghetto) suggerimenti.push_back(Suggerimento::FineGiornoSenzaSosta);
    if (OltreIlGiorno(campi, parametri, guidaGiorno)) suggerimenti.push_back(Suggerimento::TrattaOltreIlGiorno);
    return suggerimenti;
}

QString SuggerimentoProgressivi(int digitati, int kmDellaTappa) {
    if (digitati == kmDellaTappa) return {};
    return u"Con «Km. progress.» la tappa è di %1 km: da %2 a %3."_s.arg(kmDellaTappa)
        .arg(digitati - kmDellaTappa)
        .arg(digitati);
}

// Names lie at the middle of their towns: a few kilometres make no hint.
QString SuggerimentoDistanza(const CampiTappa& campi, double direttaKm) {
    constexpr double kTolleranzaKm = 5;
    constexpr double kMassimoRapporto = 3;
    constexpr int kMinimoKmLunga = 30;
    if (campi.km <= 0 || campi.numStrada.contains("TRAGH"_L1)) return {};
    const auto diretta = QString::number(std::lround(direttaKm));
    if (campi.km + kTolleranzaKm < direttaKm) {
        return u"La distanza è più corta della linea d'aria, circa %1 km."_s.arg(diretta);
    }
    if (campi.km > kMinimoKmLunga && campi.km > kMassimoRapporto * (direttaKm + kTolleranzaKm)) {
        return u"La distanza è più di tre volte la linea d'aria, circa %1 km."_s.arg(diretta);
    }
    return {};
}

QString Testo(Suggerimento suggerimento) {
    switch (suggerimento) {
        case Suggerimento::TraghettoSenzaTempo:
            return u"Un traghetto senza chilometri e senza sosta non richiede tempo."_s;
        case Suggerimento::FineGiornoSenzaSosta:
            return u"«Fine giornata» non ha effetto senza una sosta o un traghetto."_s;
        case Suggerimento::TrattaOltreIlGiorno:
            return u"La tratta è più lunga di una giornata di guida."_s;
    }
    return {};
}

}  // namespace cronovia
