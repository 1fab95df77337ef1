// SPDX-License-Identifier: GPL-3.0-or-later
#include "store/many_patterns.h"

#include <algorithm>
#include <iterator>
#include <utility>

namespace cronovia {

namespace {

// The text as the order of the keys sees it.
std::string OrderKey(const QString& text) {
    std::string key = text.toStdString();
    for (char& c : key) {
        if (c >= 'A' && c <= 'Z') c = static_cast<char>(c + 'a' - 'A');
    }
    return key;
}

std::vector<Stretch> StretchesOfEach(std::span<const NamePattern> patterns) {
    std::vector<Stretch> all;
    for (std::size_t i = 0; i < patterns.size(); ++i) {
        for (const NamePattern::Range& range : patterns[i].Ranges()) {
            std::string from = OrderKey(range.from);
            std::string to = range.single ? from : OrderKey(range.to);
            all.push_back({std::move(from), std::move(to), {i}});
        }
    }
    return all;
}

}  // namespace

std::vector<Stretch> StretchesOf(std::span<const NamePattern> patterns) {
    std::vector<Stretch> all = StretchesOfEach(patterns);
    std::sort(all.begin(), all.end(), [](const Stretch& a, const Stretch& b) { return a.from < b.from; });
    std::vector<Stretch> merged;
    for (Stretch& stretch : all) {
        if (merged.empty() || merged.back().to < stretch.from) {
            merged.push_back(std::move(stretch));
            continue;
        }
        merged.back().to = std::max(merged.back().to, stretch.to);
        merged.back().patterns.push_back(stretch.patterns.front());
    }
    // A letter in both cases gives its pattern two stretches, which may have become one.
    for (Stretch& stretch : merged) {
        std::sort(stretch.patterns.begin(), stretch.patterns.end());
        stretch.patterns.erase(std::unique(stretch.patterns.begin(), stretch.patterns.end()), stretch.patterns.end());
    }
    return merged;
}

std::vector<std::size_t> WithoutBeginning(std::span<const NamePattern> patterns) {
    std::vector<std::size_t> without;
    for (std::size_t i = 0; i < patterns.size(); ++i) {
        if (patterns[i].Ranges().empty()) without.push_back(i);
    }
    return without;
}

const std::vector<std::size_t>& Matcher::Matching(const QString& text, const std::vector<std::size_t>& candidates) {
    if (last_ && text.constData() == last_->constData()) return matching_;
    last_ = text;
    matching_ = Known(text, candidates);
    return matching_;
}

const std::vector<std::size_t>& Matcher::Known(const QString& text, const std::vector<std::size_t>& candidates) {
    const auto known = known_.constFind(text);
    if (known != known_.constEnd()) return *known;
    std::vector<std::size_t> matching;
    std::copy_if(candidates.begin(), candidates.end(), std::back_inserter(matching),
                 [&](std::size_t i) { return patterns_[i].Matches(text); });
    return *known_.insert(text, matching);
}

}  // namespace cronovia
