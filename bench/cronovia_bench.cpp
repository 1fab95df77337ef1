// SPDX-License-Identifier: GPL-3.0-or-later
// How long the schedule takes: one pass, a whole calculation beside guides of several sizes, loading and saving.
#include <benchmark/benchmark.h>

#include <vector>

#include "itinerary/itinerari.h"
#include "schedule/alternative.h"
#include "schedule/calcola_cronovia.h"
#include "schedule/simulazione.h"
#include "viaggio_generato.h"

namespace cronovia {
namespace {

using namespace Qt::StringLiterals;

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
        benchmark::DoNotOptimize(
            CalcolaCronovia(meta, OrarioCorretto(meta.parametri), tappe, guida, archivio.progress));
    }
}
BENCHMARK(CalcoloConGuida)->Arg(100)->Arg(10'000)->Arg(100'000)->Unit(benchmark::kMicrosecond);

void ConfrontoDelleAlternative(benchmark::State& state) {
    Archivio archivio;
    RiempiGuida(archivio.archive, 100);
    const std::vector<Tappa> tappe = TappeGenerate(100);
    const Meta meta = MetaGenerata();
    for (auto _ : state) {
        LettoreGuida guida(archivio.archive);
        benchmark::DoNotOptimize(Alternative(meta, OrarioCorretto(meta.parametri), tappe, guida, archivio.progress));
    }
}
BENCHMARK(ConfrontoDelleAlternative)->Unit(benchmark::kMillisecond);

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
