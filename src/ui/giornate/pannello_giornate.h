// SPDX-License-Identifier: GPL-3.0-or-later
// The panel with the days of the journey.
#pragma once

#include <QDockWidget>
#include <QLabel>

#include "ui/comuni/pannello.h"
#include "ui/giornate/vista_giornate.h"

namespace cronovia {

class PannelloGiornate : public Pannello {
    Q_OBJECT

  public:
    explicit PannelloGiornate(QWidget* parent = nullptr);

    void Mostra(const Postazione& postazione) override;
    /// Follows the row of the schedule that is current elsewhere, or the day without a row.
    void Segue(int giornata, int riga);

  Q_SIGNALS:
    /// The person wants to see a row of the schedule; a day. Both count from 0.
    void RigaScelta(int riga);
    void GiornataScelta(int giornata);
    /// A day is to go before another one; so many places down.
    void GiornataLasciata(int giornata, int prima);
    void Sposta(int giornata, int passo);

  protected:
    void showEvent(QShowEvent* event) override;

  private:
    void Aggiorna();

    ModelloGiornate modello_;
    VistaGiornate* vista_;
    QLabel* avviso_;
    const Documento* documento_ = nullptr;
    int mostrata_ = -1;  // the version of the schedule
};

}  // namespace cronovia
