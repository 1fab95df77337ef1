// SPDX-License-Identifier: GPL-3.0-or-later
// The entry screen: its frame beside the grid, and the list of places to go to.
#pragma once

#include <QObject>
#include <QScrollArea>
#include <optional>

#include "app/postazione.h"
#include "ui/comuni/elenco_scelta.h"
#include "ui/comuni/esegui.h"
#include "ui/inserimento/frm_input_box.h"

namespace cronovia {

class SchermoInserimento : public QObject {
    Q_OBJECT

  public:
    /// The list is shared with the guide screen.
    SchermoInserimento(Postazione& postazione, Azioni& azioni, ElencoScelta& elenco, Esegui esegui);

    /// The frame as it is placed, in an area that scrolls; the copy screen shows and hides it.
    [[nodiscard]] QScrollArea& Area() const { return *area_; }
    [[nodiscard]] FrmInputBox& Riquadro() const { return *riquadro_; }
    /// What the entry fields hold goes to the screen's state.
    void Raccogli();
    void Mostra();
    /// Puts the focus on the place to be typed, while stages are entered.
    void FuocoSullaTappa();
    /// The same after a stage was written; when it was refused, on what is wrong.
    void FuocoDopoInserisce();

  private:
    // What was last put into the frame.
    struct Mostrati {
        int riga;
        CampiTappa campi;
        std::optional<bool> progressivi;
    };
    void MostraElenco(bool aperto);
    void MostraSuggerimenti();

    Postazione& postazione_;
    ElencoScelta& elenco_;
    Esegui esegui_;
    FrmInputBox* riquadro_;
    QScrollArea* area_;
    std::optional<Mostrati> mostrati_;
};

}  // namespace cronovia
