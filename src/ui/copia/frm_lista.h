// SPDX-License-Identifier: GPL-3.0-or-later
// The list to copy from, with its instruction.
#pragma once

#include <QGroupBox>
#include <QLabel>
#include <QTableView>

#include "app/tavolo_copia.h"
#include "ui/copia/modello_copia.h"

namespace cronovia {

class FrmLista : public QGroupBox {
    Q_OBJECT

  public:
    explicit FrmLista(QWidget* parent = nullptr);

    /// Shows the trips, or the stages with the stretch highlighted.
    void Mostra(const TavoloCopia& copia);
    void Fuoco() { mfgCopia_->setFocus(); }
    [[nodiscard]] bool ConFuoco() const { return mfgCopia_->hasFocus(); }
    /// The row that the keyboard is on, from 1.
    [[nodiscard]] int Riga() const { return mfgCopia_->currentIndex().row() + 1; }

  Q_SIGNALS:
    /// A row was clicked, or became the current one by the keyboard.
    void Cliccata(int riga);
    void Corrente(int riga);

  protected:
    void resizeEvent(QResizeEvent* event) override;

  private:
    void AdattaLarghezze();

    QLabel* lblLista_;
    QTableView* mfgCopia_;
    ModelloCopia modello_;
    bool mostrando_ = false;
};

}  // namespace cronovia
