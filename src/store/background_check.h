// SPDX-License-Identifier: GPL-3.0-or-later
// A large archive looked through beside the work.
#pragma once

#include <QString>
#include <functional>
#include <optional>
#include <thread>

namespace cronovia {

/// Looks through the pages and indexes of an archive file, in a thread and a connection of its own. Other programs that
/// write wait meanwhile, so it does not last longer than they do.
class BackgroundCheck {
  public:
    /// Of the archive file.
    explicit BackgroundCheck(QString path) : path_(std::move(path)) {}

    /// What it came to: whether the file is damaged; nothing when it took too long, or the file could not be asked.
    using Ended = std::function<void(std::optional<bool>)>;

    /// Begins, once until `Stop`; `ended` is called from its thread, not when it was stopped.
    void Start(Ended ended);
    /// Returns once it has let the file go.
    void Stop();

  private:
    QString path_;
    std::jthread thread_;
};

}  // namespace cronovia
