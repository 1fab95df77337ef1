// Destination, start and end of the trip.
#pragma once

#include <QComboBox>
#include <QGroupBox>
#include <QLineEdit>
#include <array>

#include "itinerary/riepilogo.h"
#include "schedule/riga_cronovia.h"
#include "trips/meta.h"

class QGridLayout;

namespace cronovia {

class FrmMetePeriodo : public QGroupBox {
    Q_OBJECT

  public:
    /// Years are on offer from 1998 to some years after the current one.
    explicit FrmMetePeriodo(int annoCorrente, QWidget* parent = nullptr);

    void Mostra(const Meta& meta, const RiepilogoItinerario& riepilogo);
    /// Empty texts without a schedule.
    void MostraFine(const TestiFine& fine);
    /// Puts what the fields hold into the trip; of a start that is no date, its parts.
    void Leggi(Meta& meta) const;
    void FuocoSullaLocalita();
    void FuocoSullaNazione();
    /// On the part of the start that is missing, else on the year.
    void FuocoSullInizio();

  Q_SIGNALS:
    /// The person changed a field; a part of the start.
    void Cambiata();
    void InizioCambiato();

  private:
    void CreaMeta(QGridLayout& layout);
    void CreaInizio(QGridLayout& griglia, int annoCorrente);
    void CreaFine(QGridLayout& griglia);
    void CreaCalcolo(QGridLayout& griglia);
    [[nodiscard]] PartiData Inizio() const;
    void MostraInizio(const PartiData& parti);

    QLineEdit* txtCodice_;
    QLineEdit* txtLocalita_;
    QLineEdit* txtNazione_;
    std::array<QComboBox*, 5> cmbInizio_{};
    QLineEdit* txtInizioGSett_;
    std::array<QLineEdit*, 7> txtFine_{};
    QComboBox* cmbGiorni_;
    QComboBox* cmbSoste_;
};

}  // namespace cronovia
