// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/comuni/riquadro_sovrapposto.h"

#include <QKeyEvent>

#include "ui/comuni/spazi.h"
#include "ui/comuni/testo_mostrato.h"

namespace cronovia {

RiquadroSovrapposto::RiquadroSovrapposto(const QString& nome, const QString& scritta)
    : contenuto_(Spaziato(new QVBoxLayout(this), Spazi::Dialogo)) {
    setObjectName(nome);
    setAccessibleName(scritta);
    setAutoFillBackground(true);
    setFrameStyle(static_cast<int>(QFrame::WinPanel) | static_cast<int>(QFrame::Raised));
    setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Fixed);
    QLabel* titolo = NuovaScritta(scritta);
    QFont grassetto = titolo->font();
    grassetto.setBold(true);
    titolo->setFont(grassetto);
    contenuto_->addWidget(titolo);
    hide();
}

void RiquadroSovrapposto::Pulsanti(QPushButton* conferma, QPushButton* rinuncia) {
    conferma_ = conferma;
    rinuncia_ = rinuncia;
}

void RiquadroSovrapposto::Mostra(bool aperto, bool inUso) {
    if (!aperto) return hide();
    const bool prima = isVisible() && isEnabled();
    if (!isVisible()) Prepara();
    setEnabled(inUso);
    if (!inUso || prima) return;
    show();
    raise();
    Fuoco();
}

void RiquadroSovrapposto::keyPressEvent(QKeyEvent* event) {
    if (event->key() == Qt::Key_Escape) {
        rinuncia_->click();
    } else if (event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter) {
        auto* conFuoco = qobject_cast<QPushButton*>(focusWidget());
        (conFuoco != nullptr && conFuoco->hasFocus() ? conFuoco : conferma_)->click();
    } else {
        QFrame::keyPressEvent(event);
    }
}

}  // namespace cronovia
