// A list to choose from by click or by Enter.
#pragma once

#include <QListWidget>

namespace cronovia {

class ElencoScelta : public QListWidget {
    Q_OBJECT

  public:
    /// Hidden at first; `descrizione` names it.
    ElencoScelta(const QString& nome, const QString& descrizione);

  Q_SIGNALS:
    /// Never null.
    void Scelta(QListWidgetItem* voce);

  protected:
    void keyPressEvent(QKeyEvent* event) override;
};

}  // namespace cronovia
