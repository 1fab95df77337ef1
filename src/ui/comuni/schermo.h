// SPDX-License-Identifier: GPL-3.0-or-later
// What the window asks of each screen. One answers for itself alone: nothing while another is in front. What a screen,
// a frame or a panel is handed by reference outlives it.
#pragma once

#include <QKeyEvent>

#include "app/stato_comandi.h"

namespace cronovia {

class Schermo {
  public:
    Schermo() = default;
    Schermo(const Schermo&) = delete;
    Schermo& operator=(const Schermo&) = delete;
    virtual ~Schermo() = default;

    /// Puts the focus where the person goes on after a command; `appenaAperto` when that brought the screen in front.
    /// False when the focus may stay where it is.
    virtual bool FuocoDopo(Comando comando, bool appenaAperto) = 0;
    /// Does what a key means here; false for all others.
    virtual bool Tasto(const QKeyEvent& /*tasto*/) { return false; }
};

}  // namespace cronovia
