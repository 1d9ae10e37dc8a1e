// SPDX-License-Identifier: GPL-3.0-or-later
#include "Simulator/demo/Palettes.h"

#include <QColor>

namespace quorvan::demo {
namespace {

struct Colours {
    QRgb window, text, base, alternate, button, midLight, mid, dark, shadow, highlight, link, greyed, tip;
};

QPalette paletteOf(const Colours& colours) {
    QPalette palette{QColor(colours.button), QColor(colours.window)};
    const auto set = [&palette](QPalette::ColorRole role, QRgb colour) {
        palette.setColor(role, QColor(colour));
    };
    for (const auto role : {QPalette::WindowText, QPalette::Text, QPalette::ButtonText, QPalette::ToolTipText,
                            QPalette::BrightText})
        set(role, colours.text);
    set(QPalette::Base, colours.base);
    set(QPalette::AlternateBase, colours.alternate);
    set(QPalette::Midlight, colours.midLight);
    set(QPalette::Mid, colours.mid);
    set(QPalette::Dark, colours.dark);
    set(QPalette::Shadow, colours.shadow);
    set(QPalette::Highlight, colours.highlight);
    set(QPalette::HighlightedText, 0xffffffff);
    set(QPalette::Link, colours.link);
    set(QPalette::ToolTipBase, colours.tip);
    set(QPalette::PlaceholderText, colours.greyed);
    for (const auto role : {QPalette::WindowText, QPalette::Text, QPalette::ButtonText})
        palette.setColor(QPalette::Disabled, role, QColor(colours.greyed));
    return palette;
}

} // namespace

QPalette lightPalette() {
    return paletteOf({0xffefefef, 0xff1b1b1b, 0xffffffff, 0xfff6f7f8, 0xfff4f4f4, 0xffe0e0e0, 0xffb8b8b8,
                      0xff9f9f9f, 0xff767676, 0xff2f7fc2, 0xff1f6cab, 0xff8d8d8d, 0xffffffdc});
}

QPalette darkPalette() {
    return paletteOf({0xff2b2d30, 0xffe6e7e9, 0xff1e1f22, 0xff242528, 0xff3a3d41, 0xff45494e, 0xff55595f,
                      0xff1c1d1f, 0xff101112, 0xff2f7fc2, 0xff6db3f2, 0xff83878d, 0xff3a3d41});
}

QPalette contrastPalette() {
    return paletteOf({0xff000000, 0xffffffff, 0xff000000, 0xff000000, 0xff000000, 0xffffffff, 0xffffffff,
                      0xffffffff, 0xffffffff, 0xff8000ff, 0xffffff00, 0xff3ff23f, 0xff000000});
}

} // namespace quorvan::demo
