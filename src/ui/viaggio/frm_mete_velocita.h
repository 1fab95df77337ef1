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

    void Mostra(const ParametriViaggio& parametri);
    void MostraTotali(const TestiTotali& totali);
    void Leggi(ParametriViaggio& parametri) const;

  Q_SIGNALS:
    void Cambiata();

  private:
    std::array<QComboBox*, kTipiStrada> cmbMediaKm_{};
    std::array<QLineEdit*, kTipiStrada + 1> txtKmTot_{};
    std::array<QLineEdit*, kTipiStrada + 1> txtTempo_{};
    QLineEdit* txtTragh_;
};

}  // namespace cronovia
