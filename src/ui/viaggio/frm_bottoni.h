// The main commands.
#pragma once

#include <QFrame>
#include <QPushButton>
#include <array>

#include "app/comandi.h"

namespace cronovia {

class FrmBottoni : public QFrame {
    Q_OBJECT

  public:
    explicit FrmBottoni(QWidget* parent = nullptr);

    /// Enabled and captions as they are at this moment.
    void Applica(const StatoComandi& stato);
    /// The button of one of the main commands.
    [[nodiscard]] QPushButton& Pulsante(Comando comando) const { return *pulsanti_[static_cast<std::size_t>(comando)]; }

  Q_SIGNALS:
    void Premuto(Comando comando);

  private:
    std::array<QPushButton*, kComandi> pulsanti_{};
    QPushButton* cmdConverte_;
};

}  // namespace cronovia
