// SPDX-License-Identifier: GPL-3.0-or-later
// The guide screen: the guide list in the main grid, its frame below.
#pragma once

#include <QObject>
#include <optional>

#include "app/postazione.h"
#include "ui/comuni/elenco_scelta.h"
#include "ui/comuni/esegui.h"
#include "ui/comuni/schermo.h"
#include "ui/griglia/vista_griglia.h"
#include "ui/guida/frm_guida.h"
#include "ui/guida/modello_guida.h"

namespace cronovia {

class SchermoGuida : public QObject, public Schermo {
    Q_OBJECT

  public:
    SchermoGuida(Postazione& postazione, Azioni& azioni, VistaGriglia& griglia, ElencoScelta& elenco, Esegui esegui);

    [[nodiscard]] FrmGuida& Riquadro() const { return *riquadro_; }
    /// What the fields hold goes to the screen's state.
    void Raccogli();
    /// To the entry of a description, while the screen is open; when something is typed, to what it lacks.
    void Fuoco();
    /// Shows the guide list in the grid and its frame; false when the guide screen is closed.
    bool Mostra(int righeMinime);
    bool FuocoDopo(Comando comando, bool appenaAperto) override;
    bool Tasto(const QKeyEvent& tasto) override;

  private:
    void Collega();
    /// Null while the screen is closed.
    [[nodiscard]] const TavoloGuida* Tavolo() const;
    void VaiAllaRiga(int riga);
    [[nodiscard]] bool ConElenco() const;
    void MostraElenco(const TavoloGuida& tavolo);
    void ChiudiElenco();
    void Abilita();
    [[nodiscard]] bool CampiCambiati() const;
    void FuocoSulCampoMancante();

    struct Mostrato {
        int riga = 0;
        TavoloGuida::Righe elenco;
        CampiVoce campi;
    };

    Postazione& postazione_;
    Azioni& azioni_;
    VistaGriglia& griglia_;
    ElencoScelta& elenco_;
    Esegui esegui_;
    FrmGuida* riquadro_;
    ModelloGuida modello_;
    std::optional<Mostrato> mostrato_;  // what was last put into the fields
};

}  // namespace cronovia
