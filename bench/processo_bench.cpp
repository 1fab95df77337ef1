// SPDX-License-Identifier: GPL-3.0-or-later
// What a line with a verb costs from its start to its end, as a process of its own. `Time` is what passes, `cpu` the
// least processor time of all runs, `per_tappa` the share of a stage in it.
#include <benchmark/benchmark.h>
#include <fcntl.h>
#include <spawn.h>
#include <sys/resource.h>
#include <sys/wait.h>

#include <algorithm>
#include <chrono>
#include <limits>
#include <string>

#include "itinerary/itinerari.h"
#include "trips/mete.h"
#include "viaggio_generato.h"

namespace cronovia {
namespace {

// In seconds.
struct Corsa {
    bool riuscita = false;
    double trascorso = 0;
    double cpu = 0;
};

double Secondi(const timeval& tempo) {
    return static_cast<double>(tempo.tv_sec) + 1e-6 * static_cast<double>(tempo.tv_usec);
}

// Runs the program with its output thrown away.
Corsa Esegui(std::vector<std::string> riga) {
    riga.insert(riga.begin(), CRONOVIA_PROGRAM);
    std::vector<char*> argomenti;
    for (std::string& parola : riga) argomenti.push_back(parola.data());
    argomenti.push_back(nullptr);
    posix_spawn_file_actions_t azioni;
    posix_spawn_file_actions_init(&azioni);
    posix_spawn_file_actions_addopen(&azioni, STDOUT_FILENO, "/dev/null", O_WRONLY, 0);
    const auto inizio = std::chrono::steady_clock::now();
    pid_t processo = 0;
    const int errore = posix_spawn(&processo, CRONOVIA_PROGRAM, &azioni, nullptr, argomenti.data(), environ);
    posix_spawn_file_actions_destroy(&azioni);
    int stato = 0;
    rusage uso{};
    if (errore != 0 || wait4(processo, &stato, 0, &uso) != processo || stato != 0) return {};
    const std::chrono::duration<double> trascorso = std::chrono::steady_clock::now() - inizio;
    return {true, trascorso.count(), Secondi(uso.ru_utime) + Secondi(uso.ru_stime)};
}

void Misura(benchmark::State& state, const std::vector<std::string>& riga, int tappe) {
    double cpu = std::numeric_limits<double>::max();
    for (auto _ : state) {
        const Corsa corsa = Esegui(riga);
        if (!corsa.riuscita) {
            state.SkipWithError("the program failed");
            break;
        }
        state.SetIterationTime(corsa.trascorso);
        cpu = std::min(cpu, corsa.cpu);
    }
    state.counters["cpu"] = cpu;
    if (tappe > 0) state.counters["per_tappa"] = cpu / tappe;
}

// An archive with one trip and a guide; returns the code of the trip.
QString Riempi(Archivio& archivio, int tappe) {
    Meta meta = MetaGenerata();
    meta.localita = u"GIRO"_s;
    meta.nazione = u"ITALIA"_s;
    const QString codice = InserisciMeta(archivio.archive, meta);
    MemorizzaTappeItinerario(archivio.archive, codice, TappeGenerate(tappe), OrarioCorretto(meta.parametri),
                             archivio.progress);
    RiempiGuida(archivio.archive, 1'000);
    return codice;
}

void ProcessoVersione(benchmark::State& state) { Misura(state, {"--version"}, 0); }
BENCHMARK(ProcessoVersione)->UseManualTime()->Unit(benchmark::kMillisecond);

void ProcessoElenca(benchmark::State& state) {
    Archivio archivio;
    Riempi(archivio, 100);
    Misura(state, {"--cartella", archivio.cartella.path().toStdString(), "elenca"}, 0);
}
BENCHMARK(ProcessoElenca)->UseManualTime()->Unit(benchmark::kMillisecond);

void ProcessoCalcola(benchmark::State& state) {
    Archivio archivio;
    const auto tappe = static_cast<int>(state.range(0));
    const std::string codice = Riempi(archivio, tappe).toStdString();
    Misura(state, {"--cartella", archivio.cartella.path().toStdString(), "calcola", codice, "--formato", "json"},
           tappe);
}
BENCHMARK(ProcessoCalcola)
    ->Arg(100)
    ->Arg(1'000)
    ->Arg(3'000)
    ->Arg(9'999)
    ->UseManualTime()
    ->Unit(benchmark::kMillisecond);

}  // namespace
}  // namespace cronovia
