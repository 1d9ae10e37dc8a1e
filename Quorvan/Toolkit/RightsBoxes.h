// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "Quorvan/Toolkit/RightsColumns.h"

#include <QWidget>

#include <array>
#include <cstdint>

class QCheckBox;

namespace quorvan {

/// A rights mask as eight check boxes with the rights' names, row by row in the order of the tables'
/// columns. Each has its right's checkID as the property "identifier". Disabled boxes stay legible.
class RightsBoxes : public QWidget {
public:
    explicit RightsBoxes(int columns, QWidget* parent = nullptr);

    QCheckBox* box(std::uint16_t bit) const;
    static std::uint16_t bitOf(const QCheckBox* box);

    /// They are there to be read, and say so.
    void makeReadOnly();
    /// Ticks each box whose bit is set.
    void setRights(std::uint16_t mask);
    /// Shows of no right whether it is held.
    void setUnknown();

private:
    void sayUnknown(bool isUnknown);

    std::array<QCheckBox*, rightsColumns.size()> boxes_{};
};

} // namespace quorvan
