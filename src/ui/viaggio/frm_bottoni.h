// The main commands.
#pragma once

#include <QFrame>
#include <QPushButton>
#include <array>

#include "app/modi_comandi.h"
#include "ui/comuni/controlli.h"

namespace cronovia {

class FrmBottoni : public QFrame {
    Q_OBJECT

  public:
    explicit FrmBottoni(QWidget* parent = nullptr);

    void Applica(const StatoComandi& stato, bool daSbloccare, bool converte);
    [[nodiscard]] QPushButton& Pulsante(Comando comando) const { return *pulsanti_[static_cast<std::size_t>(comando)]; }

  Q_SIGNALS:
    void Premuto(Comando comando);
    void Converte();

  private:
    std::array<QPushButton*, kComandi> pulsanti_{};
    QPushButton* cmdConverte_;
};

}  // namespace cronovia
