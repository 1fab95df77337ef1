// Printing the schedule from the window: options, printer, run.
#pragma once

#include <QObject>
#include <functional>

#include "app/scrivania.h"
#include "print/dati_stampa.h"
#include "print/foglio.h"
#include "ui/stampa/frm_sel_stampa.h"
#include "ui/stampa/frm_stampa.h"

class QGridLayout;

namespace cronovia {

class ComandoStampa : public QObject {
    Q_OBJECT

  public:
    struct Volti {
        Scrivania& scrivania;
        Interaction& interazione;
        Progress& avanzamento;
        QWidget& finestra;
        std::function<void(const std::function<void()>&)> esegui;  ///< runs a command of the window
    };

    /// Puts its frames over the area.
    ComandoStampa(Volti volti, QGridLayout& area);

    /// Computes the schedule when none is on screen, then asks what to print.
    void Apri();
    /// To the frame in front, if one is open.
    void Fuoco();
    /// The frames that the state of the desk allows; to be called whenever it is shown anew.
    void Aggiorna();
    [[nodiscard]] bool Aperto() const { return opzioni_->isVisible() || stampante_->isVisible(); }
    void Rinuncia();
    /// The choice of the printer, of which there is one for all printouts.
    [[nodiscard]] FrmSelStampa& Stampante() const { return *stampante_; }

  private:
    void MostraAnteprima();
    void Stampa();
    void EseguiStampa(const std::function<void(const Stampato&)>& stampa);
    void AvviaModuli(const DatiStampa& dati);
    void Chiudi();
    [[nodiscard]] DatiStampa Dati() const;
    [[nodiscard]] PieDiPagina Piede() const;

    Volti volti_;
    FrmStampa* opzioni_;
    FrmSelStampa* stampante_;
    QFrame* inCorso_;
};

}  // namespace cronovia
