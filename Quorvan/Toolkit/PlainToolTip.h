// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>
#include <QTextDocument>

namespace quorvan {

/// A tool tip that shows a name or path as it is: what looks like HTML would be laid out, and the pictures
/// that it names opened.
inline QString plainToolTip(const QString& text) {
    return Qt::mightBeRichText(text) ? Qt::convertFromPlainText(text, Qt::WhiteSpaceNormal) : text;
}

} // namespace quorvan
