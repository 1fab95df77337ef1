// SPDX-License-Identifier: GPL-3.0-or-later
// The day's timetable, the rests, and the personal defaults.
#pragma once

#include <QComboBox>
#include <QGroupBox>
#include <array>

#include "trips/meta.h"
#include "ui/comuni/azioni.h"

class QGridLayout;

namespace cronovia {

class FrmMeteTempi : public QGroupBox {
    Q_OBJECT

  public:
    /// Hours with minutes, in the order of `cmbOra_0` to `cmbOra_8`.
    static constexpr std::size_t kOrari = 9;

    /// Has the buttons of its commands made.
    explicit FrmMeteTempi(Azioni& azioni);

    /// A value that is not on offer is shown for this trip alone.
    void Mostra(const ParametriViaggio& parametri);
    /// Puts what the fields hold into the parameters; speeds and policy stay.
    void Leggi(ParametriViaggio& parametri) const;

    /// An hour or its minutes are being chosen.
    [[nodiscard]] bool OrarioInCorso() const;

  Q_SIGNALS:
    /// The person changed a field.
    void Cambiata();
    /// An hour or its minutes lost the focus.
    void OrarioLasciato();

  protected:
    bool eventFilter(QObject* oggetto, QEvent* evento) override;

  private:
    void AggiungiOrario(QGridLayout& layout, std::size_t orario, int riga, int colonna, const QString& etichetta);
    void CreaRiposi(QGridLayout& layout);
    QComboBox* CreaRiposo(const QString& nome, const QStringList& voci, const QString& istruzione);
    static void CreaDefault(Azioni& azioni, QGridLayout& layout);

    std::array<QComboBox*, kOrari> cmbOra_{};
    std::array<QComboBox*, kOrari> cmbMin_{};
    QComboBox* cmbRipM_;
    QComboBox* cmbRipH_;
    QComboBox* cmbRipG_;
    QComboBox* cmbRipGG_;
};

}  // namespace cronovia
