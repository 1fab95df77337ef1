// SPDX-License-Identifier: GPL-3.0-or-later
// Import of a large exchange file beside what the sqlite3 shell needs for the same rows.
#include <benchmark/benchmark.h>
#include <sys/resource.h>

#include <QDir>
#include <QFile>
#include <QProcess>
#include <QStandardPaths>
#include <QTemporaryDir>
#include <vector>

#include "calendar/testo.h"
#include "exchange/iei/importa_mete.h"
#include "exchange/iei/lettore_iei.h"

using namespace cronovia;
using namespace Qt::StringLiterals;

namespace {

constexpr int kTappePerMeta = 20;

std::vector<QByteArray> ValoriMeta(int meta) {
    return {Zero(meta, 6).toLatin1(),
            "Mèta " + QByteArray::number(meta),
            "Italia",
            "01062025",
            "0900",
            "75",
            "65",
            "50",
            "30",
            "0900",
            "1250",
            "0250",
            "2000",
            "0175",
            "2250",
            "15",
            "03",
            "01",
            "05",
            "0900",
            "1800",
            "0600",
            "0000",
            "3"};
}

std::vector<QByteArray> ValoriTappa(int meta, int tappa) {
    return {Zero(meta, 6).toLatin1(),
            Zero(tappa, 4).toLatin1(),
            "Localita " + QByteArray::number((meta * 7 + tappa * 13) % 9000),
            QByteArray::number(10 + tappa * 7),
            "A" + QByteArray::number(1 + tappa) + " - SS" + QByteArray::number(meta % 700),
            "A",
            "00:01:30",
            " ",
            "0"};
}

// Calls `riga` with the values of every row of the section, after the names of the fields.
template <typename Visita>
void PerOgniRiga(Table tabella, int mete, Visita riga) {
    for (int meta = 1; meta <= mete; ++meta) {
        if (tabella == Table::MeteVandro) riga(ValoriMeta(meta));
        for (int tappa = 1; tabella == Table::Itinerari && tappa <= kTappePerMeta; ++tappa) {
            riga(ValoriTappa(meta, tappa));
        }
    }
}

void ScriviRiga(QFile& file, const std::vector<QByteArray>& valori, char separatore, const char* fine) {
    QByteArray riga;
    for (const QByteArray& valore : valori) riga += valore + separatore;
    if (*fine == '\n') riga.chop(1);
    file.write(riga + fine);
}

void ScriviFileDiScambio(const QString& path, int mete) {
    QFile file(path);
    if (!file.open(QIODevice::WriteOnly)) std::abort();
    for (const Table tabella : {Table::MeteVandro, Table::Itinerari}) {
        const char separatore = SeparatoreSezione(tabella);
        std::vector<QByteArray> nomi;
        for (const FieldDefinition& campo : Definition(tabella).fields) nomi.push_back(campo.name.toLatin1());
        ScriviRiga(file, nomi, separatore, "\r\n");
        PerOgniRiga(tabella, mete, [&](const auto& valori) { ScriviRiga(file, valori, separatore, "\r\n"); });
    }
}

void ScriviCsv(const QString& path, Table tabella, int mete) {
    QFile file(path);
    if (!file.open(QIODevice::WriteOnly)) std::abort();
    PerOgniRiga(tabella, mete, [&](const auto& valori) { ScriviRiga(file, valori, ',', "\n"); });
}

double MemoriaDiPuntaMB() {
    rusage uso{};
    getrusage(RUSAGE_SELF, &uso);
    return static_cast<double>(uso.ru_maxrss) / 1024;
}

double Secondi(const timeval& tempo) {
    return static_cast<double>(tempo.tv_sec) + static_cast<double>(tempo.tv_usec) / 1e6;
}

// Of this process (RUSAGE_SELF) or of those it started (RUSAGE_CHILDREN); tells more than the clock on a busy machine.
double SecondiDiCpu(int chi) {
    rusage uso{};
    getrusage(chi, &uso);
    return Secondi(uso.ru_utime) + Secondi(uso.ru_stime);
}

void Importa(benchmark::State& state) {
    const QTemporaryDir cartella;
    const QString path = cartella.filePath(u"mete.iei"_s);
    const auto mete = static_cast<int>(state.range(0));
    ScriviFileDiScambio(path, mete);
    int giro = 0;
    double cpu = 0;
    Progress progress;
    for (auto _ : state) {
        state.PauseTiming();
        Archive archive = Archive::Open(cartella.filePath(QString::number(++giro)));
        const double prima = SecondiDiCpu(RUSAGE_SELF);
        state.ResumeTiming();
        const EsitoImport esito = ImportaMete({archive, path, {}}, progress);
        if (esito.tappeInserite != qint64{mete} * kTappePerMeta) state.SkipWithError("rows are missing");
        cpu += SecondiDiCpu(RUSAGE_SELF) - prima;
    }
    state.SetItemsProcessed(state.iterations() * mete * (kTappePerMeta + 1));
    state.counters["cpu_s"] = benchmark::Counter(cpu, benchmark::Counter::kAvgIterations);
    state.counters["peak_MB"] = MemoriaDiPuntaMB();
}

// The same rows as CSV into the same tables and indexes.
void SqliteShell(benchmark::State& state) {
    if (QStandardPaths::findExecutable(u"sqlite3"_s).isEmpty()) return state.SkipWithError("no sqlite3 shell");
    const QTemporaryDir cartella;
    const auto mete = static_cast<int>(state.range(0));
    ScriviCsv(cartella.filePath(u"mete.csv"_s), Table::MeteVandro, mete);
    ScriviCsv(cartella.filePath(u"tappe.csv"_s), Table::Itinerari, mete);
    int giro = 0;
    const double prima = SecondiDiCpu(RUSAGE_CHILDREN);
    for (auto _ : state) {
        state.PauseTiming();
        const QString archivio = cartella.filePath(QString::number(++giro));
        { const Archive nuovo = Archive::Open(archivio); }
        state.ResumeTiming();
        const int codice =
            QProcess::execute(u"sqlite3"_s, {Archive::FilePath(archivio),
                                             u".import --csv %1 MeteVandro"_s.arg(cartella.filePath(u"mete.csv"_s)),
                                             u".import --csv %1 Itinerari"_s.arg(cartella.filePath(u"tappe.csv"_s))});
        if (codice != 0) state.SkipWithError("the shell failed");
    }
    state.counters["cpu_s"] =
        benchmark::Counter(SecondiDiCpu(RUSAGE_CHILDREN) - prima, benchmark::Counter::kAvgIterations);
    state.SetItemsProcessed(state.iterations() * mete * (kTappePerMeta + 1));
}

BENCHMARK(Importa)->Arg(2'000)->Arg(20'000)->Unit(benchmark::kMillisecond)->UseRealTime();
BENCHMARK(SqliteShell)->Arg(2'000)->Arg(20'000)->Unit(benchmark::kMillisecond)->UseRealTime();

}  // namespace
