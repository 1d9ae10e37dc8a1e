// SPDX-License-Identifier: GPL-3.0-or-later
#include "Quorvan/Toolkit/ReadOnlyPalette.h"

#include <QApplication>
#include <QPalette>
#include <QWidget>

namespace quorvan {

QColor mixedColor(const QColor& from, const QColor& to, float share) {
    const auto mix = [share](float a, float b) { return a + (b - a) * share; };
    return QColor::fromRgbF(mix(from.redF(), to.redF()), mix(from.greenF(), to.greenF()),
                            mix(from.blueF(), to.blueF()));
}

void keepLegibleWhenDisabled(QWidget& widget) {
    const QPalette usual = QApplication::palette(&widget);
    QPalette legible;
    const auto soften = [&](QPalette::ColorRole text, QPalette::ColorRole behind) {
        legible.setColor(
            QPalette::Disabled, text,
            mixedColor(usual.color(QPalette::Active, behind), usual.color(QPalette::Active, text), 0.75F));
    };
    soften(QPalette::WindowText, QPalette::Window);
    soften(QPalette::Text, QPalette::Base);
    const QPalette now = widget.palette();
    for (const auto role : {QPalette::WindowText, QPalette::Text})
        if (now.color(QPalette::Disabled, role) != legible.color(QPalette::Disabled, role)) {
            widget.setPalette(legible);
            return;
        }
}

} // namespace quorvan
