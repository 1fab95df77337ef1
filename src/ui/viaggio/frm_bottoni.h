// SPDX-License-Identifier: GPL-3.0-or-later
// The main commands.
#pragma once

#include <QFrame>
#include <QPushButton>

#include "ui/comuni/azioni.h"

namespace cronovia {

class FrmBottoni : public QFrame {
  public:
    explicit FrmBottoni(Azioni& azioni);

    /// The conversion of old data is shown while it is on offer.
    void Mostra(bool converteOfferto) { cmdConverte_->setVisible(converteOfferto); }

  private:
    QPushButton* cmdConverte_;
};

}  // namespace cronovia
