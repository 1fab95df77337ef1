// SPDX-License-Identifier: GPL-3.0-or-later
// Places to stay from a file, before they become entries of the guide.
#pragma once

#include <QWidget>
#include <vector>

#include "exchange/soste/importa_soste.h"

namespace cronovia {

/// The file chosen; empty when the person calls it off.
QString ScegliFileSoste(QWidget& finestra);

/// Shows in a dialog over the window what would become of each; whether the new ones are to be added.
bool ConfermaSoste(QWidget& finestra, const std::vector<SostaProposta>& soste);

}  // namespace cronovia
