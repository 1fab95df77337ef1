// SPDX-License-Identifier: GPL-3.0-or-later
// The main grid with the itinerary, or with the schedule.
#pragma once

#include <QObject>

#include "app/postazione.h"
#include "schedule/giorni_itinerario.h"
#include "ui/comuni/esegui.h"
#include "ui/comuni/schermo.h"
#include "ui/comuni/trascinamento.h"
#include "ui/griglia/modello_griglia.h"
#include "ui/griglia/vista_griglia.h"

namespace cronovia {

/// So many rows are on show at least, free ones included.
inline constexpr int kRigheMinimeGriglia = 17;

class SchermoGriglia : public QObject, public Schermo {
    Q_OBJECT

  public:
    SchermoGriglia(Postazione& postazione, Esegui esegui);

    /// The grid, for the window to place; the guide screen puts its own list into it.
    [[nodiscard]] VistaGriglia& Vista() const { return *vista_; }
    /// Shows the itinerary or the schedule of the document.
    void Mostra();
    bool FuocoDopo(Comando comando, bool appenaAperto) override;

    /// Marks in the itinerary where the days of the last schedule begin.
    void SegnaGiorni();

    /// Goes to a row of the last schedule, or to a day of it: in the itinerary to the stage that it is about. Both
    /// count from 0.
    void VaiAllaRiga(int riga);
    void VaiAllaGiornata(int giornata);
    /// Goes to a row of the itinerary, from 1; in the schedule to where that stage is reached.
    void VaiAllaTappa(int riga);
    /// Emits `Corrente`.
    void DiceLaCorrente();

  Q_SIGNALS:
    /// The day of the last schedule that the current row belongs to, and its row there; -1 where there is none.
    void Corrente(int giornata, int riga);
    /// The same with the row of the itinerary, from 1; 0 where there is none.
    void TappaCorrente(int giornata, int riga);

  private:
    void Collega();
    [[nodiscard]] bool QualcosaDaChiedere() const;
    void DistendiRighe();
    void DistendiDaIndicare();
    [[nodiscard]] const GiorniItinerario& Giorni();
    void Cambia(const std::function<void()>& comando);
    [[nodiscard]] std::optional<Trascinata> Presa(const QPoint& punto) const;
    void Lasciata(const Trascinata& trascinata, int prima);
    void Piega(int riga, std::optional<bool> chiusa);

    Postazione& postazione_;
    Esegui esegui_;
    VistaGriglia* vista_;
    ModelloGriglia modello_;
    GiorniItinerario giorni_;
    std::optional<int> mostrata_;  // the schedule in the grid
    int collegata_ = -1;           // that of `giorni_`
};

}  // namespace cronovia
