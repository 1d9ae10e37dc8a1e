// SPDX-License-Identifier: GPL-3.0-or-later
#include "Quorvan/Toolkit/PathLabel.h"

#include "Quorvan/Toolkit/PlainToolTip.h"
#include "Quorvan/Toolkit/ShownText.h"

namespace quorvan {

PathLabel::PathLabel(QWidget* parent)
    : ValueField(parent) {
    QFont bold = font();
    bold.setBold(true);
    setFont(bold);
}

void PathLabel::setPath(const QString& path) {
    const QString shown = shownText(path);
    setText(shown);
    setToolTip(plainToolTip(shown));
    setCursorPosition(0);
}

} // namespace quorvan
