// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/stampa/frm_sel_stampa.h"

#include <QHBoxLayout>
#include <utility>

#include "ui/comuni/spazi.h"

namespace cronovia {

using namespace Qt::StringLiterals;

FrmSelStampa::FrmSelStampa(Azioni& azioni, Stampanti stampanti)
    : RiquadroSovrapposto(u"frmSelStampa"_s, u"Stampante:"_s),
      stampanti_(std::move(stampanti)),
      lstStampanti_(new QListWidget) {
    lstStampanti_->setObjectName(u"lstStampanti"_s);
    lstStampanti_->setAccessibleName(u"Stampanti"_s);
    lstStampanti_->setMinimumSize(260, 130);
    QPushButton* stampa = azioni.NuovoPulsante(Comando::AvviaStampa);
    QPushButton* rinuncia = azioni.NuovoPulsante(Comando::RinunciaStampante);
    Pulsanti(stampa, rinuncia);
    QVBoxLayout& layout = Contenuto();
    layout.addWidget(lstStampanti_);
    auto* riga = Spaziato(new QHBoxLayout, Spazi::Riga);
    riga->addWidget(stampa);
    riga->addWidget(rinuncia);
    layout.addLayout(riga);
    connect(lstStampanti_, &QListWidget::itemDoubleClicked, stampa, &QPushButton::click);
}

void FrmSelStampa::Prepara() {
    lstStampanti_->clear();
    lstStampanti_->addItems(stampanti_.nomi());
    const auto trovate = lstStampanti_->findItems(stampanti_.predefinita(), Qt::MatchExactly | Qt::MatchCaseSensitive);
    auto* filePdf = new QListWidgetItem(u"File PDF"_s, lstStampanti_);
    filePdf->setData(Qt::UserRole, true);
    lstStampanti_->setCurrentItem(trovate.value(0, lstStampanti_->item(0)));
}

QString FrmSelStampa::Scelta() const {
    const QListWidgetItem* voce = lstStampanti_->currentItem();
    return voce == nullptr ? QString() : voce->text();
}

bool FrmSelStampa::SceltoFilePdf() const {
    const QListWidgetItem* voce = lstStampanti_->currentItem();
    return voce != nullptr && voce->data(Qt::UserRole).toBool();
}

}  // namespace cronovia
