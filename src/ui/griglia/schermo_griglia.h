// The main grid with the itinerary, or with the schedule.
#pragma once

#include <QObject>

#include "app/postazione.h"
#include "ui/comuni/esegui.h"
#include "ui/griglia/modello_griglia.h"
#include "ui/griglia/vista_griglia.h"

namespace cronovia {

/// So many rows are on show at least, free ones included.
inline constexpr int kRigheMinimeGriglia = 17;

class SchermoGriglia : public QObject {
    Q_OBJECT

  public:
    SchermoGriglia(Postazione& postazione, Esegui esegui);

    /// The grid, for the window to place; the guide screen puts its own list into it.
    [[nodiscard]] VistaGriglia& Vista() const { return *vista_; }
    /// Shows the itinerary or the schedule of the document.
    void Mostra();

  private:
    void Collega();
    void DistendiGuida();

    Postazione& postazione_;
    Esegui esegui_;
    VistaGriglia* vista_;
    ModelloGriglia modello_;
    bool cronoviaInGriglia_ = false;
};

}  // namespace cronovia
