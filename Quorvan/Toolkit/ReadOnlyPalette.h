// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QColor>

class QWidget;

namespace quorvan {

/// A colour between two others; `share` 1 is `to`.
QColor mixedColor(const QColor& from, const QColor& to, float share);

/// Keeps a control that is there to be read legible while it is disabled. To be called again when the
/// palette has changed.
void keepLegibleWhenDisabled(QWidget& widget);

} // namespace quorvan
