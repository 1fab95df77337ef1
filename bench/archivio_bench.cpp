// SPDX-License-Identifier: GPL-3.0-or-later
// What an archive of many trips, each of 28 stages, costs beside the work: its opening with the check, a copy of it.
#include <benchmark/benchmark.h>

#include <QDateTime>
#include <QFile>

#include "itinerary/itinerari.h"
#include "store/copies.h"
#include "viaggio_generato.h"

namespace cronovia {
namespace {

constexpr int kTappe = 28;

void Riempi(Archivio& archivio, std::int64_t mete) {
    Transaction transaction(archivio.archive);
    Meta meta = MetaGenerata();
    const std::vector<Tappa> tappe = TappeGenerate(kTappe);
    const OrarioCorretto orario(meta.parametri);
    for (std::int64_t i = 1; i <= mete; ++i) {
        meta.codice = u"%1"_s.arg(i, 6, 10, QChar(u'0'));
        meta.localita = u"META %1"_s.arg(i);
        archivio.archive.Insert(Table::MeteVandro, ValoriDellaMeta(meta));
        MemorizzaTappeItinerario(archivio.archive, meta.codice, tappe, orario, archivio.progress);
    }
    transaction.Commit();
}

void Apertura(benchmark::State& state) {
    Archivio archivio;
    Riempi(archivio, state.range(0));
    for (auto _ : state) benchmark::DoNotOptimize(Archive::Open(archivio.cartella.path()));
}
BENCHMARK(Apertura)->Arg(10)->Arg(100)->Arg(400)->Arg(1'000)->Unit(benchmark::kMillisecond);

void Copia(benchmark::State& state) {
    Archivio archivio;
    Riempi(archivio, state.range(0));
    const QDateTime adesso(QDate(2027, 6, 5), QTime(8, 0));
    for (auto _ : state) {
        const QString copia = KeepPresent(archivio.cartella.path(), adesso, u"prova"_s);
        state.PauseTiming();
        QFile::remove(copia);
        state.ResumeTiming();
    }
}
BENCHMARK(Copia)->Arg(1'000)->Arg(100'000)->Unit(benchmark::kMillisecond)->UseRealTime();

}  // namespace
}  // namespace cronovia
