// SPDX-License-Identifier: GPL-3.0-or-later
// The rows of a picking grid: trips by number, destination, country and code.
#pragma once

#include <QAbstractTableModel>
#include <vector>

#include "exchange/iei/elenco_mete.h"

namespace cronovia {

class ModelloMete : public QAbstractTableModel {
    Q_OBJECT

  public:
    using QAbstractTableModel::QAbstractTableModel;

    /// Its columns; the last one is how many there are.
    enum Colonna { Num, Meta, Nazione, RecordMeta, kColonneMete };

    /// A list that differs by one trip leaves the view where it is.
    void Mostra(const std::vector<MetaInElenco>& mete);

    [[nodiscard]] int rowCount(const QModelIndex& parent = {}) const override;
    [[nodiscard]] int columnCount(const QModelIndex& parent = {}) const override;
    [[nodiscard]] QVariant data(const QModelIndex& index, int role) const override;
    [[nodiscard]] QVariant headerData(int section, Qt::Orientation orientation, int role) const override;

  private:
    void Rinumera();

    std::vector<MetaInElenco> mete_;
    std::vector<int> numeri_;  // change with the rows only once these are told of
};

}  // namespace cronovia
