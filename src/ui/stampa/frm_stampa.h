// SPDX-License-Identifier: GPL-3.0-or-later
// What is to be printed.
#pragma once

#include <QCheckBox>

#include "ui/comuni/azioni.h"
#include "ui/comuni/riquadro_sovrapposto.h"

namespace cronovia {

class FrmStampa : public RiquadroSovrapposto {
    Q_OBJECT

  public:
    /// Has the buttons of its commands made.
    explicit FrmStampa(Azioni& azioni);

    /// What is ticked: the schedule, the days, the forms of the logbook.
    [[nodiscard]] bool Tabella() const { return chkTabella_->isChecked(); }
    [[nodiscard]] bool Giornate() const { return chkGiornate_->isChecked(); }
    /// One of the first two: there are pages to look at.
    [[nodiscard]] bool Pagine() const { return Tabella() || Giornate(); }
    [[nodiscard]] bool Moduli() const { return chkModuli_->isChecked(); }
    /// Whether the pages go with the map.
    [[nodiscard]] bool ConMappa() const { return chkMappa_->isChecked(); }
    void ConMappa(bool voluta) { chkMappa_->setChecked(voluta); }

  Q_SIGNALS:
    /// Something else is ticked.
    void Cambiata();

  private:
    QCheckBox* chkTabella_;
    QCheckBox* chkGiornate_;
    QCheckBox* chkMappa_;
    QCheckBox* chkModuli_;
};

}  // namespace cronovia
