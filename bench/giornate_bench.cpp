// SPDX-License-Identifier: GPL-3.0-or-later
// The days in the window: a repaint of the panel with 60 of them, and a stage that is entered while the schedule of
// 1,000 stages with their guide is computed as one goes, from the key to the painted rows, with the panel and without.
#include <benchmark/benchmark.h>

#include <QAction>
#include <QApplication>
#include <QDateTime>
#include <QDockWidget>
#include <QKeyEvent>
#include <QLineEdit>
#include <QListView>
#include <QPushButton>
#include <QScrollBar>
#include <QTemporaryDir>
#include <array>
#include <vector>

#include "itinerary/itinerari.h"
#include "schermo_di_prova.h"
#include "ui/form_mete.h"
#include "ui/stampa/stampanti.h"

namespace cronovia {
namespace {

using namespace Qt::StringLiterals;

constexpr int kVociPerLocalita = 3;

// A trip of that many stages on all kinds of road, with stops and a guide to each place.
void Riempi(const QString& cartella, int numero) {
    Sessione sessione(cartella);
    Progress progress;
    const QString codice = sessione.NuovaMeta(u"PROVA"_s, u"ITALIA"_s, QDateTime({2027, 6, 5}, {9, 0}));
    std::vector<Tappa> tappe(static_cast<std::size_t>(numero));
    Transaction transaction(sessione.Archivio());
    for (int i = 0; i < numero; ++i) {
        Tappa& tappa = tappe[static_cast<std::size_t>(i)];
        tappa.localita = u"LOCALITA %1"_s.arg(i);
        tappa.km = i == 0 ? 0 : 5 + i * 37 % 140;
        if (i > 0) tappa.tipo = static_cast<TipoStrada>(i % kTipiStrada);
        if (i % 3 == 0) tappa.sosta = {0, 1 + i % 4, 30};
        for (int voce = 0; voce < kVociPerLocalita; ++voce) {
            const std::array<QString, guida::kCampi> valori = {
                tappa.localita, u"0%1"_s.arg(1 + voce), u"Museo civico, sala %1"_s.arg(voce), u"00:45"_s, u"0"_s};
            sessione.Archivio().Insert(Table::GuidaCitta, valori);
        }
    }
    MemorizzaTappeItinerario(sessione.Archivio(), codice, tappe, {}, progress);
    transaction.Commit();
}

// The window on such a trip, with the panel or without.
class Finestra {
  public:
    Finestra(int tappe, bool pannello) {
        Riempi(cartella_.path(), tappe);
        form_ = std::make_unique<FormMete>(cartella_.path(), &QDateTime::currentDateTime, StampantiDelSistema());
        form_->show();
        form_->findChild<QDockWidget*>(u"pannelloGiornate"_s)->setVisible(pannello);
    }

    FormMete& Form() { return *form_; }
    template <typename Oggetto>
    Oggetto& Trova(const QString& nome) {
        return *form_->findChild<Oggetto*>(nome);
    }
    void Premi(const QString& nome) { Trova<QPushButton>(nome).click(); }
    void Dipingi() {
        QCoreApplication::processEvents();
        form_->repaint();
    }

  private:
    QTemporaryDir cartella_;
    std::unique_ptr<FormMete> form_;
};

void RidisegnoDelPannello(benchmark::State& state) {
    Finestra finestra(150, true);
    finestra.Premi(u"cmdCalcola"_s);
    auto& giornate = finestra.Trova<QListView>(u"giornate"_s);
    finestra.Form().resize(1280, 2400);  // all of them are seen
    finestra.Form().resizeDocks({&finestra.Trova<QDockWidget>(u"pannelloGiornate"_s)}, {1900}, Qt::Vertical);
    finestra.Dipingi();
    const int alta = giornate.visualRect(giornate.model()->index(0, 0)).height();
    for (auto _ : state) giornate.viewport()->repaint();
    state.counters["giorni"] = giornate.model()->rowCount();
    state.counters["visti"] = giornate.viewport()->height() / alta;
}
BENCHMARK(RidisegnoDelPannello)->Unit(benchmark::kMillisecond);

void TappaInserita(benchmark::State& state, bool dalVivo, bool pannello) {
    Finestra finestra(1'000, pannello);
    finestra.Premi(u"cmdItinerario"_s);
    finestra.Trova<QAction>(u"calcoloDalVivo"_s).setChecked(dalVivo);
    finestra.Dipingi();
    auto& tappa = finestra.Trova<QLineEdit>(u"txtTappa"_s);
    auto& km = finestra.Trova<QLineEdit>(u"txtKm"_s);
    int valore = 0;
    for (auto _ : state) {
        state.PauseTiming();
        km.setFocus();
        km.setText(QString::number(20 + ++valore % 50));
        finestra.Dipingi();
        state.ResumeTiming();
        QKeyEvent invio(QEvent::KeyPress, Qt::Key_Return, Qt::NoModifier);
        QApplication::sendEvent(&tappa, &invio);
        finestra.Form().repaint();
    }
    state.counters["giorni"] = finestra.Trova<QListView>(u"giornate"_s).model()->rowCount();
}
BENCHMARK_CAPTURE(TappaInserita, ferma, false, false)->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(TappaInserita, dal_vivo, true, false)->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(TappaInserita, dal_vivo_con_pannello, true, true)->Unit(benchmark::kMillisecond);

}  // namespace
}  // namespace cronovia

int main(int argc, char* argv[]) { return cronovia::MisuraSulloSchermo(argc, argv); }
