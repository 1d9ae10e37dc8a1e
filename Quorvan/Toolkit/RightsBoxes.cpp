// SPDX-License-Identifier: GPL-3.0-or-later
#include "Quorvan/Toolkit/RightsBoxes.h"

#include "Common/Fatal.h"
#include "Quorvan/Toolkit/CheckBox.h"
#include "Quorvan/Toolkit/Localized.h"

#include <QGridLayout>

namespace quorvan {

RightsBoxes::RightsBoxes(int columns, QWidget* parent)
    : QWidget(parent) {
    auto* grid = new QGridLayout(this);
    grid->setContentsMargins(0, 0, 0, 0);
    grid->setHorizontalSpacing(3 * fontMetrics().averageCharWidth());
    for (std::size_t right = 0; right < boxes_.size(); ++right) {
        boxes_[right] = new CheckBox(plainL(rightsColumns[right].nameKey), this);
        boxes_[right]->setProperty("identifier", rightsColumns[right].checkID);
        const int place = static_cast<int>(right);
        grid->addWidget(boxes_[right], place / columns, place % columns);
    }
    grid->setColumnStretch(columns, 1);
}

QCheckBox* RightsBoxes::box(std::uint16_t bit) const {
    for (std::size_t right = 0; right < boxes_.size(); ++right)
        if (rightsColumns[right].bit == bit)
            return boxes_[right];
    fatal("No right with the bit %d", bit);
}

std::uint16_t RightsBoxes::bitOf(const QCheckBox* box) {
    const QString identifier = box->property("identifier").toString();
    for (const RightsColumn& right : rightsColumns)
        if (identifier == QLatin1String(right.checkID))
            return right.bit;
    fatal("Not one of the eight rights was clicked");
}

void RightsBoxes::setRights(std::uint16_t mask) {
    for (std::size_t right = 0; right < boxes_.size(); ++right)
        boxes_[right]->setChecked((mask & rightsColumns[right].bit) != 0);
    sayUnknown(false);
}

void RightsBoxes::makeReadOnly() {
    setEnabled(false);
    setToolTip(L("Why_Only_Shown_Label"));
}

void RightsBoxes::setUnknown() {
    for (QCheckBox* box : boxes_)
        box->setCheckState(Qt::PartiallyChecked);
    sayUnknown(true);
}

void RightsBoxes::sayUnknown(bool isUnknown) {
    const QString text = isUnknown ? L("Rights_Unknown_Label") : QString();
    for (QCheckBox* box : boxes_) {
        box->setTristate(isUnknown);
        if (isUnknown || !box->accessibleDescription().isEmpty()) {
            box->setToolTip(text);
            box->setAccessibleDescription(text);
        }
    }
}

} // namespace quorvan
