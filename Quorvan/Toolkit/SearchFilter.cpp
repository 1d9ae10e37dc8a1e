// SPDX-License-Identifier: GPL-3.0-or-later
#include "Quorvan/Toolkit/SearchFilter.h"

#include "Quorvan/Modal/Utils.h"

namespace quorvan {

namespace {

constexpr char separator = '\xFF';

/// The position after the character (code point) that starts at `at`.
std::size_t nextCharacter(std::string_view text, std::size_t at) {
    do
        ++at;
    while (at < text.size() && (static_cast<unsigned char>(text[at]) & 0xC0U) == 0x80U);
    return at;
}

/// Whether `pattern` matches all of `text`. Only the last `*` is ever tried again, which suffices.
bool matchesPattern(std::string_view text, std::string_view pattern) {
    constexpr auto none = std::string_view::npos;
    std::size_t at = 0;
    std::size_t inPattern = 0;
    std::size_t afterStar = none;
    std::size_t starEnd = 0;
    while (at < text.size()) {
        const char wanted = inPattern < pattern.size() ? pattern[inPattern] : separator;
        if (wanted == '*') {
            afterStar = ++inPattern;
            starEnd = at;
        } else if (wanted == '?') {
            at = nextCharacter(text, at);
            ++inPattern;
        } else if (wanted == text[at]) {
            ++at;
            ++inPattern;
        } else if (afterStar != none) {
            at = starEnd = nextCharacter(text, starEnd);
            inPattern = afterStar;
        } else {
            return false;
        }
    }
    return pattern.find_first_not_of('*', inPattern) == none;
}

} // namespace

void SearchFilter::clear() {
    keys_.clear();
    ends_.clear();
}

void SearchFilter::append(std::string_view name) {
    keys_ += foldedForSearch(name);
    ends_.push_back(keys_.size());
    keys_ += separator;
}

std::string_view SearchFilter::key(std::size_t row) const {
    const std::size_t begin = row == 0 ? 0 : ends_[row - 1] + 1;
    return std::string_view(keys_).substr(begin, ends_[row] - begin);
}

std::vector<std::size_t> SearchFilter::matches(std::string_view text) const {
    const std::string wanted = foldedForSearch(text);
    if (wanted.find_first_of("*?") == std::string::npos)
        return rowsContaining(wanted);
    std::vector<std::size_t> found;
    for (std::size_t row = 0; row < ends_.size(); ++row)
        if (key(row).find(wanted) != std::string_view::npos || matchesPattern(key(row), wanted))
            found.push_back(row);
    return found;
}

/// One pass over all names at once; a hit decides its row.
std::vector<std::size_t> SearchFilter::rowsContaining(std::string_view text) const {
    std::vector<std::size_t> found;
    std::size_t row = 0;
    for (std::size_t at = 0; (at = keys_.find(text, at)) != std::string::npos && row < ends_.size();) {
        while (ends_[row] < at)
            ++row;
        found.push_back(row);
        at = ends_[row++] + 1;
    }
    return found;
}

} // namespace quorvan
