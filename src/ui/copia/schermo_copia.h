// The copy screen: the list to copy from below the grid, the stretch in the place of the entry frame.
#pragma once

#include <QObject>

#include "app/postazione.h"
#include "ui/comuni/esegui.h"
#include "ui/copia/frm_lista.h"
#include "ui/copia/frm_tratto.h"

class QKeyEvent;

namespace cronovia {

class SchermoCopia : public QObject {
    Q_OBJECT

  public:
    /// `inserimento` gives way while a stretch is chosen.
    SchermoCopia(Postazione& postazione, QWidget& inserimento, Esegui esegui);

    [[nodiscard]] FrmLista& Lista() const { return *lista_; }
    [[nodiscard]] FrmTratto& RiquadroTratto() const { return *tratto_; }
    /// Shows the lists and the stretch while the screen is open, the entry frame else.
    void Mostra();
    void Fuoco();
    /// The keys that mean something on this screen; false for all others, and while it is closed.
    bool Tasto(const QKeyEvent& tasto);

  Q_SIGNALS:
    /// The entry frame is back.
    void Chiusa();

  private:
    void Collega();
    void Comanda(const std::function<void(TavoloCopia&)>& comando);
    void Scegli(int riga);
    void Chiude(const std::function<void()>& comando);

    Postazione& postazione_;
    QWidget& inserimento_;
    Esegui esegui_;
    FrmLista* lista_;
    FrmTratto* tratto_;
    bool aperto_ = false;
};

}  // namespace cronovia
