// The copy screen: the list to copy from below the grid, the stretch in the place of the entry frame.
#pragma once

#include <QObject>
#include <functional>

#include "app/scrivania.h"
#include "ui/copia/frm_lista.h"
#include "ui/copia/frm_percorso.h"

class QKeyEvent;

namespace cronovia {

class SchermoCopia : public QObject {
    Q_OBJECT

  public:
    /// Runs a command of the desk and shows the state anew.
    using Esegui = std::function<void(const std::function<void()>&)>;

    /// `inserimento` gives way while a stretch is chosen.
    SchermoCopia(Scrivania& scrivania, QWidget& inserimento, Esegui esegui);

    [[nodiscard]] FrmLista& Lista() const { return *lista_; }
    [[nodiscard]] FrmPercorso& Percorso() const { return *percorso_; }
    void Apri();
    void Mostra();
    /// The keys that mean something on this screen; false for all others, and while it is closed.
    bool Tasto(const QKeyEvent& tasto);

  Q_SIGNALS:
    /// The entry frame is back.
    void Chiusa();

  private:
    void Collega();
    void Comanda(const std::function<void(CopiaPercorso&)>& comando);
    void Scegli(int riga);
    void Chiude(const std::function<void()>& comando);

    Scrivania& scrivania_;
    QWidget& inserimento_;
    Esegui esegui_;
    FrmLista* lista_;
    FrmPercorso* percorso_;
};

}  // namespace cronovia
