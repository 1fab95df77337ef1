// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/comuni/elenco_scelta.h"

#include <QApplication>
#include <QFontDatabase>
#include <QKeyEvent>
#include <QScrollBar>
#include <algorithm>

#include "calendar/testo.h"
#include "ui/comuni/testo_mostrato.h"

namespace cronovia {

VoceScelta VoceLocalita(const QString& localita, int colonne, int riga, bool corrente) {
    return {RiempiDopo(Visibile(localita), colonne, u' ') + Zero(riga, 4), riga, corrente};
}

ElencoScelta::ElencoScelta(const QString& nome, const QString& descrizione) {
    setObjectName(nome);
    setAccessibleName(descrizione);
    MostraIstruzione(*this, descrizione);
    setFrameShape(QFrame::StyledPanel);
    setFont(QFontDatabase::systemFont(QFontDatabase::FixedFont));
    setMinimumHeight(240);
    setSizePolicy(QSizePolicy::Preferred, QSizePolicy::Expanding);
    hide();
    connect(this, &QListWidget::itemClicked, this,
            [this](const QListWidgetItem* voce) { Q_EMIT Scelta(voce->data(Qt::UserRole)); });
}

void ElencoScelta::Mostra(bool aperto, const std::function<std::vector<VoceScelta>()>& voci) {
    const std::vector<VoceScelta> tutte = aperto ? voci() : std::vector<VoceScelta>();
    if (aperto && !(isVisible() && GiaElencate(tutte))) {
        const QVariant scelta =
            isVisible() && currentItem() != nullptr ? currentItem()->data(Qt::UserRole) : QVariant();
        clear();
        for (const VoceScelta& voce : tutte) {
            auto* mostrata = new QListWidgetItem(voce.testo, this);
            mostrata->setData(Qt::UserRole, voce.dato);
            if (scelta.isValid() ? voce.dato == scelta : voce.corrente) setCurrentItem(mostrata);
        }
    }
    if (aperto) {
        const int righe = sizeHintForColumn(0) + 2 * frameWidth() + verticalScrollBar()->sizeHint().width();
        setMinimumWidth(std::max(minimumWidth(), righe));
    }
    setVisible(aperto);
}

bool ElencoScelta::GiaElencate(const std::vector<VoceScelta>& voci) const {
    int riga = 0;
    return count() == std::ssize(voci) && std::all_of(voci.begin(), voci.end(), [&](const VoceScelta& voce) {
               const QListWidgetItem& mostrata = *item(riga++);
               return mostrata.text() == voce.testo && mostrata.data(Qt::UserRole) == voce.dato;
           });
}

void ElencoScelta::Intesta(const QString& intestazione) {
    intestazione_ = NuovaScritta(intestazione);
    intestazione_->setParent(this);
    intestazione_->setObjectName(objectName() + QStringLiteral("_intestazione"));
    intestazione_->setMargin(3);
    intestazione_->setAutoFillBackground(true);
    QFont grassetto = font();
    grassetto.setBold(true);
    intestazione_->setFont(grassetto);
    setViewportMargins(0, intestazione_->sizeHint().height(), 0, 0);
    setMinimumWidth(intestazione_->sizeHint().width() + verticalScrollBar()->sizeHint().width() + 2 * frameWidth());
}

void ElencoScelta::resizeEvent(QResizeEvent* event) {
    QListWidget::resizeEvent(event);
    if (intestazione_ == nullptr) return;
    const QSize misura(viewport()->width(), intestazione_->sizeHint().height());
    intestazione_->setGeometry({viewport()->pos() - QPoint(0, misura.height()), misura});
}

void ElencoScelta::showEvent(QShowEvent* event) {
    qApp->installEventFilter(this);
    QListWidget::showEvent(event);
}

void ElencoScelta::hideEvent(QHideEvent* event) {
    qApp->removeEventFilter(this);
    QListWidget::hideEvent(event);
}

// The click is over before the list goes: what it opens besides is not opened under the person's hand.
bool ElencoScelta::eventFilter(QObject* oggetto, QEvent* event) {
    if (event->type() == QEvent::MouseButtonPress) {
        const auto* dove = qobject_cast<QWidget*>(oggetto);
        const bool fuori = dove != nullptr && dove != this && !isAncestorOf(dove) && dove->window() == window();
        if (fuori) QMetaObject::invokeMethod(this, &ElencoScelta::Rinuncia, Qt::QueuedConnection);
    }
    return QListWidget::eventFilter(oggetto, event);
}

// Enter ends here: whoever holds the list must not take it for its default button.
void ElencoScelta::keyPressEvent(QKeyEvent* event) {
    const bool invio = event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter;
    if (!invio) {
        QListWidget::keyPressEvent(event);
        return;
    }
    event->accept();
    if (currentItem() != nullptr) Q_EMIT Scelta(currentItem()->data(Qt::UserRole));
}

}  // namespace cronovia
