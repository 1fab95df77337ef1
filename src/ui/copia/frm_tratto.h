// SPDX-License-Identifier: GPL-3.0-or-later
// The stretch to copy: its first and last stage, whether its stops come along.
#pragma once

#include <QCheckBox>
#include <QGroupBox>
#include <QLineEdit>
#include <QPushButton>
#include <array>

#include "app/tavolo_copia.h"
#include "ui/comuni/azioni.h"

namespace cronovia {

class FrmTratto : public QGroupBox {
    Q_OBJECT

  public:
    /// Has the buttons of its commands made.
    explicit FrmTratto(Azioni& azioni);

    /// Shows the stages assigned.
    void Mostra(const TavoloCopia& copia);
    /// No stops, until the person wants them.
    void Azzera() { chkInsSoste_->setChecked(false); }
    [[nodiscard]] bool ConSoste() const { return chkInsSoste_->isChecked(); }

  private:
    QWidget* CreaEstremo(int estremo, QPushButton* assegna);

    /// The boxes of one end of the stretch.
    struct Estremo {
        QLineEdit* txtInsLoc = nullptr;
        QLineEdit* txtInsNS = nullptr;
        QLineEdit* txtInsKm = nullptr;
        QLineEdit* txtInsNum = nullptr;
    };
    std::array<Estremo, 2> estremi_;
    QCheckBox* chkInsSoste_;
};

}  // namespace cronovia
