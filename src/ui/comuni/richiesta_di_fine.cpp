// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/comuni/richiesta_di_fine.h"

#include <csignal>

namespace cronovia {

namespace {

// A handler of signals may do no more than this, and is handed nothing.
volatile std::sig_atomic_t fineRichiesta = 0;

extern "C" void ChiediFine(int /*segnale*/) { fineRichiesta = 1; }

}  // namespace

RichiestaDiFine::RichiestaDiFine(QObject& padrone, const std::function<void()>& chiamata) : QTimer(&padrone) {
    fineRichiesta = 0;
    std::signal(SIGTERM, &ChiediFine);
    connect(this, &QTimer::timeout, this, [chiamata] {
        if (fineRichiesta != 0) chiamata();
    });
    start(250);
}

}  // namespace cronovia
