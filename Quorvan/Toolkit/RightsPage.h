// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "Quorvan/Toolkit/ViewController.h"

namespace quorvan {

/// A page that is mostly a rights table: room for long names beside the boxes and for some fifteen rows,
/// whatever the texts around it wrap to, and for all its buttons beside the line of waiting changes.
class RightsPage : public ViewController {
public:
    using ViewController::ViewController;

    QSize sizeHint() const override {
        return ViewController::sizeHint().expandedTo(
            {105 * fontMetrics().averageCharWidth() + 80, 38 * fontMetrics().lineSpacing()});
    }
    bool hasHeightForWidth() const override { return false; }
};

} // namespace quorvan
