// SPDX-License-Identifier: GPL-3.0-or-later
// What is to be printed of the guide.
#pragma once

#include <QRadioButton>
#include <array>

#include "print/stampa_guida.h"
#include "ui/comuni/azioni.h"
#include "ui/comuni/riquadro_sovrapposto.h"

namespace cronovia {

class FrmGuidaStampa : public RiquadroSovrapposto {
    Q_OBJECT

  public:
    /// Has the buttons of its commands made.
    explicit FrmGuidaStampa(Azioni& azioni);

    /// What is chosen at the moment.
    [[nodiscard]] OpzioniStampaGuida Opzioni() const;

  private:
    std::array<QRadioButton*, 2> optGuidaListaStampa_{};
    std::array<QRadioButton*, 2> optGuidaDettaglioStampa_{};
};

}  // namespace cronovia
