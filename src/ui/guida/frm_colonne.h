// SPDX-License-Identifier: GPL-3.0-or-later
// Which column of a table of places to stay tells what, when their names do not.
#pragma once

#include <QWidget>
#include <optional>

#include "exchange/soste/lettore_soste.h"

namespace cronovia {

/// Asks in a dialog over the window, with what could be guessed; nothing when the person calls it off.
std::optional<PostoColonne> ChiediColonne(QWidget& finestra, const TabellaDaSpiegare& tabella);

}  // namespace cronovia
