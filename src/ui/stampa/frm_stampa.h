// What is to be printed.
#pragma once

#include <QCheckBox>

#include "ui/comuni/riquadro_sovrapposto.h"

namespace cronovia {

class FrmStampa : public RiquadroSovrapposto {
    Q_OBJECT

  public:
    FrmStampa();

    /// Shown, in use, with the focus on its first button.
    void Apri();
    /// What is ticked: the schedule, the days, the forms of the logbook.
    [[nodiscard]] bool Tabella() const { return chkTabella_->isChecked(); }
    [[nodiscard]] bool Giornate() const { return chkGiornate_->isChecked(); }
    [[nodiscard]] bool Moduli() const { return chkModuli_->isChecked(); }

  Q_SIGNALS:
    void Stampa();
    void Anteprima();
    void Rinuncia();

  private:
    QCheckBox* chkTabella_;
    QCheckBox* chkGiornate_;
    QCheckBox* chkModuli_;
    QPushButton* stampa_;
};

}  // namespace cronovia
