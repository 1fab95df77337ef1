// SPDX-License-Identifier: GPL-3.0-or-later
// The strips of the days, one below the other, under a scale of the hours.
#pragma once

#include <QListView>

#include "ui/giornate/modello_giornate.h"

namespace cronovia {

class VistaGiornate : public QListView {
    Q_OBJECT

  public:
    /// The model must outlive the view.
    explicit VistaGiornate(ModelloGiornate& modello, QWidget* parent = nullptr);

    /// Frames the bars of a row of the schedule, and goes to a day; nothing asks for anything then.
    void Segna(int riga);
    void VaiAllaGiornata(int giornata);

    /// Where the strip of a row of the list lies that takes this rectangle.
    [[nodiscard]] QRect Striscia(const QRect& riga) const;
    /// What is told of the bar at a point; empty where there is none.
    [[nodiscard]] QString Istruzione(const QPoint& punto) const;
    [[nodiscard]] QSize sizeHint() const override;
    [[nodiscard]] int RigaSegnata() const { return segnata_; }

  Q_SIGNALS:
    /// The person wants to see a row of the schedule; a day.
    void RigaScelta(int riga);
    void GiornataScelta(int giornata);
    /// A day is to be moved before another one, both from 0.
    void GiornataLasciata(int giornata, int prima);
    /// The actions are about to be shown as the menu of the current day.
    void MenuChiesto();

  protected:
    void contextMenuEvent(QContextMenuEvent* event) override;
    QModelIndex moveCursor(CursorAction azione, Qt::KeyboardModifiers modifiers) override;
    void currentChanged(const QModelIndex& current, const QModelIndex& previous) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    bool viewportEvent(QEvent* event) override;
    void updateGeometries() override;
    void changeEvent(QEvent* event) override;

  private:
    [[nodiscard]] const PezzoDelGiorno* PezzoIn(const QPoint& punto) const;

    ModelloGiornate& modello_;
    QWidget* scala_;
    int segnata_ = PezzoDelGiorno::kSenzaRiga;
    bool inSelezione_ = false;
};

}  // namespace cronovia
