// SPDX-License-Identifier: GPL-3.0-or-later
// How the screens of the window have commands run.
#pragma once

#include <functional>

namespace cronovia {

/// Runs a command on what the fields hold, then shows the state anew; nothing while another command is on.
using Esegui = std::function<void(const std::function<void()>&)>;

}  // namespace cronovia
