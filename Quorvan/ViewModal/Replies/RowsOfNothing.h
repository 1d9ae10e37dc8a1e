// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "Common/Log.h"

#include <cstddef>

namespace quorvan {

/// The rows of a list that say nothing. A server writes one in four bytes, and a record takes dozens of times
/// as many; beyond a thousand they are left out.
class RowsOfNothing {
public:
    /// Counts one more. Whether it is to be left out.
    bool isOneTooMany() { return ++count_ > most; }
    /// To be called at the end of the list: tells the log what was left out.
    void report() const {
        if (count_ > most)
            Log("%d rows of the reply say nothing and are left out", count_ - most);
    }

private:
    static constexpr std::size_t most = 1'000;
    std::size_t count_ = 0;
};

} // namespace quorvan
