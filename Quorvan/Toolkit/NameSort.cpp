// SPDX-License-Identifier: GPL-3.0-or-later
#include "Quorvan/Toolkit/NameSort.h"

#include <algorithm>
#include <cstdint>

namespace quorvan {

namespace {

/// The first bytes of a key as a number that compares as they do; decides nearly every comparison
/// without leaving the array that is being sorted.
std::uint64_t prefixOf(const std::string& key) {
    std::uint64_t prefix = 0;
    for (std::size_t i = 0; i < sizeof prefix; ++i)
        prefix = prefix << 8U | (i < key.size() ? static_cast<unsigned char>(key[i]) : 0U);
    return prefix;
}

struct Entry {
    std::uint64_t prefix;
    std::size_t position;
};

} // namespace

std::vector<std::size_t> sortedPositions(const std::vector<std::string>& keys, bool ascending) {
    std::vector<Entry> entries;
    entries.reserve(keys.size());
    for (const std::string& key : keys)
        entries.push_back({prefixOf(key), entries.size()});

    const auto less = [&keys](const Entry& a, const Entry& b) {
        return a.prefix != b.prefix ? a.prefix < b.prefix : keys[a.position] < keys[b.position];
    };
    if (ascending)
        std::stable_sort(entries.begin(), entries.end(), less);
    else
        std::stable_sort(entries.begin(), entries.end(),
                         [&less](const Entry& a, const Entry& b) { return less(b, a); });

    std::vector<std::size_t> positions;
    positions.reserve(entries.size());
    for (const Entry& entry : entries)
        positions.push_back(entry.position);
    return positions;
}

} // namespace quorvan
