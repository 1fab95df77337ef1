// How long the schedule takes: one pass, a whole calculation beside guides of several sizes, loading and saving.
#include <benchmark/benchmark.h>

#include <QTemporaryDir>
#include <array>
#include <memory>
#include <vector>

#include "itinerary/itinerari.h"
#include "schedule/calcola_cronovia.h"
#include "schedule/simulazione.h"

namespace cronovia {
namespace {

using namespace Qt::StringLiterals;

// A journey of legs from 5 to 244 km on all kinds of road, with stops, day ends and ferries here and there.
std::vector<Tappa> TappeGenerate(int numero) {
    std::vector<Tappa> tappe;
    for (int i = 0; i < numero; ++i) {
        Tappa tappa;
        tappa.localita = u"LOCALITA %1"_s.arg(i);
        tappa.numStrada = i % 97 == 0 ? u"TRAGH"_s : u"SS%1"_s.arg(i % 700);
        tappa.km = 5 + i * 37 % 240;
        tappa.tipo = static_cast<TipoStrada>(i % kTipiStrada);
        if (i % 3 == 0) tappa.sosta = {0, 1 + i % 4, 30};
        tappa.fineGiorno = i % 11 == 0;
        tappe.push_back(tappa);
    }
    return tappe;
}

Meta MetaGenerata() {
    Meta meta;
    meta.codice = u"000001"_s;
    meta.dataInizio = NumeroGiorno(740000);
    meta.oraInizio = 900_cent;
    return meta;
}

struct Archivio {
    QTemporaryDir cartella;
    Archive archive = Archive::Open(cartella.path());
    Progress progress;
};

// Entries for the localities of an itinerary of 300 stages first, then for places that no itinerary has.
void RiempiGuida(Archive& archive, int voci) {
    Transaction transaction(archive);
    for (int i = 0; i < voci; ++i) {
        const QString localita = i < 100 ? u"LOCALITA %1"_s.arg(i * 3) : u"ALTROVE %1"_s.arg(i / 4);
        archive.Insert(Table::GuidaCitta,
                       std::array<QString, 5>{localita, u"0%1"_s.arg(1 + i % 9), u"Museo civico numero %1"_s.arg(i),
                                              u"01:15"_s, u"0"_s});
    }
    transaction.Commit();
}

void UnaPassata(benchmark::State& state) {
    Archivio archivio;
    const std::vector<Tappa> tappe = TappeGenerate(static_cast<int>(state.range(0)));
    const OrarioCorretto orario;
    LettoreGuida guida(archivio.archive);
    const TabellaCalcolo tabella = PreparaTabellaPerCalcoloCronovia(tappe, orario, guida, archivio.progress);
    std::vector<Durata> soste;
    for (const RigaCalcolo& riga : tabella.righe) soste.push_back(riga.sosta);
    for (auto _ : state) {
        benchmark::DoNotOptimize(
            SimulaPassata({tabella, soste, NumeroGiorno(740000), 900_cent, orario, 1}, archivio.progress));
    }
    state.counters["per_tappa"] =
        benchmark::Counter(static_cast<double>(state.range(0)),
                           benchmark::Counter::kIsIterationInvariantRate | benchmark::Counter::kInvert);
}
BENCHMARK(UnaPassata)->Arg(1'000)->Arg(10'000)->Unit(benchmark::kMicrosecond);

void CalcoloConGuida(benchmark::State& state) {
    Archivio archivio;
    RiempiGuida(archivio.archive, static_cast<int>(state.range(0)));
    const std::vector<Tappa> tappe = TappeGenerate(300);
    const Meta meta = MetaGenerata();
    for (auto _ : state) {
        LettoreGuida guida(archivio.archive);
        benchmark::DoNotOptimize(CalcolaCronovia(meta, tappe, guida, archivio.progress));
    }
}
BENCHMARK(CalcoloConGuida)->Arg(100)->Arg(10'000)->Arg(100'000)->Unit(benchmark::kMicrosecond);

void CaricaItinerario(benchmark::State& state) {
    Archivio archivio;
    const Meta meta = MetaGenerata();
    MemorizzaTappeItinerario(archivio.archive, meta.codice, TappeGenerate(1'000), OrarioCorretto(meta.parametri),
                             archivio.progress);
    for (auto _ : state) {
        LettoreGuida guida(archivio.archive);
        benchmark::DoNotOptimize(
            CaricaTappeItinerario(archivio.archive, meta.codice, OrarioCorretto(meta.parametri), guida));
    }
}
BENCHMARK(CaricaItinerario)->Unit(benchmark::kMillisecond);

void SalvaItinerario(benchmark::State& state) {
    Archivio archivio;
    const Meta meta = MetaGenerata();
    const std::vector<Tappa> tappe = TappeGenerate(1'000);
    for (auto _ : state) {
        MemorizzaTappeItinerario(archivio.archive, meta.codice, tappe, OrarioCorretto(meta.parametri),
                                 archivio.progress);
    }
}
BENCHMARK(SalvaItinerario)->Unit(benchmark::kMillisecond);

}  // namespace
}  // namespace cronovia
