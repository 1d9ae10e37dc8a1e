// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QColor>
#include <QPalette>

namespace quorvan {

/// For a text that warns, on the base of a palette; a contrast of at least 4.5:1 on white and on dark grey.
inline QColor warningTextColor(const QPalette& palette) {
    return palette.color(QPalette::Base).lightness() > 127 ? QColor(0xB0, 0x1C, 0x14)
                                                           : QColor(0xFF, 0x9E, 0x94);
}

/// For a bar that warns, below a white text.
inline QColor warningBarColor() {
    return {0xB0, 0x1C, 0x14};
}

} // namespace quorvan
