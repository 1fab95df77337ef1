// SPDX-License-Identifier: GPL-3.0-or-later
// The rows of the main grid while it shows the guide of a trip.
#pragma once

#include <QAbstractTableModel>

#include "app/tavolo_guida.h"

namespace cronovia {

class ModelloGuida : public QAbstractTableModel {
    Q_OBJECT

  public:
    using QAbstractTableModel::QAbstractTableModel;

    /// Shows a list, with free rows behind it up to `righeMinime`. True when it was not on show already.
    bool Mostra(const TavoloGuida::Righe& elenco, int righeMinime);

    [[nodiscard]] int rowCount(const QModelIndex& parent = {}) const override;
    [[nodiscard]] int columnCount(const QModelIndex& parent = {}) const override;
    [[nodiscard]] QVariant data(const QModelIndex& index, int role) const override;
    [[nodiscard]] QVariant headerData(int section, Qt::Orientation orientation, int role) const override;

  private:
    TavoloGuida::Righe elenco_;
    int righeMinime_ = 0;
};

}  // namespace cronovia
