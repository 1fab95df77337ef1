// How long a printout takes, and that painting holds no more memory for many pages than for few.
#include <benchmark/benchmark.h>

#include <QFile>
#include <QGuiApplication>
#include <QTemporaryDir>

#include "print/file_pdf.h"
#include "print/stampa_cronovia.h"

namespace cronovia {
namespace {

using namespace Qt::StringLiterals;

// Stages, stops and guide entries in turn, all with texts of their own.
DatiStampa RigheGenerate(int numero) {
    DatiStampa dati;
    dati.meta.localita = u"CAPO NORD"_s;
    dati.meta.nazione = u"NORVEGIA"_s;
    dati.meta.dataInizio = NumeroGiorno(740000);
    for (int i = 0; i < numero; ++i) {
        const GenereRiga genere = i % 3 == 2 ? GenereRiga::Guida : i % 3 == 1 ? GenereRiga::Sosta : GenereRiga::Marcia;
        RigaGriglia riga;
        riga[Colonna::Numero] = QString::number(i + 1);
        if (i % 3 == 2) {
            riga[Colonna::Tappa] = u"> Museo civico numero %1, con la raccolta di quadri e la torre"_s.arg(i);
            riga[Colonna::Sosta] = u"01:15"_s;
            riga[Colonna::Note] = i % 2 == 0 ? u"Interessante"_s : u"Gpl"_s;
        } else {
            riga[Colonna::Tappa] = (i % 3 == 0 ? u"LOCALITA %1"_s : u"a: Localita %1"_s).arg(i);
            riga[Colonna::NumeroStrada] = u"SS%1/A%2/B%1"_s.arg(i % 700).arg(i % 90);
            riga[Colonna::KmProgressivi] = QString::number(i * 7);
            riga[Colonna::Tempo] = u"01:%1"_s.arg(i % 60);
            riga[Colonna::Data] = u"05/06/2027"_s;
            riga[Colonna::Ora] = u"12:%1"_s.arg(i % 60);
            riga[Colonna::LimiteRitorno] = u">15/07-11:%1"_s.arg(i % 60);
        }
        dati.righe.push_back({genere, false, riga});
    }
    return dati;
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
    const DatiStampa dati = RigheGenerate(static_cast<int>(state.range(0)));
    Progress progress;
    for (auto _ : state) benchmark::DoNotOptimize(StampaCronovia(dati, {{2027, 1, 1}, u"Cronovia"_s}, progress));
}
BENCHMARK(Modello)->Arg(1'000)->Unit(benchmark::kMillisecond);

// From the rows to the closed file; the counter is what painting added to the memory that the model takes.
void FilePdf(benchmark::State& state) {
    const QTemporaryDir cartella;
    const DatiStampa dati = RigheGenerate(static_cast<int>(state.range(0)));
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
}
BENCHMARK(FilePdf)->Arg(1'000)->Arg(10'000)->Arg(40'000)->Unit(benchmark::kMillisecond);

}  // namespace
}  // namespace cronovia

int main(int argc, char* argv[]) {
    qputenv("QT_QPA_PLATFORM", "offscreen");
    const QGuiApplication application(argc, argv);
    benchmark::Initialize(&argc, argv);
    benchmark::RunSpecifiedBenchmarks();
    return 0;
}
