// SPDX-License-Identifier: GPL-3.0-or-later
// How long the guide screen takes to come up, and a save on it, with 1,000 localities and 100,000 entries in the guide:
// once with all entries on the way of the trip, once with most of them elsewhere.
#include <benchmark/benchmark.h>

#include <QApplication>
#include <QDateTime>
#include <QPushButton>
#include <QTemporaryDir>
#include <array>
#include <vector>

#include "itinerary/elenco_guida.h"
#include "itinerary/itinerari.h"
#include "schermo_di_prova.h"
#include "trips/mete.h"
#include "ui/form_mete.h"
#include "ui/stampa/stampanti.h"

namespace cronovia {
namespace {

using namespace Qt::StringLiterals;

constexpr int kLocalita = 1'000;
constexpr int kVoci = 100'000;

QString Nome(int i) { return (i % 10 == 0 ? u"SANT'ANNA %1"_s : u"LOCALITA %1"_s).arg(i); }

// A trip through so many localities, and a guide with `perLocalita` entries for each of all and the rest elsewhere.
void Riempi(const QString& cartella, int perLocalita, int diMeta = kLocalita) {
    Sessione sessione(cartella);
    Progress progress;
    const QString codice = sessione.NuovaMeta(u"PROVA"_s, u"ITALIA"_s, QDateTime({2027, 6, 5}, {9, 0}));
    std::vector<Tappa> tappe(static_cast<std::size_t>(diMeta));
    for (int i = 0; i < diMeta; ++i) tappe[static_cast<std::size_t>(i)].localita = Nome(i);
    MemorizzaTappeItinerario(sessione.Archivio(), codice, tappe, {}, progress);
    Transaction transaction(sessione.Archivio());
    for (int i = 0; i < kVoci; ++i) {
        const bool sullaVia = i < perLocalita * kLocalita;
        const QString localita = sullaVia ? Nome(i % kLocalita) : u"ALTROVE %1"_s.arg(i / 8);
        const std::array<QString, guida::kCampi> valori = {
            localita, u"0%1"_s.arg(1 + i % 9), u"Museo civico, sala %1"_s.arg(i * 7919 % kVoci), u"00:15"_s, u"0"_s};
        sessione.Archivio().Insert(Table::GuidaCitta, valori);
    }
    transaction.Commit();
}

void Elenco(benchmark::State& state) {
    const QTemporaryDir cartella;
    Riempi(cartella.path(), static_cast<int>(state.range(0)), static_cast<int>(state.range(1)));
    Archive archive = Archive::Open(cartella.path());
    for (auto _ : state) benchmark::DoNotOptimize(ElencoDellaGuida(archive, u"000001"_s));
}
BENCHMARK(Elenco)->Args({100, kLocalita})->Args({100, 100})->Args({3, kLocalita})->Unit(benchmark::kMillisecond);

void Premi(QWidget& finestra, const QString& nome) {
    finestra.findChild<QPushButton*>(nome)->click();
    finestra.repaint();
}

// From the click until the grid is painted.
void Schermo(benchmark::State& state) {
    const QTemporaryDir cartella;
    Riempi(cartella.path(), static_cast<int>(state.range(0)));
    FormMete finestra(cartella.path(), &QDateTime::currentDateTime, StampantiDelSistema());
    finestra.show();
    for (auto _ : state) {
        Premi(finestra, u"cmdGuidaCitta"_s);
        state.PauseTiming();
        Premi(finestra, u"cmdFineInserimento"_s);
        state.ResumeTiming();
    }
}
BENCHMARK(Schermo)->Arg(100)->Arg(3)->Unit(benchmark::kMillisecond);

}  // namespace
}  // namespace cronovia

int main(int argc, char* argv[]) { return cronovia::MisuraSulloSchermo(argc, argv); }
