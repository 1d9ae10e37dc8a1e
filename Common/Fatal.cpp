// SPDX-License-Identifier: GPL-3.0-or-later
#include "Common/Fatal.h"

#include <cstdlib>

namespace quorvan {

void detail::endProcess() {
#ifdef QUORVAN_FUZZING
    throw FatalExit{};
#else
    std::abort();
#endif
}

} // namespace quorvan
