// SPDX-License-Identifier: GPL-3.0-or-later
// Boxes in which every typed letter becomes a capital.
#pragma once

class QLineEdit;

namespace cronovia {

/// From now on, also for what is pasted; undo in the box takes back what was typed as before.
void ScriviMaiuscolo(QLineEdit& casella);

}  // namespace cronovia
