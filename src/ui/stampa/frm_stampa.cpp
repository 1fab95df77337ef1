// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/stampa/frm_stampa.h"

#include <QHBoxLayout>

#include "ui/comuni/spazi.h"
#include "ui/comuni/testo_mostrato.h"

namespace cronovia {

using namespace Qt::StringLiterals;

FrmStampa::FrmStampa(Azioni& azioni) : RiquadroSovrapposto(u"frmStampa"_s, u"Opzioni di stampa:"_s) {
    chkTabella_ = new QCheckBox(u"Cronovia"_s);
    chkTabella_->setObjectName(u"chkTabella"_s);
    MostraIstruzione(*chkTabella_, u"Stampa la cronovia, una riga per tappa"_s);
    chkTabella_->setChecked(true);
    chkGiornate_ = new QCheckBox(u"Giornate"_s);
    chkGiornate_->setObjectName(u"chkGiornate"_s);
    MostraIstruzione(*chkGiornate_, u"Stampa prima i giorni del viaggio, ognuno con le sue 24 ore"_s);
    chkMappa_ = new QCheckBox(u"Con la mappa"_s);
    chkMappa_->setObjectName(u"chkMappa"_s);
    MostraIstruzione(*chkMappa_, u"Aggiunge la mappa del viaggio, e con le giornate una per ogni giorno"_s);
    chkModuli_ = new QCheckBox(u"Moduli \"Diario di bordo\""_s);
    chkModuli_->setObjectName(u"chkModuli"_s);
    MostraIstruzione(*chkModuli_, u"Stampa i moduli in bianco con il programma Fogliax"_s);
    QPushButton* stampa = azioni.NuovoPulsante(Comando::ScegliStampante);
    QPushButton* anteprima = azioni.NuovoPulsante(Comando::Anteprima);
    QPushButton* rinuncia = azioni.NuovoPulsante(Comando::RinunciaStampa);
    Pulsanti(stampa, rinuncia);
    QVBoxLayout& layout = Contenuto();
    layout.addWidget(chkTabella_);
    layout.addWidget(chkGiornate_);
    layout.addWidget(chkMappa_);
    layout.addWidget(chkModuli_);
    layout.addSpacing(kStacco);
    auto* riga = Spaziato(new QHBoxLayout, Spazi::Riga);
    for (QPushButton* pulsante : {stampa, anteprima, rinuncia}) riga->addWidget(pulsante);
    layout.addLayout(riga);
    for (const QCheckBox* pagine : {chkTabella_, chkGiornate_}) {
        connect(pagine, &QCheckBox::toggled, this, &FrmStampa::Cambiata);
        connect(pagine, &QCheckBox::toggled, this, [this] { chkMappa_->setEnabled(Pagine()); });
    }
}

}  // namespace cronovia
