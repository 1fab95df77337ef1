// SPDX-License-Identifier: GPL-3.0-or-later
#include "places/sole.h"

#include <cmath>
#include <numbers>

namespace cronovia {

namespace {

constexpr double kRad = std::numbers::pi / 180;
constexpr int kMinutiGiorno = 1440;
// 1 January 2000, and its Julian day at midnight.
constexpr NumeroGiorno kGiorno2000(730135);
constexpr double kGiuliano2000 = 2451544.5;
// Where the upper rim of the sun touches the horizon, seen through the air.
constexpr double kZenit = 90.833;

double Sen(double gradi) { return std::sin(gradi * kRad); }
double Cos(double gradi) { return std::cos(gradi * kRad); }

// What the sun does at a moment.
struct StatoDelSole {
    double declinazione = 0;  // degrees
    double equazione = 0;     // of time, in minutes
};

StatoDelSole StatoAl(double giornoGiuliano) {
    const double t = (giornoGiuliano - 2451545) / 36525;
    const double longitudineMedia = std::fmod(280.46646 + t * (36000.76983 + t * 0.0003032), 360);
    const double anomalia = 357.52911 + t * (35999.05029 - 0.0001537 * t);
    const double eccentricita = 0.016708634 - t * (0.000042037 + 0.0000001267 * t);
    const double centro = Sen(anomalia) * (1.914602 - t * (0.004817 + 0.000014 * t)) +
                          Sen(2 * anomalia) * (0.019993 - 0.000101 * t) + Sen(3 * anomalia) * 0.000289;
    const double nodo = 125.04 - 1934.136 * t;
    const double apparente = longitudineMedia + centro - 0.00569 - 0.00478 * Sen(nodo);
    const double obliquita =
        23 + (26 + (21.448 - t * (46.815 + t * (0.00059 - t * 0.001813))) / 60) / 60 + 0.00256 * Cos(nodo);
    const double y = std::pow(std::tan(obliquita / 2 * kRad), 2);
    const double equazione = y * Sen(2 * longitudineMedia) - 2 * eccentricita * Sen(anomalia) +
                             4 * eccentricita * y * Sen(anomalia) * Cos(2 * longitudineMedia) -
                             0.5 * y * y * Sen(4 * longitudineMedia) -
                             1.25 * eccentricita * eccentricita * Sen(2 * anomalia);
    return {std::asin(Sen(obliquita) * Sen(apparente)) / kRad, 4 * equazione / kRad};
}

// Minutes of UTC; first as the sun stands at noon, then as it stands at the moment found.
std::optional<double> MinutoUtc(double mezzanotte, const Posizione& p, bool alba) {
    double minuto = kMinutiGiorno / 2.0 - 4 * p.longitudine;
    for (int volta = 0; volta < 3; ++volta) {
        const StatoDelSole sole = StatoAl(mezzanotte + minuto / kMinutiGiorno);
        const double coseno = Cos(kZenit) / (Cos(p.latitudine) * Cos(sole.declinazione)) -
                              std::tan(p.latitudine * kRad) * std::tan(sole.declinazione * kRad);
        if (coseno < -1 || coseno > 1) return std::nullopt;
        const double angolo = std::acos(coseno) / kRad;
        minuto = kMinutiGiorno / 2.0 - 4 * (p.longitudine + (alba ? angolo : -angolo)) - sole.equazione;
    }
    return minuto;
}

int UltimaDomenica(int mese, int anno) {
    const int ultimo = GiorniMese(anno, mese);
    // 1 January 2000 was a Saturday.
    const int giorno = (NumeroDelGiorno({ultimo, mese, anno}) - kGiorno2000 + 6) % 7;
    return ultimo - giorno;
}

}  // namespace

Sole SoleDi(NumeroGiorno giorno, const Posizione& posizione, int minutiDaUtc) {
    const double mezzanotte = kGiuliano2000 + (giorno - kGiorno2000);
    const auto minuto = [&](bool alba) -> std::optional<int> {
        const std::optional<double> utc = MinutoUtc(mezzanotte, posizione, alba);
        return utc ? std::optional(static_cast<int>(std::lround(*utc)) + minutiDaUtc) : std::nullopt;
    };
    return {minuto(true), minuto(false)};
}

int MinutiDaUtcInItalia(NumeroGiorno giorno) {
    const int anno = GmaDelGiorno(giorno).anno;
    const bool estate = giorno >= NumeroDelGiorno({UltimaDomenica(3, anno), 3, anno}) &&
                        giorno < NumeroDelGiorno({UltimaDomenica(10, anno), 10, anno});
    return estate ? 120 : 60;
}

}  // namespace cronovia
