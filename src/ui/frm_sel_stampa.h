// The choice of the printer.
#pragma once

#include <QListWidget>

#include "ui/riquadro_sovrapposto.h"

namespace cronovia {

class FrmSelStampa : public RiquadroSovrapposto {
    Q_OBJECT

  public:
    FrmSelStampa();

    /// Fills the list with the printers that there are now and shows it.
    void VisualizzaListaStampanti();
    [[nodiscard]] QString Scelta() const;

  Q_SIGNALS:
    void Stampa();
    void Rinuncia();

  private:
    QListWidget* lstStampanti_;
};

}  // namespace cronovia
