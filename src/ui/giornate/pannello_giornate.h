// SPDX-License-Identifier: GPL-3.0-or-later
// The panel with the days of the journey.
#pragma once

#include <QDockWidget>
#include <QLabel>
#include <optional>

#include "ui/comuni/esegui.h"
#include "ui/comuni/pannello.h"
#include "ui/giornate/vista_giornate.h"

namespace cronovia {

class PannelloGiornate : public Pannello {
    Q_OBJECT

  public:
    PannelloGiornate(Postazione& postazione, Esegui esegui);

    void Mostra(const Postazione& postazione) override;
    /// Follows the row of the schedule that is current elsewhere, or the day without a row.
    void Segue(int giornata, int riga);
    /// How high it is while it has days to show.
    void SiRicorda(AspettoFinestra& aspetto) override;

  Q_SIGNALS:
    /// The person wants to see a row of the schedule; a day. Both count from 0.
    void RigaScelta(int riga);
    void GiornataScelta(int giornata);
    /// And to go on among those rows.
    void RigheChieste();

  protected:
    void showEvent(QShowEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;

  private:
    using DellaGiornata = std::function<void(Postazione&, int giornata)>;

    void CreaAzioni();
    QAction* NuovaAzione(const QString& nome, const QString& testo, const QKeySequence& tasto, DellaGiornata comando);
    void Aggiorna();
    void MostraFine();
    void MostraPieno(bool pieno);
    [[nodiscard]] bool SopraOSotto();
    void LimitaAltezza();

    Postazione& postazione_;
    Esegui esegui_;
    ModelloGiornate modello_;
    VistaGiornate* vista_;
    QLabel* avviso_;
    QWidget* legenda_ = nullptr;
    QAction* fine_ = nullptr;
    int mostrata_ = -1;          // the version of the schedule
    std::optional<bool> pieno_;  // there are days
    int altezza_ = 0;            // 0 until it had any
};

}  // namespace cronovia
