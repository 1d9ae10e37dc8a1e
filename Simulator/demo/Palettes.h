// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QPalette>

namespace quorvan::demo {

/// The colours of a usual light and a usual dark desktop, whatever this machine is set to.
QPalette lightPalette();
QPalette darkPalette();

} // namespace quorvan::demo
