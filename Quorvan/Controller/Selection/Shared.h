// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

namespace quorvan {

/// What the views share for as long as the program runs.
class Shared {
public:
    static Shared& value();

    bool bothID = false; ///< the trustees of both identity types are shown at once
};

} // namespace quorvan
