// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "Quorvan/Modal/Utils.h"

#include <cstddef>
#include <string>
#include <utility>
#include <vector>

namespace quorvan {

/// How trustee lists are sorted, for all views that show one.
enum class TrusteeOrder { TrusteeName };
inline TrusteeOrder sortOrder = TrusteeOrder::TrusteeName;
inline bool sortAscending = true;

/// The positions of `keys` in sorted order, code point by code point; equal keys keep their order in
/// both directions.
std::vector<std::size_t> sortedPositions(const std::vector<std::string>& keys, bool ascending);

/// Sorts rows by their name in lower case; rows of equal names keep their order.
template <class Row, class NameOf>
void sortByName(std::vector<Row>& rows, bool ascending, NameOf nameOf) {
    std::vector<std::string> keys;
    keys.reserve(rows.size());
    for (const Row& row : rows)
        keys.push_back(lowercased(nameOf(row)));
    std::vector<Row> sorted;
    sorted.reserve(rows.size());
    for (const std::size_t position : sortedPositions(keys, ascending))
        sorted.push_back(std::move(rows[position]));
    rows = std::move(sorted);
}

} // namespace quorvan
