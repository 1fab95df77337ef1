// A list to choose from by click or by Enter.
#pragma once

#include <QListWidget>

namespace cronovia {

class ElencoScelta : public QListWidget {
    Q_OBJECT

  public:
    ElencoScelta(const QString& nome, const QString& descrizione);

  Q_SIGNALS:
    void Scelta(QListWidgetItem* voce);

  protected:
    void keyPressEvent(QKeyEvent* event) override;
};

}  // namespace cronovia
