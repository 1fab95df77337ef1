// SPDX-License-Identifier: GPL-3.0-or-later
// Itineraries as a line of text.
#pragma once

#include <gtest/gtest.h>

#include "itinerary/modifiche.h"
#include "support/prova.h"

namespace cronovia::prova {

/// Stages "NAME/road/km", a free row "-"; every leg on a motorway. A stage "NAME/road/km/*" has a stop of an hour and a
/// half and ends the day. Kilometres "?" are to be told.
inline RigheItinerario Righe(const QString& testo) {
    RigheItinerario righe;
    for (const QString& parola : testo.split(u' ', Qt::SkipEmptyParts)) {
        const QStringList parti = parola.split(u'/');
        Tappa& tappa = righe.emplace_back();
        if (parola == QLatin1String("-")) continue;
        tappa.localita = parti[0];
        tappa.numStrada = parti.value(1);
        tappa.km = parti.value(2).toInt();
        tappa.kmDaIndicare = parti.value(2) == QLatin1String("?");
        if (tappa.km != 0 || tappa.kmDaIndicare) tappa.tipo = TipoStrada::Autostrada;
        tappa.fineGiorno = parti.size() > 3;
        if (tappa.fineGiorno) tappa.sosta = {0, 1, 30};
    }
    return righe;
}

/// Back into text; a test failure when a leg without kilometres has a road type, or the other way round.
inline QString Testo(const RigheItinerario& righe) {
    QStringList parole;
    for (const Tappa& tappa : righe) {
        EXPECT_TRUE(tappa.kmDaIndicare || tappa.tipo.has_value() == (tappa.km != 0)) << tappa.localita.toStdString();
        QStringList parti = {tappa.localita.isEmpty() ? QStringLiteral("-") : tappa.localita};
        if (!tappa.numStrada.isEmpty() || tappa.km != 0 || tappa.kmDaIndicare || tappa.fineGiorno) {
            parti += {tappa.numStrada, tappa.kmDaIndicare ? QStringLiteral("?") : QString::number(tappa.km)};
        }
        if (tappa.fineGiorno) parti += QStringLiteral("*");
        EXPECT_EQ(tappa.sosta.Nulla(), !tappa.fineGiorno) << tappa.localita.toStdString();
        parole += parti.join(u'/');
    }
    return parole.join(u' ');
}

}  // namespace cronovia::prova
