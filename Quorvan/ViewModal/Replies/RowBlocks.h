// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "Common/LargePages.h"

#include <cstddef>
#include <memory>
#include <utility>
#include <vector>

namespace quorvan {

/// Makes the rows of one list. They are shared one by one, but live and die together, so that memory is taken
/// for many at once; every row shares the ownership of its block. A list may have a row for every user there
/// is.
template <class Row>
class RowBlocks {
public:
    template <class... Arguments>
    std::shared_ptr<Row> make(Arguments&&... arguments) {
        if (!block_ || block_->size() == block_->capacity())
            beginBlock();
        return {block_, &block_->emplace_back(std::forward<Arguments>(arguments)...)};
    }

private:
    void beginBlock() {
        const std::size_t size = block_ ? 2 * block_->capacity() : 16;
        block_ = std::make_shared<std::vector<Row>>();
        block_->reserve(size); // and never more: rows do not move
        preferLargePages(block_->data(), size * sizeof(Row));
    }

    std::shared_ptr<std::vector<Row>> block_;
};

} // namespace quorvan
