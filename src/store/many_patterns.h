// SPDX-License-Identifier: GPL-3.0-or-later
// Many patterns looked for at once. Patterns are told by their places in their list.
#pragma once

#include <QHash>
#include <QString>
#include <cstddef>
#include <optional>
#include <span>
#include <string>
#include <vector>

#include "store/name_pattern.h"

namespace cronovia {

/// A stretch of the order that `NamePattern::Range` tells of, both ends included and in UTF-8 with small ASCII letters,
/// and the patterns that may match what lies in it.
struct Stretch {
    std::string from;
    std::string to;
    std::vector<std::size_t> patterns;  ///< in rising order, each once
};

/// The stretches of the patterns that have a literal beginning, in order. None of them overlap: no text lies in two,
/// however many patterns begin alike.
std::vector<Stretch> StretchesOf(std::span<const NamePattern> patterns);

/// The patterns that have no literal beginning: what they match may lie anywhere.
std::vector<std::size_t> WithoutBeginning(std::span<const NamePattern> patterns);

/// Which of the patterns match a text, remembered: many rows have the same.
class Matcher {
  public:
    /// The patterns must outlive it.
    explicit Matcher(std::span<const NamePattern> patterns) : patterns_(patterns) {}

    /// Those of the candidates that match, until the next question. A text always comes with the same candidates.
    const std::vector<std::size_t>& Matching(const QString& text, const std::vector<std::size_t>& candidates);

  private:
    const std::vector<std::size_t>& Known(const QString& text, const std::vector<std::size_t>& candidates);

    std::span<const NamePattern> patterns_;
    QHash<QString, std::vector<std::size_t>> known_;
    std::optional<QString> last_;  // held, so that the same characters at the same place are the same text
    std::vector<std::size_t> matching_;
};

}  // namespace cronovia
