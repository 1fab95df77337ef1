#include "ui/comuni/elenco_scelta.h"

#include <QKeyEvent>

namespace cronovia {

ElencoScelta::ElencoScelta(const QString& nome, const QString& descrizione) {
    setObjectName(nome);
    setAccessibleName(descrizione);
    setToolTip(descrizione);
    setFrameShape(QFrame::StyledPanel);
    hide();
    connect(this, &QListWidget::itemClicked, this, &ElencoScelta::Scelta);
}

// Enter ends here: whoever holds the list must not take it for its default button.
void ElencoScelta::keyPressEvent(QKeyEvent* event) {
    const bool invio = event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter;
    if (!invio) {
        QListWidget::keyPressEvent(event);
        return;
    }
    event->accept();
    if (currentItem() != nullptr) Q_EMIT Scelta(currentItem());
}

}  // namespace cronovia
