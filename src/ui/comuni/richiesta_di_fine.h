// SPDX-License-Identifier: GPL-3.0-or-later
// The system wants the program to end: a signal, which cannot wait for a person.
#pragma once

#include <QTimer>
#include <functional>

namespace cronovia {

/// Keeps calling after the request for an end has come, four times a second, also under boxes and in runs, until the
/// program has ended.
class RichiestaDiFine : public QTimer {
    Q_OBJECT

  public:
    /// Belongs to `padrone`; one at a time in a program, since it takes the signal over.
    RichiestaDiFine(QObject& padrone, const std::function<void()>& chiamata);
};

}  // namespace cronovia
