// SPDX-License-Identifier: GPL-3.0-or-later
#include "Quorvan/Controller/Selection/Shared.h"

namespace quorvan {

Shared& Shared::value() {
    static Shared shared;
    return shared;
}

} // namespace quorvan
