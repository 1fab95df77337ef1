// SPDX-License-Identifier: GPL-3.0-or-later
// How long places are looked up, which memory they take, and how fast the map of a long journey is painted and moved.
#include <benchmark/benchmark.h>

#include <QApplication>
#include <QFile>
#include <QKeyEvent>
#include <QTemporaryDir>
#include <array>

#include "app/sessione.h"
#include "exchange/iei/importa_mete.h"
#include "itinerary/posizioni.h"
#include "schermo_di_prova.h"
#include "ui/mappa/vista_mappa.h"

namespace cronovia {
namespace {

using namespace Qt::StringLiterals;

const QString kFileLuoghi = QStringLiteral(CRONOVIA_PLACES "/luoghi.dat");

// Kilobytes in use; 0 where the system does not tell.
double MemoriaInUso() {
    QFile stato(u"/proc/self/status"_s);
    if (!stato.open(QIODevice::ReadOnly)) return 0;
    for (const QByteArray& riga : stato.readAll().split('\n')) {
        if (riga.startsWith("VmRSS:")) return riga.mid(6).simplified().split(' ').first().toDouble();
    }
    return 0;
}

// Of a gazetteer that was not opened yet; the counter is what it took of the memory.
void PrimoUso(benchmark::State& state) {
    double cresciuta = 0;
    for (auto _ : state) {
        const double prima = MemoriaInUso();
        Gazzettino gazzettino(kFileLuoghi);
        benchmark::DoNotOptimize(gazzettino.Chiamati(u"COPENAGHEN"));
        cresciuta = MemoriaInUso() - prima;
    }
    state.counters["kB"] = cresciuta;
}
BENCHMARK(PrimoUso)->Unit(benchmark::kMillisecond);

// Nearly all pages of the file are touched then.
void TuttiGliInizi(benchmark::State& state) {
    const double prima = MemoriaInUso();
    Gazzettino gazzettino(kFileLuoghi);
    for (auto _ : state) {
        for (char16_t a = u'a'; a <= u'z'; ++a) {
            for (char16_t b = u'a'; b <= u'z'; ++b) {
                const std::array inizio = {a, b};
                benchmark::DoNotOptimize(gazzettino.CheIniziano(QStringView(inizio), 8, {}));
            }
        }
    }
    state.counters["kB"] = MemoriaInUso() - prima;
}
BENCHMARK(TuttiGliInizi)->Unit(benchmark::kMillisecond);

void Cerca(benchmark::State& state) {
    Gazzettino gazzettino(kFileLuoghi);
    for (auto _ : state) {
        for (const QStringView nome : {u"VERONA", u"borg", u"SANT'AGATA DI MILITELLO", u"NORDKAPP", u"xqwyz"}) {
            benchmark::DoNotOptimize(gazzettino.Chiamati(nome));
        }
    }
    state.SetItemsProcessed(state.iterations() * 5);
}
BENCHMARK(Cerca)->Unit(benchmark::kMicrosecond);

// While a name is typed; two letters have the most names to choose from.
void Proposte(benchmark::State& state) {
    Gazzettino gazzettino(kFileLuoghi);
    const QString inizio = QString(u"saint"_s).left(state.range(0));
    for (auto _ : state) benchmark::DoNotOptimize(gazzettino.CheIniziano(inizio, 8, {u"FR"_s}));
}
BENCHMARK(Proposte)->Arg(2)->Arg(3)->Arg(5)->Unit(benchmark::kMicrosecond);

void PiuVicino(benchmark::State& state) {
    Gazzettino gazzettino(kFileLuoghi);
    for (auto _ : state) benchmark::DoNotOptimize(gazzettino.PiuVicino({45.44, 10.99}, 15));
}
BENCHMARK(PiuVicino)->Unit(benchmark::kMicrosecond);

// Which places the 148 stages of the long example are.
void SceltaPerUnViaggio(benchmark::State& state) {
    const QTemporaryDir cartella;
    Sessione sessione(cartella.path());
    Progress progress;
    ImportaMete({sessione.Archivio(), QStringLiteral(CRONOVIA_EXAMPLES "/capo-nord.iei"), {}}, progress);
    const MetaAperta aperta = sessione.ApriMeta(u"1"_s);
    Gazzettino gazzettino(kFileLuoghi);
    for (auto _ : state) {
        benchmark::DoNotOptimize(PosizioniDelViaggio(PosizioniConfermate(sessione.Archivio()), gazzettino, aperta.tappe,
                                                     aperta.meta.nazione));
    }
}
BENCHMARK(SceltaPerUnViaggio)->Unit(benchmark::kMillisecond);

// A way that goes up and down Europe, with a night at each tenth place.
MappaViaggio MappaGenerata(int luoghi) {
    MappaViaggio mappa;
    for (int i = 0; i < luoghi; ++i) {
        const int colonna = i / 100;
        const int riga = colonna % 2 == 0 ? i % 100 : 99 - i % 100;
        const Posizione dove{37 + riga * 0.33, -8 + colonna * 38.0 / (1 + luoghi / 100.0)};
        mappa.luoghi.push_back({i + 1, u"LOCALITÀ %1"_s.arg(i), Proietta(dove), FontePosizione::Repertorio, i % 3 == 0,
                                i % 10 == 0, i / 10});
        if (i > 0)
            mappa.tratte.push_back({i + 1, i / 10, i % 97 == 0, mappa.luoghi[static_cast<std::size_t>(i) - 1].dove,
                                    mappa.luoghi.back().dove});
    }
    return mappa;
}

void Prepara(VistaMappa& vista, int luoghi) {
    vista.MostraCoste(LeggiCoste(QStringLiteral(CRONOVIA_PLACES "/coste.dat")));
    vista.resize(900, 700);
    vista.Mostra(MappaGenerata(luoghi), true);
    vista.show();
    QApplication::processEvents();
}

// Painted anew, as after each turn of the wheel.
void Ridipinta(benchmark::State& state) {
    VistaMappa vista;
    Prepara(vista, static_cast<int>(state.range(0)));
    double quanto = 1.01;
    for (auto _ : state) {
        vista.Ingrandisci(quanto);
        vista.repaint();
        quanto = 1 / quanto;
    }
}
BENCHMARK(Ridipinta)->Arg(150)->Arg(10'000)->Unit(benchmark::kMillisecond);

// Moved by keys, back and forth: a frame of sixteen milliseconds.
void Spostata(benchmark::State& state) {
    VistaMappa vista;
    Prepara(vista, static_cast<int>(state.range(0)));
    int passo = 0;
    for (auto _ : state) {
        const int tasto = ++passo % 12 < 6 ? Qt::Key_Left : Qt::Key_Right;
        QKeyEvent evento(QEvent::KeyPress, tasto, Qt::NoModifier);
        QApplication::sendEvent(&vista, &evento);
        vista.repaint();
    }
}
BENCHMARK(Spostata)->Arg(150)->Arg(10'000)->Unit(benchmark::kMillisecond);

}  // namespace
}  // namespace cronovia

int main(int argc, char* argv[]) { return cronovia::MisuraSulloSchermo(argc, argv); }
