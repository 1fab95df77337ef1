// SPDX-License-Identifier: GPL-3.0-or-later
// The panel with the map of the journey.
#pragma once

#include <QLabel>
#include <QTimer>

#include "ui/comuni/esegui.h"
#include "ui/comuni/pannello.h"
#include "ui/mappa/vista_mappa.h"

namespace cronovia {

class PannelloMappa : public Pannello {
    Q_OBJECT

  public:
    PannelloMappa(Postazione& postazione, Esegui esegui);

    void Mostra(const Postazione& postazione) override;
    /// Follows the row of the itinerary that is current elsewhere, from 1, and its day, from 0 or -1.
    void Segue(int giornata, int riga);

  Q_SIGNALS:
    /// The person wants to see a row of the itinerary.
    void RigaScelta(int riga);

  protected:
    void showEvent(QShowEvent* event) override;

  private:
    [[nodiscard]] QWidget* NuoviPulsanti();
    void ChiediDi(const QPoint& punto);
    [[nodiscard]] QString LocalitaSegnata() const;
    void Aggiorna();

    Postazione& postazione_;
    Esegui esegui_;
    VistaMappa* vista_;
    QLabel* avviso_;
    QTimer attesa_;
    QString codice_;  // what was shown: the trip, where its places lie, its schedule
    int luoghi_ = -1;
    int versione_ = -1;
    bool primaVolta_ = true;
};

}  // namespace cronovia
