// SPDX-License-Identifier: GPL-3.0-or-later
#include "Quorvan/Toolkit/Contrast.h"

#include <algorithm>
#include <cmath>
#include <utility>

namespace quorvan {

namespace {

/// Relative luminance of sRGB, 0 (black) to 1 (white).
double luminance(const QColor& color) {
    const auto linear = [](double part) {
        return part <= 0.04045 ? part / 12.92 : std::pow((part + 0.055) / 1.055, 2.4);
    };
    return 0.2126 * linear(color.redF()) + 0.7152 * linear(color.greenF()) + 0.0722 * linear(color.blueF());
}

} // namespace

double contrastRatio(const QColor& one, const QColor& other) {
    const auto [darker, lighter] = std::minmax({luminance(one), luminance(other)});
    return (lighter + 0.05) / (darker + 0.05);
}

QColor mixedColor(const QColor& from, const QColor& to, float share) {
    const auto mix = [share](float a, float b) { return a + (b - a) * share; };
    return QColor::fromRgbF(mix(from.redF(), to.redF()), mix(from.greenF(), to.greenF()),
                            mix(from.blueF(), to.blueF()));
}

QColor withContrast(const QColor& wanted, const QColor& background, double ratio) {
    // The side that it is on, unless there is no room for the ratio there.
    const bool isLighter = luminance(wanted) >= luminance(background);
    QColor end = isLighter ? Qt::white : Qt::black;
    if (contrastRatio(end, background) < ratio)
        end = isLighter ? Qt::black : Qt::white;
    constexpr int steps = 32;
    for (int step = 0; step < steps; ++step) {
        const QColor color = mixedColor(wanted, end, static_cast<float>(step) / steps);
        if (contrastRatio(color, background) >= ratio)
            return color;
    }
    return end;
}

} // namespace quorvan
