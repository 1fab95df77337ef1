// SPDX-License-Identifier: GPL-3.0-or-later
// Rows that are dragged to another place of a list, or from one list to another.
#pragma once

#include <QAbstractItemView>
#include <QPoint>
#include <QRubberBand>
#include <functional>
#include <optional>

#include "itinerary/tratti.h"

namespace cronovia {

/// What is dragged: a day, counted from 0, or else rows of the itinerary.
struct Trascinata {
    std::optional<int> giornata;
    Tratto righe;
};

/// Lets rows of a view be dragged and dropped; drops from other programs are left to whoever wants them.
class Trascinamento : public QObject {
    Q_OBJECT

  public:
    /// What a press at a point of the view takes hold of; nothing where nothing can be dragged.
    using Presa = std::function<std::optional<Trascinata>(const QPoint&)>;

    /// Belongs to the view.
    Trascinamento(QAbstractItemView& vista, Presa presa);

    bool eventFilter(QObject* oggetto, QEvent* event) override;

    /// As it travels while it is dragged; the caller owns it.
    static QMimeData* NuoviDati(const Trascinata& trascinata);

  Q_SIGNALS:
    /// Dropped before a row of the view, counted from 0; as many as there are rows: behind the last.
    void Lasciata(const Trascinata& trascinata, int prima);

  private:
    void Prende(const QMouseEvent& event);
    bool Muove(const QMouseEvent& event);
    bool Sorvola(QDropEvent& event);
    void Lascia(QDropEvent& event);
    [[nodiscard]] int RigaPrimaDi(const QPoint& punto) const;

    QAbstractItemView& vista_;
    Presa presa_;
    std::optional<Trascinata> presaIn_;
    QPoint inizio_;
    QRubberBand* segno_;
};

}  // namespace cronovia
