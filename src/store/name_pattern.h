// SPDX-License-Identifier: GPL-3.0-or-later
// The pattern language in which localities and descriptions are compared.
#pragma once

#include <QString>
#include <QStringView>
#include <string>
#include <utility>
#include <vector>

namespace cronovia {

/// A pattern over names: "?" stands for one character, "*" for any number of them, "#" for one digit, "[a-z]" for one
/// character of a set, "[!a-z]" for one outside it; a "[" that nothing closes is a plain character. Upper and lower
/// case are the same in every script, accents count.
class NamePattern {
  public:
    /// Every text is a pattern.
    explicit NamePattern(QStringView pattern);

    /// The pattern that only this text matches, whatever wildcards it holds.
    static NamePattern Exactly(QStringView text);

    /// The way a name looks for itself: as the pattern of `ComeModello`, but the name itself always matches, even when
    /// it holds a "#" or a "[".
    static NamePattern ForName(QStringView name);

    /// Whether the whole text is one that the pattern stands for.
    [[nodiscard]] bool Matches(QStringView text) const;

    /// The pattern of a text of this one with a text of `next` right behind it.
    [[nodiscard]] NamePattern Then(const NamePattern& next) const;

    /// The pattern of the same texts written from their end to their beginning.
    [[nodiscard]] NamePattern Reversed() const;

    /// Stretch of the order in which ASCII letters of both cases are the same and all else goes by its UTF-8 bytes:
    /// the single key `from` when `single`, else the keys from `from` up to, but without, `to`.
    struct Range {
        QString from;
        QString to;
        bool single = false;
    };

    /// Stretches that together hold every text that matches. Empty when the pattern has no literal beginning: then any
    /// text may match.
    [[nodiscard]] std::vector<Range> Ranges() const;

  private:
    enum class Kind { Literal, AnyOne, AnyRun, Digit, Set };
    struct Element {
        Kind kind = Kind::Literal;
        char32_t folded = 0;                                   // Literal
        bool negated = false;                                  // Set
        std::vector<std::pair<char32_t, char32_t>> intervals;  // Set, folded and inclusive
    };

    NamePattern() = default;
    static bool Accepts(const Element& element, char32_t folded);
    static bool Matches(const std::vector<Element>& elements, QStringView text);
    static std::vector<Range> Ranges(const std::vector<Element>& elements);
    [[nodiscard]] bool BeginsAsElements() const;  // whether texts like `itself_` lie within the pattern's ranges

    std::vector<Element> elements_;
    std::vector<Element> itself_;  // what matches besides
};

}  // namespace cronovia
