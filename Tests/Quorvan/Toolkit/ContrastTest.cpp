// SPDX-License-Identifier: GPL-3.0-or-later
#include "Quorvan/Toolkit/Contrast.h"

#include "Quorvan/Toolkit/CheckBox.h"
#include "Quorvan/Toolkit/WarningColor.h"

#include <QStyle>
#include <QStyleFactory>
#include <QStyleOptionButton>

#include <gtest/gtest.h>

namespace quorvan {
namespace {

TEST(ContrastTest, AgreesWithPublishedRatios) {
    EXPECT_NEAR(contrastRatio(Qt::black, Qt::white), 21, 0.01);
    EXPECT_NEAR(contrastRatio(0x767676, Qt::white), 4.54, 0.01);
    EXPECT_NEAR(contrastRatio(0xFF0000, Qt::white), 4.00, 0.01);
}

/// The strongest contrast to the middle of the box on the way from its edge there.
double seenContrast(CheckBox& box) {
    const QImage image = box.grab().toImage();
    QStyleOptionButton option;
    option.initFrom(&box);
    const QRect indicator = box.style()->subElementRect(QStyle::SE_CheckBoxIndicator, &option, &box);
    const QPoint middle = indicator.center();
    double most = 1;
    for (int x = indicator.left(); x < middle.x(); ++x)
        most = std::max(most, contrastRatio(image.pixelColor(x, middle.y()), image.pixelColor(middle)));
    return most;
}

TEST(ContrastTest, HoldsForBoxesAndTextsInEveryStyleAndPalette) {
    const std::vector<std::pair<QColor, QColor>> palettes = {
        {0xFFFFFF, 0x000000}, {0x000000, 0xFFFFFF}, {0x1E1F22, 0xE6E7E9}, {0xFDF6E3, 0x657B83},
        {0x002B36, 0x839496}, {0x707070, 0xFFFFFF}, {0x808080, 0x000000}, {0xC0C0C0, 0x555555}};
    for (const QString& name : QStyleFactory::keys()) {
        const std::unique_ptr<QStyle> style(QStyleFactory::create(name));
        for (const auto& [base, text] : palettes) {
            const QPalette palette(text, base, base.lighter(), base.darker(), base.darker(150), text, base);
            CheckBox box;
            box.setStyle(style.get());
            box.setPalette(palette);
            box.resize(40, 30);
            const auto where = (name + base.name()).toStdString();
            EXPECT_GE(seenContrast(box), 3.0) << where;
            box.setEnabled(false);
            EXPECT_GE(seenContrast(box), 3.0) << where << " read-only";
            EXPECT_GE(contrastRatio(warningTextColor(palette), base), 4.5) << where;
        }
    }
}

} // namespace
} // namespace quorvan
