// The choice of the printer.
#pragma once

#include <QListWidget>

#include "ui/comuni/riquadro_sovrapposto.h"

namespace cronovia {

class FrmSelStampa : public RiquadroSovrapposto {
    Q_OBJECT

  public:
    FrmSelStampa();

    /// Fills the list with the printers that there are now, the PDF file as the last, and shows it.
    void VisualizzaListaStampanti();
    /// Name of the current entry; empty without one.
    [[nodiscard]] QString Scelta() const;
    /// The PDF file is chosen; a printer that bears its name is not.
    [[nodiscard]] bool SceltoFilePdf() const;

  Q_SIGNALS:
    void Stampa();
    void Rinuncia();

  private:
    QListWidget* lstStampanti_;
};

}  // namespace cronovia
