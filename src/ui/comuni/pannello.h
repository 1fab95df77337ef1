// SPDX-License-Identifier: GPL-3.0-or-later
// A panel beside the grid.
#pragma once

#include <QDockWidget>

#include "app/postazione.h"

namespace cronovia {

class AspettoFinestra;

/// It is named by its object name, under which its place is remembered.
class Pannello : public QDockWidget {
  public:
    using QDockWidget::QDockWidget;
    /// With the title and the key of a command, which shows and hides it.
    explicit Pannello(Comando comando);

    /// Called whenever the state is shown anew.
    virtual void Mostra(const Postazione& postazione) = 0;
    /// What of it is remembered besides its place.
    virtual void SiRicorda(AspettoFinestra& /*aspetto*/) {}

  protected:
    bool event(QEvent* event) override;

  private:
    void SegniVisibili();
};

}  // namespace cronovia
