// SPDX-License-Identifier: GPL-3.0-or-later
// A panel beside the grid.
#pragma once

#include <QDockWidget>

#include "app/postazione.h"

namespace cronovia {

/// It is named by its object name, under which its place is remembered.
class Pannello : public QDockWidget {
  public:
    using QDockWidget::QDockWidget;

    /// Called whenever the state is shown anew.
    virtual void Mostra(const Postazione& postazione) = 0;

  protected:
    bool event(QEvent* event) override;

  private:
    void SegniVisibili();
};

}  // namespace cronovia
