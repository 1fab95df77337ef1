// SPDX-License-Identifier: GPL-3.0-or-later
// The copies of the archive, to choose the one that is put back.
#pragma once

#include <QString>
#include <QWidget>
#include <optional>
#include <vector>

#include "app/copie.h"

namespace cronovia {

/// Path of the copy chosen in a dialog over the window, which lists date, trips, stages, size and reason of each;
/// nothing when the person does not want any.
std::optional<QString> ChiediCopia(QWidget& finestra, const std::vector<CopiaInElenco>& copie);

}  // namespace cronovia
