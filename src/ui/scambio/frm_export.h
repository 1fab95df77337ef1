// SPDX-License-Identifier: GPL-3.0-or-later
// The exchange screen: two grids between which trips are moved, and the run.
#pragma once

#include <QFrame>
#include <QLabel>
#include <QTableView>
#include <array>

#include "app/tavolo_scambio.h"
#include "ui/comuni/azioni.h"
#include "ui/scambio/modello_mete.h"

namespace cronovia {

class FrmExport : public QFrame {
    Q_OBJECT

  public:
    /// Has the buttons of its commands made.
    explicit FrmExport(Azioni& azioni);

    /// While a run is on, nothing in the frame can be used.
    void Mostra(const TavoloScambio& tavolo, bool inCorso);
    /// Puts the focus on the grid to choose from.
    void FuocoSullaScelta(ModoScambio modo);

  Q_SIGNALS:
    /// The trip of a row of a grid is to move to the other one.
    void Trasferisce(int griglia, int riga);

  protected:
    void keyPressEvent(QKeyEvent* event) override;
    bool eventFilter(QObject* oggetto, QEvent* event) override;

  private:
    QTableView* NuovaGriglia(int indice);
    static QWidget* CreaPulsanti(Azioni& azioni);

    std::array<ModelloMete, 2> modelli_;
    std::array<QTableView*, 2> mfgImExp_{};
    std::array<QLabel*, 2> etichette_{};
    Azioni& azioni_;
};

}  // namespace cronovia
