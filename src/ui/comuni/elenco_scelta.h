// SPDX-License-Identifier: GPL-3.0-or-later
// A list to choose from by click or by Enter, in letters of equal width; a click beside it gives up.
#pragma once

#include <QLabel>
#include <QListWidget>

namespace cronovia {

class ElencoScelta : public QListWidget {
    Q_OBJECT

  public:
    /// Hidden at first; `descrizione` names it.
    ElencoScelta(const QString& nome, const QString& descrizione);
    /// Puts a heading over the entries, which stays while they scroll.
    void Intesta(const QString& intestazione);

  Q_SIGNALS:
    /// Never null.
    void Scelta(QListWidgetItem* voce);
    /// The person went on elsewhere.
    void Rinuncia();

  protected:
    bool eventFilter(QObject* oggetto, QEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;
    void showEvent(QShowEvent* event) override;
    void hideEvent(QHideEvent* event) override;

  private:
    QLabel* intestazione_ = nullptr;
};

}  // namespace cronovia
