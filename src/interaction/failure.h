// SPDX-License-Identifier: GPL-3.0-or-later
// A command that could not be done.
#pragma once

#include <QString>
#include <stdexcept>

namespace cronovia {

/// Carries one Italian sentence, ready for the person. Whoever throws it has changed nothing.
class Failure : public std::runtime_error {
  public:
    /// Takes that sentence.
    explicit Failure(const QString& message) : std::runtime_error(message.toStdString()), message_(message) {}

    /// The sentence.
    [[nodiscard]] const QString& Message() const { return message_; }

  private:
    QString message_;
};

}  // namespace cronovia
