// Entry of the itinerary's stages, with the commands that change them.
#pragma once

#include <QCheckBox>
#include <QComboBox>
#include <QGroupBox>
#include <QLineEdit>
#include <QPushButton>
#include <array>
#include <optional>

#include "app/modi_comandi.h"
#include "itinerary/modifiche.h"

namespace cronovia {

class FrmInputBox : public QGroupBox {
    Q_OBJECT

  public:
    explicit FrmInputBox(QWidget* parent = nullptr);

    void Mostra(int riga, const CampiTappa& campi);
    void MostraKmProgressivi(std::optional<bool> attivi);
    void Applica(const StatoComandi& stato);
    [[nodiscard]] CampiTappa Campi() const;
    void FuocoSullaTappa();
    [[nodiscard]] QPushButton& Pulsante(ComandoItinerario comando) const {
        return *pulsanti_[static_cast<std::size_t>(comando)];
    }

  Q_SIGNALS:
    void Premuto(ComandoItinerario comando);
    void AltriPacchetti();

  private:
    QWidget* CreaCampi();
    QWidget* CreaComandi();

    QLineEdit* txtRiga_;
    QLineEdit* txtTappa_;
    QLineEdit* txtNumStrada_;
    QLineEdit* txtKm_;
    QComboBox* cmbTipoStrada_;
    std::array<QComboBox*, 3> cmbSosta_{};
    QCheckBox* chkEndDay_;
    QCheckBox* chkKm_;
    std::array<QPushButton*, kComandiItinerario> pulsanti_{};
    QPushButton* cmdMapPoint_;
};

}  // namespace cronovia
