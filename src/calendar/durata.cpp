// SPDX-License-Identifier: GPL-3.0-or-later
#include "calendar/durata.h"

#include <algorithm>
#include <cmath>

#include "calendar/testo.h"

namespace cronovia {

namespace {

int MinutiInCentesimi(int minuti) { return static_cast<int>(std::floor(minuti * 100.0 / 60.0 + 0.5)); }

}  // namespace

Durata LeggiDurata(QStringView testo) {
    const QString pieno = RiempiPrima(testo, 8, u'0');
    const QStringView parti(pieno);
    return {ValoreNumerico(parti.mid(0, 2)), ValoreNumerico(parti.mid(3, 2)), ValoreNumerico(parti.mid(6, 2))};
}

bool DurataLeggibile(QStringView testo) {
    return std::all_of(testo.begin(), testo.end(), [](QChar c) { return Cifra(c) || c == u':' || c == u' '; });
}

QString Testo(const Durata& durata) {
    if (durata.Nulla()) return {};
    return ConNumeri(u"00:00:00", {durata.giorni, durata.ore, durata.minuti});
}

QString TestoOre(const Durata& durata) {
    return durata.Nulla() ? QString() : ConNumeri(u"00:00", {durata.ore, durata.minuti});
}

Centesimi InCentesimi(const Durata& durata, Centesimi giorno) {
    return Centesimi(durata.ore * 100.0 + durata.giorni * double{giorno.Valore()} + MinutiInCentesimi(durata.minuti));
}

Durata InDurata(Centesimi centesimi, Centesimi giorno) {
    const double unita = giorno > 0_cent ? giorno.Valore() : kGiornoOrologio.Valore();
    const double valore = centesimi.Valore();
    const double giorni = std::floor(valore / unita);
    const double ore = std::floor((valore - giorni * unita) / 100.0);
    const double minuti = std::floor((valore - (giorni * unita + ore * 100.0)) * 60.0 / 100.0 + 0.5);
    Durata durata{static_cast<int>(giorni), static_cast<int>(ore), static_cast<int>(minuti)};
    if (durata.minuti == 60) {
        durata.minuti = 0;
        durata.ore += 1;
        if (durata.ore * 100.0 >= unita) durata = {durata.giorni + 1, 0, 0};
    }
    return durata;
}

QString Testo(Centesimi centesimi, Centesimi giorno) { return Testo(InDurata(centesimi, giorno)); }

QString TestoOrologio(Centesimi ora) { return TestoOre(InDurata(ora, kGiornoOrologio)); }

Centesimi ArrotondaAlMinuto(Centesimi centesimi, Centesimi giorno) {
    return InCentesimi(InDurata(centesimi, giorno), giorno);
}

}  // namespace cronovia
