#include "ui/stampa/frm_stampa.h"

#include <QHBoxLayout>

#include "ui/comuni/controlli.h"
#include "ui/comuni/testo_mostrato.h"

namespace cronovia {

using namespace Qt::StringLiterals;

FrmStampa::FrmStampa() : RiquadroSovrapposto(u"frmStampa"_s, u"Opzioni di stampa:"_s) {
    chkTabella_ = new QCheckBox(u"Cronovia"_s);
    chkTabella_->setObjectName(u"chkTabella"_s);
    MostraIstruzione(*chkTabella_, u"Stampa la cronovia, una riga per tappa"_s);
    chkTabella_->setChecked(true);
    chkGiornate_ = new QCheckBox(u"Giornate"_s);
    chkGiornate_->setObjectName(u"chkGiornate"_s);
    MostraIstruzione(*chkGiornate_, u"Stampa prima i giorni del viaggio, ognuno con le sue 24 ore"_s);
    chkModuli_ = new QCheckBox(u"Moduli \"Diario di bordo\""_s);
    chkModuli_->setObjectName(u"chkModuli"_s);
    MostraIstruzione(*chkModuli_, u"Stampa i moduli in bianco con il programma Fogliax"_s);
    stampa_ = NuovoPulsante(u"cmdEsegui_0"_s, u"&Stampa"_s, u"Sceglie la stampante"_s);
    QPushButton* rinuncia = NuovoPulsante(u"cmdEsegui_1"_s, u"&Rinuncia"_s, u"Rinuncia alla stampa"_s);
    QPushButton* anteprima =
        NuovoPulsante(u"cmdAnteprima"_s, u"&Anteprima"_s, u"Mostra sullo schermo le pagine della cronovia"_s);
    Pulsanti(stampa_, rinuncia);
    QVBoxLayout& layout = Contenuto();
    layout.addWidget(chkTabella_);
    layout.addWidget(chkGiornate_);
    layout.addWidget(chkModuli_);
    layout.addSpacing(8);
    auto* riga = new QHBoxLayout;
    for (QPushButton* pulsante : {stampa_, anteprima, rinuncia}) riga->addWidget(pulsante);
    layout.addLayout(riga);
    connect(stampa_, &QPushButton::clicked, this, &FrmStampa::Stampa);
    connect(anteprima, &QPushButton::clicked, this, &FrmStampa::Anteprima);
    connect(rinuncia, &QPushButton::clicked, this, &FrmStampa::Rinuncia);
    for (const QCheckBox* pagine : {chkTabella_, chkGiornate_}) {
        connect(pagine, &QCheckBox::toggled, anteprima, [=, this] { anteprima->setEnabled(Tabella() || Giornate()); });
    }
}

void FrmStampa::Apri() {
    setEnabled(true);
    show();
    raise();
    stampa_->setFocus();
}

}  // namespace cronovia
