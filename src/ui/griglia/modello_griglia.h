// SPDX-License-Identifier: GPL-3.0-or-later
// The rows of the main grid: the itinerary, or the schedule computed from it.
#pragma once

#include <QAbstractTableModel>
#include <map>
#include <optional>

#include "itinerary/modifiche.h"
#include "schedule/colonne.h"
#include "schedule/giorni_itinerario.h"
#include "ui/griglia/righe_mostrate.h"
#include "ui/griglia/segno.h"

namespace cronovia {

/// Roles of cells. Of a day's line: true. Where days begin in the itinerary: "Giorno 3" or "Giorni 3-5"; and whether
/// the first of them begins on the way to the stage, or at its stop.
inline constexpr int kRuoloLinea = Qt::UserRole + 1;
inline constexpr int kRuoloCambio = Qt::UserRole + 2;
inline constexpr int kRuoloCambioDentro = Qt::UserRole + 3;

class ModelloGriglia : public QAbstractTableModel {
    Q_OBJECT

  public:
    using QAbstractTableModel::QAbstractTableModel;

    /// Shows stages, with free rows behind them up to `righeMinime`.
    void MostraItinerario(const RigheItinerario& righe, const RiepilogoItinerario& riepilogo, int righeMinime);
    /// Marks where days begin among the stages, in the place of the marks that were there.
    void SegnaGiorni(const std::vector<CambioGiorno>& cambi);
    /// Shows a schedule, with a line before the rows of each of its days. Days that were closed stay so.
    void MostraCronovia(const Cronovia& cronovia, const std::vector<Giornata>& giornate);

    /// The sign of a row, counted from 0; a free row has none.
    [[nodiscard]] Segno SegnoDellaRiga(int riga) const;
    [[nodiscard]] bool InRitardo(int riga) const;

    /// Which rows stand for which rows of the schedule; none while the itinerary is shown.
    [[nodiscard]] const RigheMostrate& Mostrate() const { return mostrate_; }
    /// The day whose line a row is; nothing for any other row, and in the itinerary.
    [[nodiscard]] std::optional<int> Linea(int riga) const;
    /// Closes a day, so that only its line is shown, or opens it.
    void Chiudi(int giornata, bool chiusa);

    [[nodiscard]] int rowCount(const QModelIndex& parent = {}) const override;
    [[nodiscard]] int columnCount(const QModelIndex& parent = {}) const override;
    [[nodiscard]] QVariant data(const QModelIndex& index, int role) const override;
    [[nodiscard]] QVariant headerData(int section, Qt::Orientation orientation, int role) const override;

  private:
    [[nodiscard]] RigaGriglia Testi(int riga) const;
    [[nodiscard]] const Tappa* TappaDi(int riga) const;
    [[nodiscard]] QString Istruzione(int riga, Colonna colonna) const;
    [[nodiscard]] QString TestoParlato(int riga, Colonna colonna) const;
    [[nodiscard]] const CambioGiorno* Cambio(int riga) const;
    [[nodiscard]] QVariant DatiDellaLinea(int giornata, Colonna colonna, int role) const;

    RigheItinerario righe_;
    RiepilogoItinerario riepilogo_;
    int righeMinime_ = 0;
    std::vector<CambioGiorno> cambi_;
    std::optional<Cronovia> cronovia_;
    std::vector<Giornata> giornate_;
    std::map<int, QString> motivi_;  // why something is late, by row of the schedule
    RigheMostrate mostrate_;
};

}  // namespace cronovia
