// SPDX-License-Identifier: GPL-3.0-or-later
// The exchange screen in the window, and the files that are dropped on it.
#pragma once

#include <QObject>

#include "app/postazione.h"
#include "ui/comuni/esegui.h"
#include "ui/comuni/schermo.h"
#include "ui/scambio/frm_export.h"

namespace cronovia {

class SchermoScambio : public QObject, public Schermo {
    Q_OBJECT

  public:
    SchermoScambio(Postazione& postazione, Azioni& azioni, Esegui esegui);

    /// The frame, for the window to place.
    [[nodiscard]] FrmExport& Riquadro() const { return *riquadro_; }
    void Mostra();
    /// Puts the focus on the list to choose from, while the screen is open.
    void Fuoco();
    bool FuocoDopo(Comando comando, bool appenaAperto) override;

  private:
    Postazione& postazione_;
    Esegui esegui_;
    FrmExport* riquadro_;
};

}  // namespace cronovia
