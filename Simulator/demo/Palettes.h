// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QPalette>

namespace quorvan::demo {

/// The colours of a usual light, a usual dark and a high-contrast desktop, whatever this machine is set to.
QPalette lightPalette();
QPalette darkPalette();
QPalette contrastPalette();

} // namespace quorvan::demo
