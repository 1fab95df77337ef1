// SPDX-License-Identifier: GPL-3.0-or-later
// Draws the cells of the grid, with the marks where days begin in an itinerary.
#pragma once

#include <QStyledItemDelegate>

namespace cronovia {

class DelegatoGriglia : public QStyledItemDelegate {
    Q_OBJECT

  public:
    using QStyledItemDelegate::QStyledItemDelegate;

    /// A rule above the row, broken where the day begins within it; the name of the day at the end of the cell of the
    /// stage, or its number, as there is room.
    void paint(QPainter* painter, const QStyleOptionViewItem& option, const QModelIndex& index) const override;

  protected:
    void initStyleOption(QStyleOptionViewItem* option, const QModelIndex& index) const override;
};

}  // namespace cronovia
