// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

class QString;
class QWidget;

namespace quorvan {

/// Shows a message with an OK button over the window of a view and returns at once; the window takes no
/// clicks until it is dismissed.
void presentAlertSheet(QWidget& view, const QString& message);

} // namespace quorvan
