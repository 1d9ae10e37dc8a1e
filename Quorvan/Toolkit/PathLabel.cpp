// SPDX-License-Identifier: GPL-3.0-or-later
#include "Quorvan/Toolkit/PathLabel.h"

#include "Quorvan/Toolkit/PlainToolTip.h"

namespace quorvan {

PathLabel::PathLabel(QWidget* parent)
    : ValueField(parent) {
    QFont bold = font();
    bold.setBold(true);
    setFont(bold);
}

void PathLabel::setPath(const QString& path) {
    setText(path);
    setToolTip(plainToolTip(path));
    setCursorPosition(0);
}

} // namespace quorvan
