// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/viaggio/frm_confronto.h"

#include <QDialog>
#include <QDialogButtonBox>
#include <QHeaderView>
#include <QPushButton>
#include <QTableWidget>
#include <QVBoxLayout>

#include "ui/comuni/spazi.h"
#include "ui/comuni/testo_mostrato.h"

namespace cronovia {

using namespace Qt::StringLiterals;

namespace {

QTableWidget* TabellaAlternative(const std::vector<Alternativa>& alternative) {
    const QStringList intestazioni = IntestazioniAlternative();
    auto* tabella = new QTableWidget(static_cast<int>(alternative.size()), static_cast<int>(intestazioni.size()));
    tabella->setObjectName(u"grdConfronto"_s);
    tabella->setAccessibleName(u"Scelte a confronto"_s);
    tabella->setHorizontalHeaderLabels(intestazioni);
    tabella->setSelectionBehavior(QAbstractItemView::SelectRows);
    tabella->setSelectionMode(QAbstractItemView::SingleSelection);
    tabella->setEditTriggers(QAbstractItemView::NoEditTriggers);
    tabella->setTabKeyNavigation(false);
    tabella->verticalHeader()->hide();
    int attuale = 0;
    for (int riga = 0; riga < tabella->rowCount(); ++riga) {
        const Alternativa& alternativa = alternative[static_cast<std::size_t>(riga)];
        const QStringList celle = TestiAlternativa(alternativa);
        if (alternativa.attuale) attuale = riga;
        for (int colonna = 0; colonna < celle.size(); ++colonna) {
            auto* cella = new QTableWidgetItem(celle.at(colonna));
            QFont carattere = cella->font();
            carattere.setBold(alternativa.attuale);
            cella->setFont(carattere);
            if (colonna > 0) cella->setTextAlignment(Qt::AlignRight | Qt::AlignVCenter);  // figures all
            tabella->setItem(riga, colonna, cella);
        }
    }
    tabella->resizeColumnsToContents();
    tabella->horizontalHeader()->setStretchLastSection(true);
    tabella->selectRow(attuale);
    return tabella;
}

}  // namespace

std::optional<std::size_t> ScegliAlternativa(QWidget& finestra, const std::vector<Alternativa>& alternative) {
    QDialog dialogo(&finestra);
    MostraTitolo(dialogo, u"Confronta"_s);
    auto* layout = Spaziato(new QVBoxLayout(&dialogo), Spazi::Dialogo);
    QTableWidget* tabella = TabellaAlternative(alternative);
    auto* pulsanti = new QDialogButtonBox(QDialogButtonBox::Ok | QDialogButtonBox::Cancel);
    pulsanti->button(QDialogButtonBox::Ok)->setText(u"Prendi questa"_s);
    pulsanti->button(QDialogButtonBox::Ok)->setDefault(true);
    pulsanti->button(QDialogButtonBox::Cancel)->setText(u"Annulla"_s);
    layout->addWidget(NuovaScritta(
        u"Prendi con un clic (o con Invio) le soste e i giorni che preferisci. In grassetto come è ora."_s));
    layout->addWidget(tabella);
    layout->addWidget(pulsanti);
    QObject::connect(pulsanti, &QDialogButtonBox::accepted, &dialogo, &QDialog::accept);
    QObject::connect(pulsanti, &QDialogButtonBox::rejected, &dialogo, &QDialog::reject);
    QObject::connect(tabella, &QTableWidget::cellClicked, &dialogo, &QDialog::accept);
    dialogo.resize(760, 480);
    tabella->setFocus();
    if (dialogo.exec() != QDialog::Accepted || tabella->currentRow() < 0) return std::nullopt;
    return static_cast<std::size_t>(tabella->currentRow());
}

}  // namespace cronovia
