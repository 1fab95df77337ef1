// SPDX-License-Identifier: GPL-3.0-or-later
// The signs of the commands, drawn in the colours that texts have: sharp at every size, legible in every theme.
#pragma once

#include <QIcon>
#include <QIconEngine>
#include <QPixmap>

#include "app/stato_comandi.h"

namespace cronovia {

/// Where a sign stands: what is chosen in a menu has another ground.
enum class PostoIcona { Menu, Pulsante };

/// What paints a sign at any size, on a ground that can be seen through.
class MotoreDipinto : public QIconEngine {
  public:
    QPixmap pixmap(const QSize& size, QIcon::Mode mode, QIcon::State state) override;
};

/// A drawing of the program, by its name; none when there is no such drawing.
QIcon IconaDisegnata(const QString& nome, PostoIcona posto);

/// The sign of a command; none when it has none.
QIcon IconaDelComando(Comando comando, PostoIcona posto);

}  // namespace cronovia
