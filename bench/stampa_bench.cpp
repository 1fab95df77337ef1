// SPDX-License-Identifier: GPL-3.0-or-later
// How long a printout takes, and that painting holds no more memory for many pages than for few.
#include <benchmark/benchmark.h>

#include <QFile>
#include <QGuiApplication>
#include <QTemporaryDir>

#include "guide/guida_citta.h"
#include "print/file_pdf.h"
#include "print/stampa_cronovia.h"
#include "schedule/calcola_cronovia.h"
#include "viaggio_generato.h"

namespace cronovia {
namespace {

using namespace Qt::StringLiterals;

// The schedule of a journey of so many stages, with a guide to each tenth of its first 300.
DatiStampa CronoviaGenerata(int tappe) {
    Archivio archivio;
    RiempiGuida(archivio.archive, 100);
    LettoreGuida guida(archivio.archive);
    Meta meta = MetaGenerata();
    meta.localita = u"CAPO NORD"_s;
    meta.nazione = u"NORVEGIA"_s;
    const EsitoCalcolo esito =
        CalcolaCronovia(meta, OrarioCorretto(meta.parametri), TappeGenerate(tappe), guida, archivio.progress);
    return PreparaStampa(meta, *esito.cronovia);
}

// Kilobytes of memory in use; 0 where the system does not tell.
double Memoria() {
    QFile stato(u"/proc/self/status"_s);
    if (!stato.open(QIODevice::ReadOnly)) return 0;
    for (const QByteArray& riga : stato.readAll().split('\n')) {
        if (riga.startsWith("VmRSS:")) return riga.mid(6).simplified().split(' ').first().toDouble();
    }
    return 0;
}

void Modello(benchmark::State& state) {
    const DatiStampa dati = CronoviaGenerata(static_cast<int>(state.range(0)));
    Progress progress;
    for (auto _ : state) benchmark::DoNotOptimize(StampaCronovia(dati, {{2027, 1, 1}, u"Cronovia"_s}, progress));
}
BENCHMARK(Modello)->Arg(1'000)->Arg(10'000)->Unit(benchmark::kMillisecond);

// From the rows to the closed file; the counter is what painting added to the memory that the model takes.
void FilePdf(benchmark::State& state) {
    const QTemporaryDir cartella;
    const DatiStampa dati = CronoviaGenerata(static_cast<int>(state.range(0)));
    Progress progress;
    double cresciuta = 0;
    for (auto _ : state) {
        const Stampato documento = StampaCronovia(dati, {{2027, 1, 1}, u"Cronovia"_s}, progress);
        const double prima = Memoria();
        FileIntero file(cartella.filePath(u"stampa.pdf"_s));
        ScriviPdf(documento, file, progress);
        file.Chiudi();
        cresciuta = Memoria() - prima;
    }
    state.counters["kB"] = cresciuta;
    state.counters["righe"] = static_cast<double>(dati.righe.size());
}
BENCHMARK(FilePdf)->Arg(1'000)->Arg(10'000)->Unit(benchmark::kMillisecond);

}  // namespace
}  // namespace cronovia

int main(int argc, char* argv[]) {
    qputenv("QT_QPA_PLATFORM", "offscreen");
    const QGuiApplication application(argc, argv);
    benchmark::Initialize(&argc, argv);
    benchmark::RunSpecifiedBenchmarks();
    return 0;
}
