// SPDX-License-Identifier: GPL-3.0-or-later
// The choice of the printer.
#pragma once

#include <QListWidget>

#include "ui/comuni/azioni.h"
#include "ui/comuni/riquadro_sovrapposto.h"
#include "ui/stampa/stampanti.h"

namespace cronovia {

class FrmSelStampa : public RiquadroSovrapposto {
    Q_OBJECT

  public:
    /// Has the buttons of its commands made.
    FrmSelStampa(Azioni& azioni, Stampanti stampanti);

    /// Name of the current entry; empty without one.
    [[nodiscard]] QString Scelta() const;
    /// The PDF file is chosen; a printer that bears its name is not.
    [[nodiscard]] bool SceltoFilePdf() const;

  protected:
    /// Fills the list with the printers that there are now, the PDF file as the last.
    void Prepara() override;
    [[nodiscard]] QWidget& PrimoControllo() const override { return *lstStampanti_; }

  private:
    Stampanti stampanti_;
    QListWidget* lstStampanti_;
};

}  // namespace cronovia
