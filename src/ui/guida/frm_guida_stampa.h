// What is to be printed of the guide.
#pragma once

#include <QRadioButton>
#include <array>

#include "print/stampa_guida.h"
#include "ui/comuni/riquadro_sovrapposto.h"

namespace cronovia {

class FrmGuidaStampa : public RiquadroSovrapposto {
    Q_OBJECT

  public:
    FrmGuidaStampa();

    /// Shown, in use, with the focus on its first button.
    void Apri();
    [[nodiscard]] OpzioniStampaGuida Opzioni() const;

  Q_SIGNALS:
    void Stampa();
    void Anteprima();
    void Rinuncia();

  private:
    QPushButton* stampa_;
    std::array<QRadioButton*, 2> optGuidaListaStampa_{};
    std::array<QRadioButton*, 2> optGuidaDettaglioStampa_{};
};

}  // namespace cronovia
