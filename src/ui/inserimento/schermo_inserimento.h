// SPDX-License-Identifier: GPL-3.0-or-later
// The entry screen: its frame beside the grid, and the list of places to go to.
#pragma once

#include <QObject>
#include <QScrollArea>
#include "app/postazione.h"
#include "ui/comuni/elenco_scelta.h"
#include "ui/comuni/esegui.h"
#include "ui/comuni/schermo.h"
#include "ui/griglia/vista_griglia.h"
#include "ui/inserimento/frm_input_box.h"
#include "ui/inserimento/proposte_nomi.h"

namespace cronovia {

class SchermoInserimento : public QObject, public Schermo {
    Q_OBJECT

  public:
    /// The list is shared with the guide screen.
    SchermoInserimento(Postazione& postazione, Azioni& azioni, VistaGriglia& griglia, ElencoScelta& elenco,
                       Esegui esegui);

    /// The frame as it is placed, in an area that scrolls; the copy screen shows and hides it.
    [[nodiscard]] QScrollArea& Area() const { return *area_; }
    /// Shows the screen's state, which what is typed goes to at once.
    void Mostra();
    /// Beside the fields: also after something changed elsewhere, a speed perhaps.
    void MostraSuggerimenti();
    bool FuocoDopo(Comando comando, bool appenaAperto) override;
    bool Tasto(const QKeyEvent& tasto) override;

  private:
    void Collega();
    void Raccogli();
    void MostraElenco();
    void ChiudiElenco();
    void FuocoSullaTappa();
    void FuocoDopoInserisce();
    void SpostaDalNome();
    std::optional<double> Diretta(const QString& localita);

    Postazione& postazione_;
    Azioni& azioni_;
    VistaGriglia& griglia_;
    ElencoScelta& elenco_;
    Esegui esegui_;
    FrmInputBox* riquadro_;
    QScrollArea* area_;
    ProposteNomi* proposte_;
    struct {
        QString da;
        QString a;
        std::int64_t scritture = 0;
        std::optional<double> km;
    } diretta_;  // the straight way that was asked for last
};

}  // namespace cronovia
