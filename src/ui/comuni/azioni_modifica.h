// Undo and redo as actions that carry the names of the changes.
#pragma once

#include <QAction>
#include <functional>

#include "app/scrivania.h"

namespace cronovia {

class AzioniModifica : public QObject {
    Q_OBJECT

  public:
    /// The actions work in the window and stand in the menus of the other widgets.
    AzioniModifica(QWidget& finestra, const QList<QWidget*>& altri, Scrivania& scrivania,
                   const std::function<void(const std::function<void()>&)>& esegui);

    /// What can be undone and done again; nothing of it unless `libere`.
    void Mostra(bool libere);

  private:
    Scrivania& scrivania_;
    QAction* annulla_;
    QAction* ripeti_;
};

}  // namespace cronovia
