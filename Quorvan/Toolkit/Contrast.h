// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QColor>

namespace quorvan {

/// What can just be told from its surroundings, and what can be read: the ratios of WCAG 2.1, level AA.
constexpr double visibleContrast = 3.0;
constexpr double legibleContrast = 4.5;

/// The contrast ratio of WCAG 2.1 between two opaque colours, 1 to 21.
double contrastRatio(const QColor& one, const QColor& other);

/// A colour between two others; `share` 1 is `to`.
QColor mixedColor(const QColor& from, const QColor& to, float share);

/// `wanted`, or the nearest colour on the way to black or white that has at least `ratio` (up to 4.5, which
/// one of the two always has) on `background`.
QColor withContrast(const QColor& wanted, const QColor& background, double ratio);

} // namespace quorvan
