// SPDX-License-Identifier: GPL-3.0-or-later
// The main commands.
#pragma once

#include <QFrame>
#include <QHBoxLayout>
#include <QIcon>
#include <QPushButton>
#include <utility>
#include <vector>

#include "ui/comuni/azioni.h"

namespace cronovia {

class FrmBottoni : public QFrame {
  public:
    /// Has the buttons of its commands made.
    explicit FrmBottoni(Azioni& azioni);

    /// The conversion of old data is shown while it is on offer.
    void Mostra(bool converteOfferto) { cmdConverte_->setVisible(converteOfferto); }

  protected:
    void resizeEvent(QResizeEvent* event) override;

  private:
    void MostraIcone();

    QPushButton* cmdConverte_;
    QHBoxLayout* riga_ = nullptr;
    std::vector<std::pair<QPushButton*, QIcon>> pulsanti_;
};

}  // namespace cronovia
