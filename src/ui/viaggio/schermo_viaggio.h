// SPDX-License-Identifier: GPL-3.0-or-later
// The trip screen: the fields of the trip, and the list of trips over the grid.
#pragma once

#include <QWidget>

#include "app/postazione.h"
#include "ui/comuni/elenco_scelta.h"
#include "ui/comuni/esegui.h"
#include "ui/comuni/schermo.h"
#include "ui/viaggio/frm_mete_periodo.h"
#include "ui/viaggio/frm_mete_tempi.h"
#include "ui/viaggio/frm_mete_velocita.h"

namespace cronovia {

class SchermoViaggio : public QWidget, public Schermo {
    Q_OBJECT

  public:
    SchermoViaggio(Postazione& postazione, Azioni& azioni, Esegui esegui);

    /// The list of trips, for the window to place.
    [[nodiscard]] ElencoScelta& Elenco() const { return *cmbRicerca_; }
    /// What the fields hold goes to the document.
    void Raccogli();
    /// Shows the document in the fields, which can be used when they are `liberi`, and the list while it is open.
    void Mostra(bool liberi);
    /// Puts back and tells what is being typed and cannot be; false when there is nothing of the kind.
    bool RifiutaIlCampo();
    /// Takes over and checks the field that is being filled in, as if it had been left; true when others changed by it.
    bool ConcludiIlCampo();
    /// On the control of a field for which the trip cannot be saved.
    void FuocoSulCampo(mete::Field campo);
    bool FuocoDopo(Comando comando, bool appenaAperto) override;
    bool Tasto(const QKeyEvent& tasto) override;

  Q_SIGNALS:
    /// The person changed a field.
    void Cambiata();
    /// The list is no longer there: a trip was chosen from it, or none.
    void ElencoChiuso();

  private:
    void Collega();
    [[nodiscard]] Meta Letta() const;
    void MostraElenco();

    Postazione& postazione_;
    Esegui esegui_;
    FrmMetePeriodo* periodo_;
    FrmMeteVelocita* velocita_;
    FrmMeteTempi* tempi_;
    ElencoScelta* cmbRicerca_;
    Meta mostrata_;  // what the fields held when they were last shown or taken over
};

}  // namespace cronovia
