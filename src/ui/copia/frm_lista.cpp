// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/copia/frm_lista.h"

#include <QHeaderView>
#include <QItemSelection>
#include <QVBoxLayout>
#include <array>
#include <numeric>
#include <span>

#include "ui/comuni/controlli.h"
#include "ui/comuni/spazi.h"
#include "ui/comuni/testo_mostrato.h"

namespace cronovia {

using namespace Qt::StringLiterals;

namespace {

// Relative widths of the columns.
constexpr std::array<int, 3> kLarghezzeMete = {500, 5000, 2200};
constexpr std::array<int, 6> kLarghezzeTappe = {420, 2300, 1000, 500, 600, 800};

}  // namespace

FrmLista::FrmLista(QWidget* parent)
    : QGroupBox(u"Selezionare la località di inizio e fine"_s, parent),
      lblLista_(NuovaScritta()),
      mfgCopia_(new QTableView) {
    setObjectName(u"frmLista"_s);
    lblLista_->setObjectName(u"lblLista"_s);
    lblLista_->setWordWrap(true);
    mfgCopia_->setObjectName(u"mfgCopia"_s);
    mfgCopia_->setAccessibleName(u"Mète e tappe da copiare"_s);
    mfgCopia_->setModel(&modello_);
    DisponiRighe(*mfgCopia_);
    mfgCopia_->horizontalHeader()->setStretchLastSection(true);
    // What is highlighted is the stretch; a click only says where it goes on.
    mfgCopia_->setSelectionMode(QTableView::NoSelection);
    auto* layout = Spaziato(new QVBoxLayout(this), Spazi::Riquadro);
    layout->addWidget(lblLista_);
    layout->addWidget(mfgCopia_, 1);
    connect(mfgCopia_, &QTableView::clicked, this, [this](const QModelIndex& i) { Q_EMIT Cliccata(i.row() + 1); });
    connect(mfgCopia_->selectionModel(), &QItemSelectionModel::currentChanged, this, [this](const QModelIndex& i) {
        if (!mostrando_ && i.isValid()) Q_EMIT Corrente(i.row() + 1);
    });
}

void FrmLista::Mostra(const TavoloCopia& copia) {
    mostrando_ = true;
    if (copia.Tappe()) {
        MostraScritta(
            *lblLista_,
            u"Seleziona la tappa iniziale e clicca su ASSEGNA/Tappa iniziale, quindi seleziona la tappa finale e "
            "clicca su ASSEGNA/Tappa finale. ATTENZIONE: Per tappa d'inizio non selezionare quella comune alla "
            "precedente per non avere un doppio chilometraggio!!!"_s);
        modello_.Mostra(*copia.Tappe());
    } else {
        MostraScritta(*lblLista_, u"Seleziona la mèta dalla quale copiare una parte o tutto l'itinerario"_s);
        modello_.Mostra(copia.Mete());
    }
    AdattaLarghezze();
    QItemSelectionModel& selezione = *mfgCopia_->selectionModel();
    selezione.setCurrentIndex(modello_.index(copia.RigaCopia() - 1, 0), QItemSelectionModel::NoUpdate);
    const Tratto tratto = copia.Tappe() ? copia.Evidenziato() : Tratto{copia.RigaCopia(), copia.RigaCopia()};
    selezione.select(
        QItemSelection(modello_.index(tratto.da - 1, 0), modello_.index(tratto.a - 1, modello_.columnCount() - 1)),
        QItemSelectionModel::ClearAndSelect);
    mostrando_ = false;
}

void FrmLista::resizeEvent(QResizeEvent* event) {
    QGroupBox::resizeEvent(event);
    AdattaLarghezze();
}

void FrmLista::AdattaLarghezze() {
    const std::span<const int> larghezze = modello_.columnCount() == static_cast<int>(kLarghezzeMete.size())
                                               ? std::span<const int>(kLarghezzeMete)
                                               : std::span<const int>(kLarghezzeTappe);
    const int totale = std::accumulate(larghezze.begin(), larghezze.end(), 0);
    for (int i = 0; i < modello_.columnCount(); ++i) {
        mfgCopia_->setColumnWidth(i, larghezze[static_cast<std::size_t>(i)] * mfgCopia_->viewport()->width() / totale);
    }
}

}  // namespace cronovia
