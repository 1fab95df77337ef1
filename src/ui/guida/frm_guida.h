// Entry of what the guide says of a locality.
#pragma once

#include <QComboBox>
#include <QGroupBox>
#include <QLineEdit>
#include <QPushButton>
#include <vector>

#include "guide/annotazioni.h"

namespace cronovia {

class FrmGuida : public QGroupBox {
    Q_OBJECT

  public:
    explicit FrmGuida(QWidget* parent = nullptr);

    /// The types on offer; what is typed stays.
    void MostraTipi(const std::vector<TipoGuida>& tipi);
    /// Shows the fields of a row; only a row with an entry can be deleted.
    void Mostra(const QString& localita, const CampiVoce& campi, bool cancellabile);
    void Abilita(bool libero);
    /// What the fields hold, as it was typed.
    [[nodiscard]] CampiVoce Campi() const;
    void FuocoSullaDescrizione();
    /// On what an entry that was refused lacks.
    /// Nothing is selected: what was typed is put right.
    void FuocoSulCampo(guida::Field campo);
    /// What Enter does where nothing was typed.
    [[nodiscard]] QPushButton& PulsanteFine() const { return *cmdFineInserimento_; }

  Q_SIGNALS:
    void Salva();
    void Cancella();
    void Cerca();
    void Fine();
    void Stampa();

  private:
    QLayout* CreaCampi();
    QLayout* CreaComandi();

    QLineEdit* txtGCitta_;
    QLineEdit* txtGDescr_;
    QComboBox* cmbGTipo_;
    QComboBox* cmbGH_;
    QComboBox* cmbGM_;
    QPushButton* cmdCancellaRiga_;
    QPushButton* cmdFineInserimento_;
    bool cancellabile_ = false;  // the row that is shown
};

}  // namespace cronovia
