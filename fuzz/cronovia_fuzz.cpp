// SPDX-License-Identifier: GPL-3.0-or-later
// Schedules of trips made of anything that an itinerary can hold. What must hold for each: nothing crashes, the clock
// never runs backwards, the journey ends within its bounds, and each of its dates is a day of the journey once.
#include <fuzzer/FuzzedDataProvider.h>

#include <QDir>
#include <QTemporaryDir>

#include "archivio_di_prova.h"
#include "interaction/failure.h"
#include "schedule/calcola_cronovia.h"
#include "schedule/giornate.h"

namespace {

using namespace cronovia;
using namespace Qt::StringLiterals;

Meta NuovaMeta(FuzzedDataProvider& dati) {
    Meta meta;
    meta.dataInizio = NumeroGiorno(dati.ConsumeIntegralInRange(700000, 760000));
    meta.oraInizio = Centesimi(dati.ConsumeIntegralInRange(0, 2399));
    meta.giorniAdeguamento = dati.ConsumeIntegralInRange(0, kMassimoGiorniAdeguamento);
    ParametriViaggio& p = meta.parametri;
    for (int& media : p.mediaKm) media = dati.ConsumeIntegralInRange(kMinimaMedia, kMassimaMedia);
    for (Centesimi* ora : {&p.oraColazione, &p.oraPranzo, &p.durataPranzo, &p.oraCena, &p.durataCena, &p.oraNotte,
                           &p.inizioVisita, &p.fineVisita, &p.oreTraghetti}) {
        *ora = Centesimi(dati.ConsumeIntegralInRange(0, 2399));
    }
    for (int* riposo : {&p.riposoMinuti, &p.riposoOre, &p.riposoGiorno, &p.riposoDopoGiorni}) {
        *riposo = dati.ConsumeIntegralInRange(0, 99);
    }
    p.calcoloSoste = static_cast<CalcoloSoste>(dati.ConsumeIntegralInRange(1, 5));
    return meta;
}

std::vector<Tappa> NuoveTappe(FuzzedDataProvider& dati) {
    std::vector<Tappa> tappe;
    do {
        Tappa tappa;
        tappa.localita = QString(1, QChar(u'A' + dati.ConsumeIntegralInRange(0, 25)));
        const int strada = dati.ConsumeIntegralInRange(0, 5);
        if (strada == 5) tappa.numStrada = u"TRAGHETTO"_s;
        if (strada < kTipiStrada) tappa.tipo = static_cast<TipoStrada>(strada);
        tappa.km = dati.ConsumeIntegralInRange(0, 999);
        if (dati.ConsumeBool()) {
            tappa.sosta = {dati.ConsumeIntegralInRange(0, 99), dati.ConsumeIntegralInRange(0, 23),
                           dati.ConsumeIntegralInRange(0, 59)};
        }
        tappa.fineGiorno = dati.ConsumeIntegralInRange(0, 7) == 0;
        tappe.push_back(tappa);
    } while (dati.remaining_bytes() > 0 && tappe.size() < 60);
    return tappe;
}

// A stop lasts 999 visiting days at most, a stage is driven in a thousand days, whole rests come on top of each day.
std::int64_t MassimoGiorni(const Meta& meta, std::size_t tappe) {
    return static_cast<std::int64_t>(tappe) * 3000 * (1 + meta.parametri.riposoGiorno);
}

void Guarda(const Cronovia& cronovia, const Meta& meta, std::size_t tappe) {
    NumeroGiorno giorno = *meta.dataInizio;
    Centesimi ora;
    for (const RigaCronovia& riga : cronovia.righe) {
        if (!ConMomento(riga.genere)) continue;
        Pretendi(riga.data > giorno || (riga.data == giorno && riga.ora >= ora));
        giorno = riga.data;
        ora = riga.ora;
        Pretendi(riga.ora >= 0_cent && riga.km >= 0 && riga.tempo >= 0_cent);
    }
    Pretendi(giorno - *meta.dataInizio <= MassimoGiorni(meta, tappe));
    for (const Fascia& fascia : cronovia.fasce) Pretendi(fascia.da <= fascia.a);
    NumeroGiorno atteso = *meta.dataInizio;
    int km = 0;
    for (const Giornata& giornata : Giornate(cronovia, *meta.dataInizio)) {
        Pretendi(giornata.data == atteso);
        atteso += 1;
        km += giornata.km;
    }
    int guidati = 0;
    for (const RigaCronovia& riga : cronovia.righe) guidati += riga.km;
    Pretendi(cronovia.righe.empty() || km == guidati);
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* dati, size_t quanti) {
    static const QTemporaryDir cartella(QDir::tempPath() + u"/cronovia-fuzz-XXXXXX"_s);
    static Archive archive = Archive::Open(cartella.path());
    FuzzedDataProvider fornitore(dati, quanti);
    const Meta meta = NuovaMeta(fornitore);
    const std::vector<Tappa> tappe = NuoveTappe(fornitore);
    LettoreGuida guida(archive);
    Progress progress;
    try {
        const EsitoCalcolo esito = CalcolaCronovia(meta, OrarioCorretto(meta.parametri), tappe, guida, progress);
        Pretendi(esito.cronovia.has_value() && esito.tentativi <= kMassimoTentativi);
        Guarda(*esito.cronovia, meta, tappe.size());
    } catch (const Failure&) {  // no kilometres, or visits that end before they begin
    }
    return 0;
}
