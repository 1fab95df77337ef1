// The rows of the main grid: the itinerary, or the schedule computed from it.
#pragma once

#include <QAbstractTableModel>
#include <optional>

#include "itinerary/modifiche.h"
#include "schedule/colonne.h"
#include "ui/griglia/segno.h"

namespace cronovia {

class ModelloGriglia : public QAbstractTableModel {
    Q_OBJECT

  public:
    using QAbstractTableModel::QAbstractTableModel;

    /// Shows stages, with free rows behind them up to `righeMinime`.
    void MostraItinerario(const RigheItinerario& righe, const RiepilogoItinerario& riepilogo, int righeMinime);
    void MostraCronovia(const Cronovia& cronovia);

    /// The sign of a row, counted from 0; a free row has none.
    [[nodiscard]] Segno SegnoDellaRiga(int riga) const;

    [[nodiscard]] int rowCount(const QModelIndex& parent = {}) const override;
    [[nodiscard]] int columnCount(const QModelIndex& parent = {}) const override;
    [[nodiscard]] QVariant data(const QModelIndex& index, int role) const override;
    [[nodiscard]] QVariant headerData(int section, Qt::Orientation orientation, int role) const override;

  private:
    [[nodiscard]] RigaGriglia Testi(int riga) const;

    RigheItinerario righe_;
    RiepilogoItinerario riepilogo_;
    int righeMinime_ = 0;
    std::optional<Cronovia> cronovia_;
};

}  // namespace cronovia
