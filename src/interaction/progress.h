// SPDX-License-Identifier: GPL-3.0-or-later
// What a long procedure tells while it runs.
#pragma once

#include <QString>

namespace cronovia {

/// The face of a long procedure: its title, how far it is, and whether the person wants it to stop. The base class
/// shows nothing and never stops.
class Progress {
  public:
    Progress() = default;
    Progress(const Progress&) = delete;
    Progress& operator=(const Progress&) = delete;
    virtual ~Progress() = default;

    /// What is being done, for the person.
    virtual void Title(const QString& /*title*/) {}
    /// `count` of `total` items are done; both 0 when the procedure has ended.
    virtual void Advance(double /*count*/, double /*total*/) {}
    /// Whether the person wants it to stop; asked often, so it must be cheap.
    virtual bool StopRequested() { return false; }
};

/// How a procedure is left from deep inside when the person wants it to stop. It does not leave the command, whose
/// result tells of it: to stop is no failure.
struct Stopped {};

/// Throws `Stopped` when the person wants the procedure to stop.
inline void HeedStop(Progress& progress) {
    if (progress.StopRequested()) throw Stopped();
}

}  // namespace cronovia
