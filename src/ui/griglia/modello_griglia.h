// The rows of the main grid: the itinerary, or the schedule computed from it.
#pragma once

#include <QAbstractTableModel>
#include <map>
#include <optional>

#include "itinerary/modifiche.h"
#include "schedule/colonne.h"
#include "ui/griglia/righe_mostrate.h"
#include "ui/griglia/segno.h"

namespace cronovia {

/// Role of the cells of a day's line: true.
inline constexpr int kRuoloLinea = Qt::UserRole + 1;

class ModelloGriglia : public QAbstractTableModel {
    Q_OBJECT

  public:
    using QAbstractTableModel::QAbstractTableModel;

    /// Shows stages, with free rows behind them up to `righeMinime`.
    void MostraItinerario(const RigheItinerario& righe, const RiepilogoItinerario& riepilogo, int righeMinime);
    /// Shows a schedule, with a line before the rows of each of its days. Days that were closed stay so.
    void MostraCronovia(const Cronovia& cronovia, const std::vector<Giornata>& giornate);

    /// The sign of a row, counted from 0; a free row has none.
    [[nodiscard]] Segno SegnoDellaRiga(int riga) const;

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
    [[nodiscard]] QString Suggerimento(int riga, Colonna colonna) const;
    [[nodiscard]] QVariant DatiDellaLinea(int giornata, Colonna colonna, int role) const;

    RigheItinerario righe_;
    RiepilogoItinerario riepilogo_;
    int righeMinime_ = 0;
    std::optional<Cronovia> cronovia_;
    std::vector<Giornata> giornate_;
    std::map<int, QString> motivi_;  // why something is late, by row of the schedule
    RigheMostrate mostrate_;
};

}  // namespace cronovia
