// SPDX-License-Identifier: GPL-3.0-or-later
// Destination, start and end of the trip.
#pragma once

#include <QComboBox>
#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>
#include <array>
#include <vector>

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

    /// Destination, start, policy and days wanted; which days are on offer follows from the stages.
    void Mostra(const Meta& meta, const RiepilogoItinerario& riepilogo);
    /// Empty texts without a schedule. How the end stands to when one has to be home; nothing without such an hour.
    void MostraFine(const TestiFine& fine);
    void MostraScadenza(const QString& scadenza, bool inRitardo);
    /// Puts what the fields hold into the trip; of a start that is no date, its parts.
    void Leggi(Meta& meta) const;
    void FuocoSullaLocalita();
    void FuocoSullaNazione();
    /// On the part of the start that is missing, else on the year.
    void FuocoSullInizio();
    void FuocoSullAnno();
    /// Puts the year back that was there before a typed one out of the calendar, and says so by `AnnoRifiutato`; false
    /// when there is none. Meanwhile the fields hold the year that was there.
    bool RifiutaAnno();

  Q_SIGNALS:
    /// The person changed a field; a part of the start.
    void Cambiata();
    void InizioCambiato();
    void AnnoRifiutato();

  private:
    void CreaMeta(QGridLayout& layout);
    void CreaInizio(QGridLayout& griglia, int annoCorrente);
    void CreaFine(QGridLayout& griglia);
    void CreaCalcolo(QGridLayout& griglia);
    void LasciaScrivereAnno();
    void AnnoScritto();
    [[nodiscard]] bool AnnoFuoriCalendario() const;
    [[nodiscard]] PartiData Inizio() const;
    void MostraInizio(const PartiData& parti);

    QLineEdit* txtCodice_;
    QLineEdit* txtLocalita_;
    QLineEdit* txtNazione_;
    std::array<QComboBox*, 5> cmbInizio_{};
    QString annoMostrato_;
    QLineEdit* txtInizioGSett_;
    std::array<QLineEdit*, 7> txtFine_{};
    std::vector<QLabel*> segniFine_;  // between the parts of the end
    QLabel* lblScadenza_;
    QComboBox* cmbGiorni_;
    QComboBox* cmbSoste_;
};

}  // namespace cronovia
