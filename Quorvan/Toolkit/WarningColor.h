// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "Quorvan/Toolkit/Contrast.h"

#include <QPalette>

namespace quorvan {

/// For a text that warns, on the base of a palette.
inline QColor warningTextColor(const QPalette& palette) {
    const QColor base = palette.color(QPalette::Base);
    return withContrast(base.lightness() > 127 ? QColor(0xB0, 0x1C, 0x14) : QColor(0xFF, 0x9E, 0x94), base,
                        legibleContrast);
}

/// For a bar that warns, below a white text.
inline QColor warningBarColor() {
    return {0xB0, 0x1C, 0x14};
}

} // namespace quorvan
