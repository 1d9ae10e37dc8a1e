// SPDX-License-Identifier: GPL-3.0-or-later
#include "Common/Fatal.h"

#include <cstdlib>

namespace quorvan {

void detail::endProcess() {
    std::abort();
}

} // namespace quorvan
