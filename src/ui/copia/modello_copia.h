// SPDX-License-Identifier: GPL-3.0-or-later
// The list to copy from: trips, or the stages of one.
#pragma once

#include <QAbstractTableModel>
#include <QStringList>
#include <vector>

#include "app/tavolo_copia.h"

namespace cronovia {

class ModelloCopia : public QAbstractTableModel {
    Q_OBJECT

  public:
    using QAbstractTableModel::QAbstractTableModel;

    /// Shows trips, with their number in the list; stages, with their row.
    void Mostra(const std::vector<MetaInElenco>& mete);
    void Mostra(const RigheItinerario& tappe);

    [[nodiscard]] int rowCount(const QModelIndex& parent = {}) const override;
    [[nodiscard]] int columnCount(const QModelIndex& parent = {}) const override;
    [[nodiscard]] QVariant data(const QModelIndex& index, int role) const override;
    [[nodiscard]] QVariant headerData(int section, Qt::Orientation orientation, int role) const override;

  private:
    void Mostra(const QStringList& intestazioni, std::vector<QStringList> righe,
                const std::vector<Qt::Alignment>& dove);

    QStringList intestazioni_;
    std::vector<Qt::Alignment> allineamenti_;
    std::vector<QStringList> righe_;
};

}  // namespace cronovia
