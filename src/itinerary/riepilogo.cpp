// SPDX-License-Identifier: GPL-3.0-or-later
#include "itinerary/riepilogo.h"

#include <algorithm>

#include "calendar/testo.h"

namespace cronovia {

namespace {

int GiorniMinimi(const Totali& totali, Centesimi guidaGiorno) {
    if (totali.km[kTuttiITipi] == 0) return 0;
    const Durata tempo = InDurata(totali.tempo[kTuttiITipi], guidaGiorno);
    return tempo.giorni + (tempo.ore > 0 || tempo.minuti > 0 ? 1 : 0);
}

// "gg:hh:mm" with as many digits of days as there are.
QString TestoTotale(const Durata& tempo) {
    const QString giorni = tempo.giorni < 100 ? QString() : QString::number(tempo.giorni / 100);
    return giorni + Testo(tempo);
}

}  // namespace

void Totali::Aggiunge(TipoStrada tipo, int kmTratta, Centesimi tempoTratta) {
    for (const std::size_t indice : {Indice(tipo), kTuttiITipi}) {
        km[indice] += kmTratta;
        tempo[indice] += tempoTratta;
    }
}

TestiTotali Testi(const Totali& totali, Centesimi guidaGiorno) {
    TestiTotali testi;
    for (std::size_t i = 0; i < totali.km.size(); ++i) {
        testi.km[i] = RaggruppaNonZero(totali.km[i]);
        testi.tempo[i] = TestoTotale(InDurata(totali.tempo[i], guidaGiorno));
    }
    testi.traghetti = QString::number(totali.traghetti);
    return testi;
}

RiepilogoItinerario CalcolaKmTempiItinerario(std::span<const Tappa> tappe, const OrarioCorretto& orario,
                                             int giorniAdeguamento) {
    RiepilogoItinerario riepilogo;
    riepilogo.guidaGiorno = orario.GuidaGiorno();
    riepilogo.tappe.reserve(tappe.size());
    for (const Tappa& tappa : tappe) {
        if (tappa.Traghetto()) ++riepilogo.totali.traghetti;
        TempiTappa tempi;
        const int media = orario.Parametri().mediaKm[Indice(tappa.TipoEffettivo())];
        if (tappa.KmGuidati() != 0 && media > 0) tempi.tempo = TempoDiGuida(tappa.km, media);
        riepilogo.totali.Aggiunge(tappa.TipoEffettivo(), tappa.KmGuidati(), tempi.tempo.value_or(0_cent));
        tempi.kmProgressivi = riepilogo.totali.km[kTuttiITipi];
        riepilogo.tappe.push_back(tempi);
    }
    riepilogo.giorniMinimi = GiorniMinimi(riepilogo.totali, riepilogo.guidaGiorno);
    riepilogo.giorniAdeguamento = giorniAdeguamento == 0 ? 0 : std::max(giorniAdeguamento, riepilogo.giorniMinimi);
    return riepilogo;
}

std::vector<int> GiorniProposti(const RiepilogoItinerario& riepilogo) {
    std::vector<int> giorni = {0};
    if (riepilogo.totali.km[kTuttiITipi] == 0) return giorni;
    for (int n = riepilogo.giorniMinimi; n <= riepilogo.giorniMinimi + 30; ++n) giorni.push_back(n);
    for (int n = 30; n <= 100; n += 5) giorni.push_back(n);
    for (int n = 110; n <= 200; n += 10) giorni.push_back(n);
    return giorni;
}

std::optional<TipoStrada> TipoSenzaMedia(std::span<const Tappa> tappe, const OrarioCorretto& orario) {
    for (const Tappa& tappa : tappe) {
        if (tappa.KmGuidati() > 0 && orario.Parametri().mediaKm[Indice(tappa.TipoEffettivo())] <= 0)
            return tappa.TipoEffettivo();
    }
    return std::nullopt;
}

}  // namespace cronovia
