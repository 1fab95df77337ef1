// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/guida/frm_soste.h"

#include <QDialog>
#include <QDialogButtonBox>
#include <QFileDialog>
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

QString CellaSegno(const SostaProposta& sosta) {
    const bool nuova = sosta.segno == SegnoSosta::Nuova;
    return nuova && sosta.senzaNote ? u"nuova, senza le note"_s : Testo(sosta.segno);
}

// Rows that are left out are grey.
QTableWidget* TabellaSoste(const std::vector<SostaProposta>& soste) {
    const QStringList intestazioni = {u"Località"_s, u"Descrizione"_s, u"Tipo"_s, u"Esito"_s};
    auto* tabella = new QTableWidget(static_cast<int>(soste.size()), static_cast<int>(intestazioni.size()));
    tabella->setObjectName(u"grdSoste"_s);
    tabella->setAccessibleName(u"Soste trovate nel file"_s);
    tabella->setHorizontalHeaderLabels(intestazioni);
    tabella->setSelectionBehavior(QAbstractItemView::SelectRows);
    tabella->setEditTriggers(QAbstractItemView::NoEditTriggers);
    tabella->verticalHeader()->hide();
    for (int riga = 0; riga < tabella->rowCount(); ++riga) {
        const SostaProposta& sosta = soste[static_cast<std::size_t>(riga)];
        const QStringList celle = {sosta.localita, sosta.descrizione, sosta.tipo, CellaSegno(sosta)};
        for (int colonna = 0; colonna < celle.size(); ++colonna) {
            auto* cella = new QTableWidgetItem(Visibile(celle.at(colonna)));
            cella->setToolTip(TestoPiano(celle.at(colonna)));
            if (sosta.segno != SegnoSosta::Nuova) {
                cella->setForeground(tabella->palette().brush(QPalette::Disabled, QPalette::Text));
            }
            tabella->setItem(riga, colonna, cella);
        }
    }
    constexpr int kLarghezzaDescrizione = 340;
    tabella->resizeColumnsToContents();
    tabella->setColumnWidth(1, kLarghezzaDescrizione);
    tabella->horizontalHeader()->setStretchLastSection(true);
    return tabella;
}

}  // namespace

QString ScegliFileSoste(QWidget& finestra) {
    return QFileDialog::getOpenFileName(&finestra, u"Importa soste nella guida"_s, {},
                                        u"Elenchi di soste (*.gpx *.kml *.kmz *.geojson *.json *.csv *.txt *.GPX *.KML "
                                        "*.KMZ *.CSV *.TXT);;Tutti i file (*)"_s);
}

bool ConfermaSoste(QWidget& finestra, const std::vector<SostaProposta>& soste) {
    QDialog dialogo(&finestra);
    MostraTitolo(dialogo, u"Importa soste nella guida"_s);
    auto* layout = Spaziato(new QVBoxLayout(&dialogo), Spazi::Dialogo);
    auto* pulsanti = new QDialogButtonBox(QDialogButtonBox::Ok | QDialogButtonBox::Cancel);
    QPushButton* aggiunge = pulsanti->button(QDialogButtonBox::Ok);
    aggiunge->setText(u"&Aggiunge alla guida"_s);
    aggiunge->setEnabled(SosteNuove(soste) > 0);
    pulsanti->button(QDialogButtonBox::Cancel)->setText(u"&Rinuncia"_s);
    layout->addWidget(TabellaSoste(soste));
    layout->addWidget(NuovaScritta(ConteggioSoste(soste, false)));
    layout->addWidget(pulsanti);
    QObject::connect(pulsanti, &QDialogButtonBox::accepted, &dialogo, &QDialog::accept);
    QObject::connect(pulsanti, &QDialogButtonBox::rejected, &dialogo, &QDialog::reject);
    dialogo.resize(820, 440);
    return dialogo.exec() == QDialog::Accepted;
}

}  // namespace cronovia
