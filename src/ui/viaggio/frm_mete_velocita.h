// SPDX-License-Identifier: GPL-3.0-or-later
// Average speeds, with kilometres and driving times by type of road.
#pragma once

#include <QComboBox>
#include <QGroupBox>
#include <QLineEdit>
#include <array>

#include "itinerary/riepilogo.h"
#include "trips/meta.h"

namespace cronovia {

class FrmMeteVelocita : public QGroupBox {
    Q_OBJECT

  public:
    explicit FrmMeteVelocita(QWidget* parent = nullptr);

    /// A value that is not on offer is shown for this trip alone.
    void Mostra(const ParametriViaggio& parametri);
    /// Kilometres, driving times and ferries, by type of road.
    void MostraTotali(const TestiTotali& totali);
    /// Puts the speeds, in km/h, into the parameters; an emptied one is 0.
    void Leggi(ParametriViaggio& parametri) const;
    void FuocoSullaMedia(TipoStrada tipo);

  Q_SIGNALS:
    /// The person changed a field.
    void Cambiata();

  private:
    std::array<QComboBox*, kTipiStrada> cmbMediaKm_{};
    std::array<QLineEdit*, kTipiStrada + 1> txtKmTot_{};
    std::array<QLineEdit*, kTipiStrada + 1> txtTempo_{};
    QLineEdit* txtTragh_;
};

}  // namespace cronovia
