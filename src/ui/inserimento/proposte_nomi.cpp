// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/inserimento/proposte_nomi.h"

#include <QEvent>
#include <QKeyEvent>
#include <algorithm>

#include "calendar/testo.h"

namespace cronovia {

using namespace Qt::StringLiterals;

ProposteNomi::ProposteNomi(QLineEdit& casella, QWidget& sopra,
                           std::function<std::vector<PropostaNome>(const QString&)> proponi)
    : QListWidget(&sopra), casella_(casella), proponi_(std::move(proponi)) {
    setObjectName(u"lstProposte"_s);
    setAccessibleName(u"Località proposte"_s);
    setFocusPolicy(Qt::NoFocus);
    setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    hide();
    casella_.installEventFilter(this);
    connect(&casella_, &QLineEdit::textEdited, this, &ProposteNomi::Proponi);
    connect(this, &QListWidget::itemClicked, this, &ProposteNomi::Scegli);
}

// A name that is typed whole already needs no list.
void ProposteNomi::Proponi(const QString& scritto) {
    const std::vector<PropostaNome> proposte = proponi_(scritto.trimmed());
    clear();
    const bool soloLui = proposte.size() == 1 && proposte.front().nome == scritto.trimmed();
    if (proposte.empty() || soloLui || !casella_.hasFocus()) return hide();
    for (const PropostaNome& proposta : proposte) {
        const QString dove = proposta.spiegazione.isEmpty() ? QString() : u"  ("_s + proposta.spiegazione + u')';
        auto* voce = new QListWidgetItem(Visibile(proposta.nome + dove), this);
        voce->setData(Qt::UserRole, proposta.nome);
    }
    const int alto = sizeHintForRow(0) * count() + 2 * frameWidth();
    const QPoint sotto = casella_.mapTo(parentWidget(), QPoint(0, casella_.height()));
    const int largo = std::max(casella_.width(), sizeHintForColumn(0) + 2 * frameWidth());
    setGeometry(std::max(0, std::min(sotto.x(), parentWidget()->width() - largo)), sotto.y(), largo, alto);
    show();
    raise();
}

void ProposteNomi::Scegli(const QListWidgetItem* voce) {
    const QString nome = voce->data(Qt::UserRole).toString();
    hide();
    casella_.setText(nome);
}

// Whether the key was one for the list.
bool ProposteNomi::Tasto(int tasto) {
    switch (tasto) {
        case Qt::Key_Down:
            setCurrentRow(std::min(currentRow() + 1, count() - 1));
            return true;
        case Qt::Key_Up:
            setCurrentRow(std::max(currentRow() - 1, -1));
            return true;
        case Qt::Key_Return:
        case Qt::Key_Enter:
            if (currentItem() == nullptr) {
                hide();
                return false;
            }
            Scegli(currentItem());
            return true;
        case Qt::Key_Escape:
            hide();
            return true;
        default:
            return false;
    }
}

bool ProposteNomi::eventFilter(QObject* oggetto, QEvent* evento) {
    if (oggetto == &casella_ && isVisible()) {
        if (evento->type() == QEvent::FocusOut || evento->type() == QEvent::Hide) hide();
        if (evento->type() == QEvent::KeyPress && Tasto(static_cast<QKeyEvent*>(evento)->key())) return true;
    }
    return QListWidget::eventFilter(oggetto, evento);
}

}  // namespace cronovia
