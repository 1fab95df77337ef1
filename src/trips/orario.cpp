// SPDX-License-Identifier: GPL-3.0-or-later
#include "trips/orario.h"

#include <algorithm>
#include <array>
#include <cmath>

#include "calendar/durata.h"

namespace cronovia {

namespace {

constexpr int kPrimaOraColazione = 0;
constexpr int kPrimaOraPranzo = 11;
constexpr int kPrimaOraCena = 18;

constexpr std::array kOreCorrette = {
    &ParametriViaggio::oraColazione, &ParametriViaggio::oraPranzo,  &ParametriViaggio::durataPranzo,
    &ParametriViaggio::oraCena,      &ParametriViaggio::durataCena, &ParametriViaggio::oraNotte,
    &ParametriViaggio::inizioVisita, &ParametriViaggio::fineVisita, &ParametriViaggio::oreTraghetti};

Centesimi ConOra(Centesimi orario, int ora) {
    return InCentesimi({0, ora, InDurata(orario, kGiornoOrologio).minuti}, kGiornoOrologio);
}

// One round of the order checks, each on the values that the round began with.
ParametriViaggio GiroDiControllo(const ParametriViaggio& p) {
    ParametriViaggio corretti = p;
    if (p.oraPranzo - 100_cent < p.oraColazione) corretti.oraColazione = ConOra(p.oraColazione, kPrimaOraColazione);
    if (p.oraCena - 100_cent < p.oraPranzo + p.durataPranzo) corretti.oraPranzo = ConOra(p.oraPranzo, kPrimaOraPranzo);
    if (p.oraCena + p.durataCena > p.oraNotte) corretti.oraCena = ConOra(p.oraCena, kPrimaOraCena);
    return corretti;
}

void LimitaVisite(ParametriViaggio& p) {
    p.inizioVisita = std::max(p.inizioVisita, p.oraColazione);
    p.fineVisita = std::min(p.fineVisita, p.oraNotte);
}

void LimitaOrari(ParametriViaggio& p) {
    if (p.durataPranzo > 350_cent) p.durataPranzo = 200_cent;
    if (p.durataCena > 250_cent) p.durataCena = 150_cent;
    if (p.oraColazione > 1200_cent) p.oraColazione = 900_cent;
    p.oraPranzo = std::clamp(p.oraPranzo, 1000_cent, 1600_cent);
    if (p.oraCena < 1700_cent || p.oraCena > 2200_cent) p.oraCena = 2000_cent;
    p.oraNotte = std::clamp(p.oraNotte, 1900_cent, 2400_cent);
    if (p.oraPranzo <= p.oraColazione) p.oraPranzo = p.oraColazione + 100_cent;
    if (p.oraCena <= p.oraPranzo + p.durataPranzo) p.oraCena = p.oraPranzo + p.durataPranzo + 100_cent;
    if (p.oraNotte <= p.oraCena + p.durataCena) p.oraNotte = p.oraCena + 15_cent;
    if (p.oreTraghetti == 0_cent) p.oreTraghetti = 100_cent;
    LimitaVisite(p);
}

// The value that an hour has once it went back to its lists of hours and minutes, where 24 is the last hour.
Centesimi NelleListe(Centesimi orario) {
    Durata durata = InDurata(orario, kGiornoOrologio);
    if (durata.giorni != 1 || durata.ore != 0) durata.giorni = 0;
    return InCentesimi(durata, kGiornoOrologio);
}

Centesimi RiposoBreve(int minuti) { return Centesimi(std::floor(minuti * 100.0 / 60.0 + 0.5)); }

}  // namespace

bool StessiOrari(const ParametriViaggio& uni, const ParametriViaggio& altri) {
    return std::all_of(kOreCorrette.begin(), kOreCorrette.end(),
                       [&](auto orario) { return uni.*orario == altri.*orario; });
}

ParametriViaggio InOrdine(const ParametriViaggio& digitati) {
    ParametriViaggio p = digitati;
    for (ParametriViaggio corretti = GiroDiControllo(p); !(corretti == p); corretti = GiroDiControllo(p)) p = corretti;
    LimitaVisite(p);
    return p;
}

OrarioCorretto::OrarioCorretto(const ParametriViaggio& digitati) : parametri_(InOrdine(digitati)) {
    ParametriViaggio& p = parametri_;
    guidaGiorno_ = (p.oraPranzo - p.oraColazione) + (p.oraCena - p.oraPranzo - p.durataPranzo) +
                   (p.oraNotte - p.oraCena - p.durataCena);
    visitaGiorno_ = p.fineVisita - p.inizioVisita;
    riposo_ = RiposoBreve(p.riposoMinuti);
    LimitaOrari(p);
    for (auto orario : kOreCorrette) p.*orario = NelleListe(p.*orario);
}

OrarioCorretto OrarioCorretto::Con(const ParametriViaggio& altri) const {
    OrarioCorretto nuovo = *this;
    nuovo.parametri_ = altri;
    for (auto orario : kOreCorrette) nuovo.parametri_.*orario = parametri_.*orario;
    nuovo.riposo_ = RiposoBreve(altri.riposoMinuti);
    return nuovo;
}

}  // namespace cronovia
