// Printing the guide from its screen: options, printer, run.
#pragma once

#include <QObject>
#include <optional>

#include "ui/guida/frm_guida_stampa.h"
#include "ui/stampa/comando_stampa.h"

namespace cronovia {

class ComandoStampaGuida : public QObject {
    Q_OBJECT

  public:
    /// Puts its frame over the area; the choice of the printer is that of the schedule.
    ComandoStampaGuida(const ComandoStampa::Ambiente& ambiente, FrmSelStampa& stampante, QGridLayout& area);

    void Apri();
    /// The frames are on show.
    [[nodiscard]] bool Aperto() const { return opzioni_->isVisible(); }
    /// From the printers back to the options, from there back to the guide.
    void Rinuncia();

  Q_SIGNALS:
    /// The frames came or went.
    void Cambiato();

  private:
    void Chiudi();
    void Stampa();
    [[nodiscard]] std::optional<Stampato> Prepara();

    ComandoStampa::Ambiente ambiente_;
    FrmSelStampa& stampante_;
    FrmGuidaStampa* opzioni_;
};

}  // namespace cronovia
