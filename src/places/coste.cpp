// SPDX-License-Identifier: GPL-3.0-or-later
#include "places/coste.h"

#include <QByteArray>
#include <QFile>
#include <QtEndian>

namespace cronovia {

// The layout is told in packaging/luoghi.py, which writes the file.
namespace {

constexpr qsizetype kTestaCoste = 12;
constexpr qsizetype kByteTestaLinea = 4;
constexpr qsizetype kBytePunto = 4;

double GradiDaCentesimi(const char* byte) { return qFromLittleEndian<std::int16_t>(byte) / 100.0; }

}  // namespace

Coste LeggiCoste(const QString& file) {
    QFile aperto(file);
    if (!aperto.open(QIODevice::ReadOnly)) return {};
    const QByteArray dati = aperto.readAll();
    if (dati.size() < kTestaCoste || !dati.startsWith("CrvCost1")) return {};
    Coste coste;
    const auto linee = qFromLittleEndian<std::uint32_t>(dati.constData() + 8);
    qsizetype posto = kTestaCoste;
    for (std::uint32_t i = 0; i < linee; ++i) {
        if (posto + kByteTestaLinea > dati.size()) return {};
        const char* const testa = dati.constData() + posto;
        const auto punti = qFromLittleEndian<std::uint16_t>(testa + 2);
        if (posto + kByteTestaLinea + kBytePunto * punti > dati.size()) return {};
        LineaCosta linea;
        linea.reserve(punti);
        for (const char* punto = testa + kByteTestaLinea; linea.size() < punti; punto += kBytePunto) {
            linea.push_back({GradiDaCentesimi(punto + 2), GradiDaCentesimi(punto)});
        }
        const bool terra = qFromLittleEndian<std::uint16_t>(testa) == 0;
        (terra ? coste.terre : coste.confini).push_back(std::move(linea));
        posto += kByteTestaLinea + kBytePunto * punti;
    }
    return coste;
}

}  // namespace cronovia
