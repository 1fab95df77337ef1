// SPDX-License-Identifier: GPL-3.0-or-later
// Printing the schedule from the window: options, printer, run.
#pragma once

#include <QObject>

#include "app/postazione.h"
#include "print/dati_stampa.h"
#include "print/foglio.h"
#include "ui/comuni/esegui.h"
#include "ui/comuni/schermo.h"
#include "ui/stampa/frm_sel_stampa.h"
#include "ui/stampa/frm_stampa.h"
#include "ui/stampa/stampanti.h"

class QGridLayout;

namespace cronovia {

/// What printing from the window needs of it.
struct Ambiente {
    Postazione& postazione;
    Interaction& interazione;
    Progress& avanzamento;
    QWidget& finestra;
    Esegui esegui;
    Stampanti stampanti;
};

/// How a printout leaves by the printer that is chosen, or into a file (`suFile`) that the person is asked for; null,
/// and the person is told, when none was named.
std::function<void(const Stampato&)> ChiediUscita(const Ambiente& ambiente, const QString& stampante, bool suFile,
                                                  const QString& titolo);

/// Of today, on the sheet that the person prepared for.
PieDiPagina PiedeDiOggi(const Postazione& postazione);

class ComandoStampa : public QObject, public Schermo {
    Q_OBJECT

  public:
    /// Puts its frames over the area. The choice of the printer is there for all printouts.
    ComandoStampa(Ambiente ambiente, Azioni& azioni, FrmSelStampa& stampante, QGridLayout& area);

    /// What is ticked goes to the screen's state.
    void Raccogli();
    /// Shows what is to be printed while that is chosen; to be called whenever the state is shown anew.
    void Mostra();
    bool FuocoDopo(Comando comando, bool appenaAperto) override;
    bool Tasto(const QKeyEvent& tasto) override;
    /// Shows the pages that are chosen; prints them where that was chosen.
    void MostraAnteprima();
    void Stampa();
    /// Whether printouts go with the map; remembered from one session to the next.
    [[nodiscard]] bool ConMappa() const { return opzioni_->ConMappa(); }
    void ConMappa(bool voluta) { opzioni_->ConMappa(voluta); }

  private:
    void EseguiStampa(const std::function<void(const Stampato&)>& stampa);
    void AvviaModuli(const DatiStampa& dati);
    [[nodiscard]] DatiStampa Dati() const;

    Ambiente ambiente_;
    Azioni& azioni_;
    FrmStampa* opzioni_;
    FrmSelStampa& stampante_;
    QFrame* inCorso_;
};

}  // namespace cronovia
