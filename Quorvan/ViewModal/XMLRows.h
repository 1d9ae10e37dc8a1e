// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "Quorvan/ViewModal/XMLElement.h"

#include <functional>
#include <optional>
#include <string>

namespace quorvan {

/// Reads a document that is one long list in the memory that one row takes: `row` gets the child elements
/// of the element at `list` one after the other, each as a tree of its own that is gone when `row` returns.
///
/// Returns why the document is not XML, which shows only after the rows before the error; or nothing. A
/// list that is not there is fatal.
std::optional<XMLError> readRows(const std::string& document, const ElementPath& list,
                                 const std::function<void(XMLElement)>& row);

} // namespace quorvan
