// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/archivio/frm_copie.h"

#include <QDialog>
#include <QDialogButtonBox>
#include <QHeaderView>
#include <QPushButton>
#include <QTableWidget>
#include <QVBoxLayout>

#include "calendar/testo.h"
#include "ui/comuni/spazi.h"
#include "ui/comuni/testo_mostrato.h"

namespace cronovia {

using namespace Qt::StringLiterals;

namespace {

QStringList CelleDellaCopia(const CopiaInElenco& copia) {
    const auto numero = [](const std::optional<std::int64_t>& righe) { return righe ? Raggruppa(*righe) : u"?"_s; };
    return {copia.copia.when.toString(u"dd/MM/yyyy HH:mm"_s), numero(copia.mete), numero(copia.tappe),
            Raggruppa((copia.byte + 1023) / 1024) + u" KB"_s, copia.Perche()};
}

QTableWidget* TabellaCopie(const std::vector<CopiaInElenco>& copie) {
    const QStringList intestazioni = {u"Data"_s, u"Mète"_s, u"Tappe"_s, u"Dimensione"_s, u"Fatta"_s};
    auto* tabella = new QTableWidget(static_cast<int>(copie.size()), static_cast<int>(intestazioni.size()));
    tabella->setObjectName(u"grdCopie"_s);
    tabella->setAccessibleName(u"Copie dell'archivio"_s);
    tabella->setHorizontalHeaderLabels(intestazioni);
    tabella->setSelectionBehavior(QAbstractItemView::SelectRows);
    tabella->setSelectionMode(QAbstractItemView::SingleSelection);
    tabella->setEditTriggers(QAbstractItemView::NoEditTriggers);
    tabella->verticalHeader()->hide();
    for (int riga = 0; riga < tabella->rowCount(); ++riga) {
        const QStringList celle = CelleDellaCopia(copie[static_cast<std::size_t>(riga)]);
        for (int colonna = 0; colonna < celle.size(); ++colonna) {
            auto* cella = new QTableWidgetItem(celle.at(colonna));
            if (colonna >= 1 && colonna <= 3) cella->setTextAlignment(Qt::AlignRight | Qt::AlignVCenter);
            tabella->setItem(riga, colonna, cella);
        }
    }
    tabella->resizeColumnsToContents();
    tabella->horizontalHeader()->setStretchLastSection(true);
    tabella->selectRow(0);
    return tabella;
}

}  // namespace

std::optional<QString> ChiediCopia(QWidget& finestra, const std::vector<CopiaInElenco>& copie) {
    QDialog dialogo(&finestra);
    MostraTitolo(dialogo, u"Ripristina una copia"_s);
    auto* layout = Spaziato(new QVBoxLayout(&dialogo), Spazi::Dialogo);
    QTableWidget* tabella = TabellaCopie(copie);
    auto* pulsanti = new QDialogButtonBox(QDialogButtonBox::Ok | QDialogButtonBox::Cancel);
    pulsanti->button(QDialogButtonBox::Ok)->setText(u"Continua…"_s);
    layout->addWidget(NuovaScritta(u"Quale copia torna al posto dell'archivio di adesso?"_s));
    layout->addWidget(tabella);
    layout->addWidget(pulsanti);
    QObject::connect(pulsanti, &QDialogButtonBox::accepted, &dialogo, &QDialog::accept);
    QObject::connect(pulsanti, &QDialogButtonBox::rejected, &dialogo, &QDialog::reject);
    QObject::connect(tabella, &QTableWidget::cellDoubleClicked, &dialogo, &QDialog::accept);
    dialogo.resize(640, 320);
    if (dialogo.exec() != QDialog::Accepted || tabella->currentRow() < 0) return std::nullopt;
    return copie.at(static_cast<std::size_t>(tabella->currentRow())).copia.path;
}

}  // namespace cronovia
