// SPDX-License-Identifier: GPL-3.0-or-later
#include "places/posizione.h"

#include <QList>
#include <algorithm>
#include <array>
#include <cmath>
#include <numbers>

namespace cronovia {

using namespace Qt::StringLiterals;

namespace {

constexpr double kRaggioTerra = 6371.0088;
constexpr double kRadianti = std::numbers::pi / 180;

struct Vettore {
    double x, y, z;
};

Vettore InVettore(const Posizione& p) {
    const double latitudine = p.latitudine * kRadianti;
    const double longitudine = p.longitudine * kRadianti;
    return {std::cos(latitudine) * std::cos(longitudine), std::cos(latitudine) * std::sin(longitudine),
            std::sin(latitudine)};
}

// The angle between two points, in radians.
double Angolo(const Posizione& a, const Posizione& b) {
    const double nord = std::sin((b.latitudine - a.latitudine) * kRadianti / 2);
    const double est = std::sin((b.longitudine - a.longitudine) * kRadianti / 2);
    const double h = nord * nord + std::cos(a.latitudine * kRadianti) * std::cos(b.latitudine * kRadianti) * est * est;
    return 2 * std::asin(std::sqrt(std::min(1.0, h)));
}

bool Separatore(QChar c) { return c.isSpace() || QStringView(u"°º'’′\"”″:").contains(c); }

// What a coordinate is written with: its hemisphere, if it has one, and the numbers.
struct Coordinata {
    QChar emisfero;
    bool negativa = false;
    QList<double> numeri;
};

// Takes a hemisphere off the beginning or the end; "O" is the Italian west.
QChar PrendiEmisfero(QStringView& testo, QStringView lettere) {
    if (!testo.isEmpty() && lettere.contains(testo.front().toUpper())) {
        const QChar trovata = testo.front().toUpper();
        testo = testo.sliced(1).trimmed();
        return trovata;
    }
    if (!testo.isEmpty() && lettere.contains(testo.back().toUpper())) {
        const QChar trovata = testo.back().toUpper();
        testo = testo.chopped(1).trimmed();
        return trovata;
    }
    return {};
}

std::optional<double> LeggiNumero(const QString& cifre) {
    if (cifre.isEmpty() || cifre.size() > 12 || cifre.count(u'.') > 1) return std::nullopt;
    const bool buone =
        std::all_of(cifre.begin(), cifre.end(), [](QChar c) { return (c >= u'0' && c <= u'9') || c == u'.'; });
    bool numero = false;
    const double valore = cifre.toDouble(&numero);
    return buone && numero ? std::optional(valore) : std::nullopt;
}

std::optional<Coordinata> LeggiCoordinata(QStringView testo, QStringView lettere) {
    testo = testo.trimmed();
    Coordinata coordinata;
    coordinata.emisfero = PrendiEmisfero(testo, lettere);
    if (testo.startsWith(u'-') || testo.startsWith(u'\u2212') || testo.startsWith(u'+')) {
        coordinata.negativa = testo.front() != u'+';
        testo = testo.sliced(1);
        if (!coordinata.emisfero.isNull()) return std::nullopt;
    }
    QString piano = testo.toString().replace(u',', u'.');
    for (QChar& c : piano) {
        if (Separatore(c)) c = u' ';
    }
    for (const QString& parte : piano.split(u' ', Qt::SkipEmptyParts)) {
        const std::optional<double> numero = LeggiNumero(parte);
        if (!numero) return std::nullopt;
        coordinata.numeri.push_back(*numero);
    }
    if (coordinata.numeri.isEmpty() || coordinata.numeri.size() > 3) return std::nullopt;
    return coordinata;
}

// Only the last number has decimals; minutes and seconds are below 60.
std::optional<double> LeggiGradi(QStringView testo, QStringView lettere, double massimo) {
    const std::optional<Coordinata> coordinata = LeggiCoordinata(testo, lettere);
    if (!coordinata) return std::nullopt;
    double gradi = 0;
    double unita = 1;
    for (qsizetype i = 0; i < coordinata->numeri.size(); ++i, unita /= 60) {
        const double numero = coordinata->numeri[i];
        const bool intero = numero == std::floor(numero);
        if ((i > 0 && numero >= 60) || (!intero && i + 1 < coordinata->numeri.size())) return std::nullopt;
        gradi += numero * unita;
    }
    if (gradi > massimo) return std::nullopt;
    const bool negativa =
        coordinata->negativa || (QStringView(u"SOW").contains(coordinata->emisfero) && !coordinata->emisfero.isNull());
    return negativa ? -gradi : gradi;
}

// Where one text parts into latitude and longitude: each place that may be it.
QList<qsizetype> Tagli(QStringView testo) {
    QList<qsizetype> tagli;
    for (qsizetype i = 1; i < testo.size(); ++i) {
        const bool dopoEmisfero = QStringView(u"NSns").contains(testo[i - 1]);
        const bool prima = QStringView(u"EOWeow").contains(testo[i]);
        if (testo[i] == u';' || (testo[i] == u',' && i + 1 < testo.size() && testo[i + 1].isSpace()) || dopoEmisfero ||
            prima || testo[i].isSpace()) {
            tagli.push_back(i);
        }
    }
    return tagli;
}

}  // namespace

double DistanzaKm(const Posizione& a, const Posizione& b) { return kRaggioTerra * Angolo(a, b); }

Posizione Fra(const Posizione& da, const Posizione& a, double parte) {
    const double angolo = Angolo(da, a);
    if (angolo < 1e-9) return da;
    const Vettore v = InVettore(da);
    const Vettore w = InVettore(a);
    const double quantoV = std::sin((1 - parte) * angolo) / std::sin(angolo);
    const double quantoW = std::sin(parte * angolo) / std::sin(angolo);
    const Vettore p = {quantoV * v.x + quantoW * w.x, quantoV * v.y + quantoW * w.y, quantoV * v.z + quantoW * w.z};
    return {std::atan2(p.z, std::hypot(p.x, p.y)) / kRadianti, std::atan2(p.y, p.x) / kRadianti};
}

std::optional<Posizione> LeggiPosizione(QStringView latitudine, QStringView longitudine) {
    const std::optional<double> nord = LeggiGradi(latitudine, u"NS", 90);
    const std::optional<double> est = LeggiGradi(longitudine, u"EOW", 180);
    if (!nord || !est) return std::nullopt;
    return Posizione{*nord, *est == 180 ? -180 : *est};
}

// The cut that leaves the same kind of number on both sides is the one meant.
std::optional<Posizione> LeggiPosizione(QStringView testo) {
    testo = testo.trimmed();
    const auto parti = [](QStringView t) {
        const std::optional<Coordinata> c = LeggiCoordinata(t, u"NSEOW");
        return c ? c->numeri.size() : 0;
    };
    for (const qsizetype taglio : Tagli(testo)) {
        const QStringView prima = testo.first(taglio).trimmed();
        QStringView dopo = testo.sliced(taglio).trimmed();
        if (dopo.startsWith(u',') || dopo.startsWith(u';')) dopo = dopo.sliced(1).trimmed();
        const auto posizione = LeggiPosizione(prima, dopo);
        if (posizione && parti(prima) == parti(dopo)) return posizione;
    }
    return std::nullopt;
}

QString TestoGradi(double gradi) { return QString::number(gradi, 'f', 5); }

QString Testo(const Posizione& posizione) {
    const auto gradi = [](double valore, QStringView emisfero) {
        return QString::number(std::abs(valore), 'f', 4).replace(u'.', u',') + u"° "_s + emisfero.toString();
    };
    return gradi(posizione.latitudine, posizione.latitudine < 0 ? u"S" : u"N") + u' ' +
           gradi(posizione.longitudine, posizione.longitudine < 0 ? u"O" : u"E");
}

}  // namespace cronovia
