// SPDX-License-Identifier: GPL-3.0-or-later
// Printing the guide from its screen: options, printer, run.
#pragma once

#include <QObject>
#include <optional>

#include "ui/guida/frm_guida_stampa.h"
#include "ui/stampa/comando_stampa.h"

namespace cronovia {

class ComandoStampaGuida : public QObject, public Schermo {
    Q_OBJECT

  public:
    /// Puts its frame over the area; the choice of the printer is that of all printouts.
    ComandoStampaGuida(const Ambiente& ambiente, Azioni& azioni, FrmSelStampa& stampante, QGridLayout& area);

    /// Shows what is to be printed while that is chosen; to be called whenever the state is shown anew.
    void Mostra();
    bool FuocoDopo(Comando /*comando*/, bool /*appenaAperto*/) override { return false; }
    bool Tasto(const QKeyEvent& tasto) override;
    /// Shows the pages that are chosen; prints them where that was chosen.
    void MostraAnteprima();
    void Stampa();

  private:
    [[nodiscard]] std::optional<Stampato> Prepara();

    Ambiente ambiente_;
    Azioni& azioni_;
    FrmSelStampa& stampante_;
    FrmGuidaStampa* opzioni_;
};

}  // namespace cronovia
