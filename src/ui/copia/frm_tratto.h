// The stretch to copy: its first and last stage, whether its stops come along.
#pragma once

#include <QCheckBox>
#include <QGroupBox>
#include <QLineEdit>
#include <QPushButton>
#include <array>

#include "app/tavolo_copia.h"

namespace cronovia {

class FrmTratto : public QGroupBox {
    Q_OBJECT

  public:
    explicit FrmTratto(QWidget* parent = nullptr);

    /// Shows the stages assigned; the copy can be made once both are.
    void Mostra(const TavoloCopia& copia);
    /// No stops, until the person wants them.
    void Azzera() { chkInsSoste_->setChecked(false); }
    [[nodiscard]] bool ConSoste() const { return chkInsSoste_->isChecked(); }

  Q_SIGNALS:
    /// The current stage shall be the first (0) or the last (1) of the stretch.
    void Assegna(int estremo);
    void Esegui();
    void Rinuncia();

  private:
    QWidget* CreaEstremo(int estremo);
    QLayout* CreaComandi();

    /// The boxes of one end of the stretch.
    struct Estremo {
        QLineEdit* txtInsLoc = nullptr;
        QLineEdit* txtInsNS = nullptr;
        QLineEdit* txtInsKm = nullptr;
        QLineEdit* txtInsNum = nullptr;
    };
    std::array<Estremo, 2> estremi_;
    QCheckBox* chkInsSoste_;
    QPushButton* cmdInsEsegui_;
};

}  // namespace cronovia
