// SPDX-License-Identifier: GPL-3.0-or-later
// The copy screen: the list to copy from below the grid, the stretch in the place of the entry frame.
#pragma once

#include <QObject>

#include "app/postazione.h"
#include "ui/comuni/esegui.h"
#include "ui/comuni/schermo.h"
#include "ui/copia/frm_lista.h"
#include "ui/copia/frm_tratto.h"

namespace cronovia {

class SchermoCopia : public QObject, public Schermo {
    Q_OBJECT

  public:
    /// `inserimento` gives way while a stretch is chosen.
    SchermoCopia(Postazione& postazione, Azioni& azioni, QWidget& inserimento, Esegui esegui);

    /// Its two frames, for the window to place.
    [[nodiscard]] FrmLista& Lista() const { return *lista_; }
    [[nodiscard]] FrmTratto& RiquadroTratto() const { return *tratto_; }
    /// Whether stops come along goes to the screen's state.
    void Raccogli();
    /// Shows the lists and the stretch while the screen is open, the entry frame else.
    void Mostra();
    bool FuocoDopo(Comando comando, bool appenaAperto) override;
    bool Tasto(const QKeyEvent& tasto) override;

  private:
    void Collega();
    void Comanda(const std::function<void(TavoloCopia&)>& comando);
    void Scegli(int riga);

    Postazione& postazione_;
    Azioni& azioni_;
    QWidget& inserimento_;
    Esegui esegui_;
    FrmLista* lista_;
    FrmTratto* tratto_;
};

}  // namespace cronovia
