// SPDX-License-Identifier: GPL-3.0-or-later
// Where the person has a route planner's export.
#pragma once

#include <QString>
#include <QWidget>

namespace cronovia {

/// The file chosen; empty when the person calls it off.
QString ScegliFilePercorso(QWidget& finestra);

}  // namespace cronovia
