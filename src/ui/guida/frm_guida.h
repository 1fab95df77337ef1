// SPDX-License-Identifier: GPL-3.0-or-later
// Entry of what the guide says of a locality.
#pragma once

#include <QComboBox>
#include <QGroupBox>
#include <QLineEdit>
#include <QPushButton>
#include <vector>

#include "guide/annotazioni.h"
#include "ui/comuni/azioni.h"

namespace cronovia {

class FrmGuida : public QGroupBox {
    Q_OBJECT

  public:
    /// Has the buttons of its commands made.
    explicit FrmGuida(Azioni& azioni);

    /// The types on offer; what is typed stays.
    void MostraTipi(const std::vector<TipoGuida>& tipi);
    /// Shows the fields of a row; what is typed into them goes.
    void Mostra(const QString& localita, const CampiVoce& campi);
    /// What the fields hold, as it was typed.
    [[nodiscard]] CampiVoce Campi() const;
    void FuocoSullaDescrizione();
    /// On what an entry that was refused lacks. Nothing is selected: what was typed is put right.
    void FuocoSulCampo(guida::Field campo);

  private:
    QLayout* CreaCampi();
    static QLayout* CreaComandi(Azioni& azioni);

    QLineEdit* txtGCitta_;
    QLineEdit* txtGDescr_;
    QComboBox* cmbGTipo_;
    QComboBox* cmbGH_;
    QComboBox* cmbGM_;
};

}  // namespace cronovia
