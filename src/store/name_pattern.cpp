// SPDX-License-Identifier: GPL-3.0-or-later
#include "store/name_pattern.h"

#include <QChar>
#include <QList>
#include <algorithm>
#include <unordered_map>

#include "calendar/testo.h"

namespace cronovia {

namespace {

constexpr std::size_t kMaxRanges = 16;
constexpr std::size_t kMaxBeginning = 200;  // of a range, in characters; no field is as wide

// Folds the case of one character. A character outside ASCII never becomes an ASCII one (the kelvin sign is no K), so
// that the ASCII letters of an index key tell all there is to know about its case.
char32_t Fold(char32_t c) {
    if (c < 0x80) return c >= U'A' && c <= U'Z' ? c + 32 : c;
    const char32_t folded = QChar::toCaseFolded(c);
    return folded < 0x80 ? c : folded;
}

// All characters of the planes with letters, outside ASCII, that fold to `folded`; at least the character itself.
std::u32string Variants(char32_t folded) {
    static const std::unordered_map<char32_t, std::u32string> variants = [] {
        std::unordered_map<char32_t, std::u32string> map;
        for (char32_t c = 0x80; c < 0x20000; ++c) {
            const char32_t f = Fold(c);
            if (f != c) map[f] += c;
        }
        return map;
    }();
    std::u32string all(1, folded);
    if (const auto found = variants.find(folded); found != variants.end()) all += found->second;
    return all;
}

// Sorts intervals and joins those that touch or overlap; those that end before they begin hold nothing.
void Merge(std::vector<std::pair<char32_t, char32_t>>& intervals) {
    std::erase_if(intervals, [](const auto& pair) { return pair.second < pair.first; });
    std::sort(intervals.begin(), intervals.end());
    std::size_t kept = 0;
    for (const auto& pair : intervals) {
        if (kept > 0 && pair.first <= intervals[kept - 1].second) {
            intervals[kept - 1].second = std::max(intervals[kept - 1].second, pair.second);
        } else {
            intervals[kept++] = pair;
        }
    }
    intervals.resize(kept);
}

QString Text(const std::u32string& characters) {
    return QString::fromUcs4(characters.data(), static_cast<qsizetype>(characters.size()));
}

}  // namespace

NamePattern::NamePattern(QStringView pattern) {
    const QList<uint> characters = pattern.toUcs4();
    const qsizetype lastEnd = characters.lastIndexOf(U']');
    elements_.reserve(static_cast<std::size_t>(characters.size()));
    for (qsizetype i = 0; i < characters.size(); ++i) {
        Element element;
        const char32_t c = characters.at(i);
        const qsizetype end = c == U'[' && i < lastEnd ? characters.indexOf(U']', i + 1) : -1;
        if (c == U'?') {
            element.kind = Kind::AnyOne;
        } else if (c == U'*') {
            if (!elements_.empty() && elements_.back().kind == Kind::AnyRun) continue;
            element.kind = Kind::AnyRun;
        } else if (c == U'#') {
            element.kind = Kind::Digit;
        } else if (end > i) {
            element.kind = Kind::Set;
            qsizetype k = i + 1;
            element.negated = characters.at(k) == U'!' && k + 1 < end;
            if (element.negated) ++k;
            for (; k < end; ++k) {
                const bool interval = k + 2 < end && characters.at(k + 1) == U'-';
                const char32_t first = Fold(characters.at(k));
                const char32_t last = interval ? Fold(characters.at(k + 2)) : first;
                element.intervals.emplace_back(first, last);
                if (interval) k += 2;
            }
            i = end;
            if (element.intervals.empty()) continue;  // "[]" stands for nothing at all
            Merge(element.intervals);
        } else {
            element.folded = Fold(c);
        }
        elements_.push_back(std::move(element));
    }
}

NamePattern NamePattern::Exactly(QStringView text) {
    NamePattern pattern;
    for (const uint c : text.toUcs4()) {
        Element element;
        element.folded = Fold(c);
        pattern.elements_.push_back(std::move(element));
    }
    return pattern;
}

NamePattern NamePattern::ForName(QStringView name) {
    NamePattern pattern(ComeModello(name));
    if (name.contains(u'#') || name.contains(u'[')) pattern.itself_ = Exactly(name).elements_;
    return pattern;
}

bool NamePattern::Accepts(const Element& element, char32_t folded) {
    switch (element.kind) {
        case Kind::Literal:
            return element.folded == folded;
        case Kind::AnyOne:
            return true;
        case Kind::Digit:
            return folded >= U'0' && folded <= U'9';
        case Kind::Set: {
            const auto after = std::upper_bound(element.intervals.begin(), element.intervals.end(), folded,
                                                [](char32_t c, const auto& pair) { return c < pair.first; });
            const bool within = after != element.intervals.begin() && folded <= std::prev(after)->second;
            return within != element.negated;
        }
        case Kind::AnyRun:
            break;
    }
    return false;
}

bool NamePattern::Matches(QStringView text) const {
    return Matches(elements_, text) || (!itself_.empty() && Matches(itself_, text));
}

bool NamePattern::Matches(const std::vector<Element>& elements, QStringView text) {
    // No two runs stand beside each other: at least every second element takes a character.
    const auto count = static_cast<qsizetype>(elements.size());
    if (count > 2 * text.size() + 1) return false;
    const QList<uint> characters = text.toUcs4();
    const auto length = characters.size();
    qsizetype position = 0;
    qsizetype element = 0;
    qsizetype lastRun = -1;  // the last "*" passed, to which a mismatch goes back
    qsizetype runEnd = 0;    // where the text after that "*" was last tried
    while (position < length) {
        const bool run = element < count && elements[element].kind == Kind::AnyRun;
        if (run) {
            lastRun = element++;
            runEnd = position;
        } else if (element < count && Accepts(elements[element], Fold(characters.at(position)))) {
            ++element;
            ++position;
        } else if (lastRun >= 0) {
            element = lastRun + 1;
            position = ++runEnd;
        } else {
            return false;
        }
    }
    while (element < count && elements[element].kind == Kind::AnyRun) ++element;
    return element == count;
}

NamePattern NamePattern::Then(const NamePattern& next) const {
    NamePattern both = *this;
    const bool run = !elements_.empty() && elements_.back().kind == Kind::AnyRun && !next.elements_.empty() &&
                     next.elements_.front().kind == Kind::AnyRun;
    both.elements_.insert(both.elements_.end(), next.elements_.begin() + (run ? 1 : 0), next.elements_.end());
    if (itself_.empty() && next.itself_.empty()) return both;
    const std::vector<Element>& end = next.itself_.empty() ? next.elements_ : next.itself_;
    if (itself_.empty()) both.itself_ = elements_;
    both.itself_.insert(both.itself_.end(), end.begin(), end.end());
    return both;
}

NamePattern NamePattern::Reversed() const {
    NamePattern reversed;
    reversed.elements_.assign(elements_.rbegin(), elements_.rend());
    reversed.itself_.assign(itself_.rbegin(), itself_.rend());
    return reversed;
}

std::vector<NamePattern::Range> NamePattern::Ranges() const {
    std::vector<Range> ranges = Ranges(elements_);
    if (ranges.empty() || itself_.empty() || BeginsAsElements()) return ranges;
    std::vector<Range> own = Ranges(itself_);
    if (own.empty()) return own;
    ranges.insert(ranges.end(), own.begin(), own.end());
    return ranges;
}

// An empty set takes no character of a text, but two of the name that it stands in.
bool NamePattern::BeginsAsElements() const {
    const auto used = static_cast<std::size_t>(
        std::find_if(elements_.begin(), elements_.end(), [](const Element& e) { return e.kind != Kind::Literal; }) -
        elements_.begin());
    if (itself_.size() < used || (used == elements_.size() && itself_.size() != used)) return false;
    return std::equal(elements_.begin(), elements_.begin() + static_cast<std::ptrdiff_t>(used), itself_.begin(),
                      [](const Element& a, const Element& b) { return b.kind == a.kind && b.folded == a.folded; });
}

std::vector<NamePattern::Range> NamePattern::Ranges(const std::vector<Element>& elements) {
    std::vector<std::u32string> prefixes(1);
    std::size_t used = 0;
    for (; used < elements.size() && used < kMaxBeginning && elements[used].kind == Kind::Literal; ++used) {
        const char32_t c = elements[used].folded;
        if (c < 0x80) {
            for (std::u32string& prefix : prefixes) prefix += c;
            continue;
        }
        const std::u32string variants = Variants(c);
        if (prefixes.size() * variants.size() > kMaxRanges) break;
        std::vector<std::u32string> longer;
        longer.reserve(prefixes.size() * variants.size());
        for (const std::u32string& prefix : prefixes) {
            for (const char32_t variant : variants) longer.push_back(prefix + variant);
        }
        prefixes = std::move(longer);
    }
    const bool whole = used == elements.size();
    if (used == 0 && !whole) return {};
    std::vector<Range> ranges;
    ranges.reserve(prefixes.size());
    for (const std::u32string& prefix : prefixes) {
        ranges.push_back({Text(prefix), whole ? QString() : Text(prefix + char32_t{0x10FFFF}), whole});
    }
    return ranges;
}

}  // namespace cronovia
