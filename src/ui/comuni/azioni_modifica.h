// Undo and redo as actions that carry the names of the changes.
#pragma once

#include <QAction>

#include "app/postazione.h"
#include "ui/comuni/esegui.h"

namespace cronovia {

class AzioniModifica : public QObject {
    Q_OBJECT

  public:
    /// The actions work in the window and stand in the menus of the other widgets.
    AzioniModifica(QWidget& finestra, const QList<QWidget*>& altri, Postazione& postazione, const Esegui& esegui);

    /// What can be undone and done again; nothing of it unless `libere`.
    void Mostra(bool libere);

  private:
    Postazione& postazione_;
    QAction* annulla_;
    QAction* ripeti_;
};

}  // namespace cronovia
