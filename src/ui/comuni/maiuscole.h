// SPDX-License-Identifier: GPL-3.0-or-later
// Boxes in which every typed letter becomes a capital.
#pragma once

class QLineEdit;

namespace cronovia {

void ScriviMaiuscolo(QLineEdit& casella);

}  // namespace cronovia
