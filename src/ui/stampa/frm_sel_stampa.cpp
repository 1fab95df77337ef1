#include "ui/stampa/frm_sel_stampa.h"

#include <QHBoxLayout>

#include "ui/comuni/controlli.h"
#include "ui/stampa/stampanti.h"

namespace cronovia {

using namespace Qt::StringLiterals;

FrmSelStampa::FrmSelStampa() : RiquadroSovrapposto(u"frmSelStampa"_s, u"Stampante:"_s), lstStampanti_(new QListWidget) {
    lstStampanti_->setObjectName(u"lstStampanti"_s);
    lstStampanti_->setAccessibleName(u"Stampanti"_s);
    lstStampanti_->setMinimumSize(260, 130);
    QPushButton* stampa = NuovoPulsante(u"cmdSelStampante_0"_s, u"&Stampa"_s, u"Avvio della stampa"_s);
    QPushButton* rinuncia = NuovoPulsante(u"cmdSelStampante_1"_s, u"&Rinuncia"_s, u"Rinuncia alla stampa"_s);
    Pulsanti(stampa, rinuncia);
    QVBoxLayout& layout = Contenuto();
    layout.addWidget(lstStampanti_);
    auto* riga = new QHBoxLayout;
    riga->addWidget(stampa);
    riga->addWidget(rinuncia);
    layout.addLayout(riga);
    connect(stampa, &QPushButton::clicked, this, &FrmSelStampa::Stampa);
    connect(rinuncia, &QPushButton::clicked, this, &FrmSelStampa::Rinuncia);
    connect(lstStampanti_, &QListWidget::itemDoubleClicked, this, &FrmSelStampa::Stampa);
}

void FrmSelStampa::VisualizzaListaStampanti() {
    lstStampanti_->clear();
    lstStampanti_->addItems(NomiStampanti());
    const auto trovate = lstStampanti_->findItems(StampantePredefinita(), Qt::MatchExactly | Qt::MatchCaseSensitive);
    auto* filePdf = new QListWidgetItem(u"File PDF"_s, lstStampanti_);
    filePdf->setData(Qt::UserRole, true);
    lstStampanti_->setCurrentItem(trovate.value(0, lstStampanti_->item(0)));
    show();
    raise();
    lstStampanti_->setFocus();
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
