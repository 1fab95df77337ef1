// SPDX-License-Identifier: GPL-3.0-or-later
// Entry of the itinerary's stages, with the commands that change them.
#pragma once

#include <QCheckBox>
#include <QComboBox>
#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <array>
#include <optional>

#include "itinerary/modifiche.h"
#include "ui/comuni/azioni.h"

namespace cronovia {

class FrmInputBox : public QGroupBox {
    Q_OBJECT

  public:
    /// Has the buttons of its commands made.
    explicit FrmInputBox(Azioni& azioni);

    /// Puts a row, counted from 1, and its fields into the controls that show something else; without a type that of
    /// the road stays. Whether kilometres can be progressive ones, which the person may deny; nothing: not shown.
    void Mostra(int riga, const CampiTappa& campi, std::optional<bool> progressivi);
    /// What the controls hold, trimmed; kilometres that are no number are 0 and so marked.
    [[nodiscard]] CampiTappa Campi() const;
    /// Beside the fields; nothing is shown for the empty text.
    void MostraSuggerimenti(const QString& testo);
    /// The kilometres that Tab takes into the empty field; nothing: none are known.
    void MostraStima(std::optional<int> km);
    /// The kilometres are those that were proposed, and nobody has touched them since.
    [[nodiscard]] bool KmStimati() const { return kmStimati_; }
    /// The field for the place, for who proposes names.
    [[nodiscard]] QLineEdit& CasellaTappa() const { return *txtTappa_; }
    void FuocoSullaTappa();
    void FuocoSuiKm();

  Q_SIGNALS:
    /// The fields hold something else.
    void Cambiata();

  protected:
    bool eventFilter(QObject* oggetto, QEvent* evento) override;

  private:
    void MostraSegnaposto();
    void MostraCampi(int riga, const CampiTappa& campi);
    void MostraKmProgressivi(std::optional<bool> possibili);
    QWidget* CreaCampi();
    static QWidget* CreaComandi(Azioni& azioni);

    QLineEdit* txtRiga_;
    QLineEdit* txtTappa_;
    QLineEdit* txtNumStrada_;
    QLineEdit* txtKm_;
    QComboBox* cmbTipoStrada_;
    std::array<QComboBox*, 3> cmbSosta_{};
    QCheckBox* chkEndDay_;
    QCheckBox* chkKm_;
    QLabel* lblSuggerimenti_ = nullptr;
    int riga_ = 0;
    std::optional<bool> progressivi_;
    bool kmDaIndicare_ = false;
    std::optional<int> stima_;
    bool kmStimati_ = false;
};

}  // namespace cronovia
