// Printing the schedule from the window: options, printer, run.
#pragma once

#include <QObject>

#include "app/postazione.h"
#include "print/dati_stampa.h"
#include "print/foglio.h"
#include "ui/comuni/esegui.h"
#include "ui/stampa/frm_sel_stampa.h"
#include "ui/stampa/frm_stampa.h"

class QGridLayout;

namespace cronovia {

class ComandoStampa : public QObject {
    Q_OBJECT

  public:
    struct Ambiente {
        Postazione& postazione;
        Interaction& interazione;
        Progress& avanzamento;
        QWidget& finestra;
        Esegui esegui;
    };

    /// Puts its frames over the area.
    ComandoStampa(Ambiente ambiente, QGridLayout& area);

    /// Shows what is to be printed while that is chosen; to be called whenever the state is shown anew.
    void Mostra();
    /// Back to what is to be printed, if that is chosen.
    void Fuoco();
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

    Ambiente ambiente_;
    FrmStampa* opzioni_;
    FrmSelStampa* stampante_;
    QFrame* inCorso_;
};

}  // namespace cronovia
