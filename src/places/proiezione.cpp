// SPDX-License-Identifier: GPL-3.0-or-later
#include "places/proiezione.h"

#include <algorithm>
#include <cmath>
#include <numbers>

namespace cronovia {

namespace {

constexpr double kRaggioSfera = 6371;  // kilometres
constexpr double kMeridiano = 12;
constexpr double kMassimaLatitudine = 89.9;

double Radianti(double gradi) { return gradi * std::numbers::pi / 180; }
double Gradi(double radianti) { return radianti * 180 / std::numbers::pi; }

double MezzaTangente(double latitudine) { return std::tan(std::numbers::pi / 4 + Radianti(latitudine) / 2); }

struct Cono {
    double n = 0;
    double f = 0;
    double raggioOrigine = 0;
};

Cono Costanti() {
    constexpr double kSud = 38;
    constexpr double kNord = 66;
    constexpr double kOrigine = 52;
    const double n = std::log(std::cos(Radianti(kSud)) / std::cos(Radianti(kNord))) /
                     std::log(MezzaTangente(kNord) / MezzaTangente(kSud));
    const double f = std::cos(Radianti(kSud)) * std::pow(MezzaTangente(kSud), n) / n;
    return {n, f, kRaggioSfera * f / std::pow(MezzaTangente(kOrigine), n)};
}

const Cono kCono = Costanti();

}  // namespace

PuntoMappa Proietta(const Posizione& posizione) {
    const double latitudine = std::clamp(posizione.latitudine, -60.0, kMassimaLatitudine);
    const double raggio = kRaggioSfera * kCono.f / std::pow(MezzaTangente(latitudine), kCono.n);
    const double angolo = kCono.n * Radianti(posizione.longitudine - kMeridiano);
    return {raggio * std::sin(angolo), raggio * std::cos(angolo) - kCono.raggioOrigine};
}

Posizione Ricava(const PuntoMappa& punto) {
    const double sotto = kCono.raggioOrigine + punto.y;
    const double raggio = std::hypot(punto.x, sotto);
    const double mezza = std::pow(kRaggioSfera * kCono.f / std::max(raggio, 1e-6), 1 / kCono.n);
    const double longitudine = kMeridiano + Gradi(std::atan2(punto.x, sotto)) / kCono.n;
    return {std::clamp(Gradi(2 * std::atan(mezza)) - 90, -90.0, 90.0), std::clamp(longitudine, -180.0, 180.0)};
}

}  // namespace cronovia
