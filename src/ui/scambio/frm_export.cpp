// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/scambio/frm_export.h"

#include <QGridLayout>
#include <QHeaderView>
#include <QKeyEvent>
#include <QVBoxLayout>

#include "ui/comuni/controlli.h"
#include "ui/comuni/spazi.h"
#include "ui/comuni/testo_mostrato.h"

namespace cronovia {

using namespace Qt::StringLiterals;

FrmExport::FrmExport(Azioni& azioni) : azioni_(azioni) {
    setObjectName(u"frmExport"_s);
    setFrameShape(QFrame::StyledPanel);
    auto* layout = Spaziato(new QGridLayout(this), Spazi::Pagina);
    QLabel* titolo = NuovaScritta(u"Export/Import mete (compresi percorsi e guide città)"_s);
    QFont grassetto = titolo->font();
    grassetto.setBold(true);
    titolo->setFont(grassetto);
    QLabel* istruzioni = NuovaScritta(u"(Clicca sulla meta che vuoi trasferire da/a Export)"_s);
    istruzioni->setObjectName(u"lblExIstruzioni"_s);
    istruzioni->setAlignment(Qt::AlignRight | Qt::AlignVCenter);
    layout->addWidget(titolo, 0, 0);
    layout->addWidget(istruzioni, 0, 2);
    for (int i = 0; i < 2; ++i) {
        const auto indice = static_cast<std::size_t>(i);
        mfgImExp_[indice] = NuovaGriglia(i);
        etichette_[indice] = NuovaEtichetta({}, *mfgImExp_[indice]);
        etichette_[indice]->setObjectName(i == 0 ? u"lblExLista"_s : u"lblExSelez"_s);
        layout->addWidget(etichette_[indice], 1, 2 * i);
        layout->addWidget(mfgImExp_[indice], 2, 2 * i);
        layout->setColumnStretch(2 * i, 1);
    }
    layout->addWidget(CreaPulsanti(azioni), 2, 1);
    Mostra(TavoloScambio(ModoScambio::Export, {}, {}), false);
    hide();
}

QTableView* FrmExport::NuovaGriglia(int indice) {
    auto* griglia = new QTableView;
    griglia->setObjectName(NomeDiSerie(u"mfgImExp"_s, indice));
    griglia->setModel(&modelli_[static_cast<std::size_t>(indice)]);
    DisponiRighe(*griglia);
    griglia->setSelectionMode(QAbstractItemView::SingleSelection);
    griglia->setCursor(Qt::PointingHandCursor);
    griglia->horizontalHeader()->setSectionResizeMode(ModelloMete::Meta, QHeaderView::Stretch);
    const QFontMetrics misure = griglia->fontMetrics();
    griglia->setColumnWidth(ModelloMete::Num, misure.horizontalAdvance(u"999999"_s) + 8);
    griglia->setColumnWidth(ModelloMete::Nazione, misure.horizontalAdvance(QString(14, u'M')));
    griglia->setColumnWidth(ModelloMete::RecordMeta, misure.horizontalAdvance(u"000000"_s) + 24);
    griglia->installEventFilter(this);
    connect(griglia, &QTableView::clicked, this,
            [this, indice](const QModelIndex& cella) { Q_EMIT Trasferisce(indice, cella.row()); });
    return griglia;
}

QWidget* FrmExport::CreaPulsanti(Azioni& azioni) {
    auto* colonna = new QWidget;
    auto* layout = Spaziato(new QVBoxLayout(colonna), Spazi::Riga);
    layout->addStretch();
    for (const Comando comando : {Comando::ScambiaTutteDaPrima, Comando::ScambiaTutteDaSeconda}) {
        QPushButton* pulsante = azioni.NuovoPulsante(comando);
        pulsante->setMinimumWidth(pulsante->fontMetrics().horizontalAdvance(u"<--- Tutte a sinistra [999999]"_s) + 24);
        layout->addWidget(pulsante);
    }
    layout->addSpacing(kStaccoGrande);
    layout->addWidget(azioni.NuovoPulsante(Comando::ImExp));
    layout->addWidget(azioni.NuovoPulsante(Comando::FineScambio));
    layout->addStretch();
    return colonna;
}

void FrmExport::Mostra(const TavoloScambio& tavolo, bool inCorso) {
    for (int i = 0; i < 2; ++i) {
        const auto indice = static_cast<std::size_t>(i);
        modelli_[indice].Mostra(tavolo.Mete(i));
        mfgImExp_[indice]->setEnabled(!inCorso);
        MostraScritta(*etichette_[indice], tavolo.Etichetta(i));
        mfgImExp_[indice]->setAccessibleName(tavolo.Etichetta(i));
    }
}

void FrmExport::FuocoSullaScelta(ModoScambio modo) {
    QTableView& griglia = *mfgImExp_[modo == ModoScambio::Export ? 0 : 1];
    griglia.setFocus();
    if (!griglia.currentIndex().isValid()) griglia.setCurrentIndex(griglia.model()->index(0, ModelloMete::Meta));
}

// Enter moves the current trip; on a button it presses that.
bool FrmExport::eventFilter(QObject* oggetto, QEvent* event) {
    const auto* tasto = event->type() == QEvent::KeyPress ? static_cast<QKeyEvent*>(event) : nullptr;
    if (tasto == nullptr || (tasto->key() != Qt::Key_Return && tasto->key() != Qt::Key_Enter)) {
        return QFrame::eventFilter(oggetto, event);
    }
    const int indice = oggetto == mfgImExp_[0] ? 0 : 1;
    const QModelIndex corrente = mfgImExp_[static_cast<std::size_t>(indice)]->currentIndex();
    if (corrente.isValid()) Q_EMIT Trasferisce(indice, corrente.row());
    return true;
}

void FrmExport::keyPressEvent(QKeyEvent* event) {
    if (event->key() == Qt::Key_Escape) {
        azioni_.Pulsante(Comando::FineScambio).click();
    } else {
        QFrame::keyPressEvent(event);
    }
}

}  // namespace cronovia
