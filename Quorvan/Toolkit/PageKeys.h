// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <functional>

class QPushButton;
class QWidget;

namespace quorvan {

class PendingLine;

/// Lets the desktop's Refresh key read the page anew. Where changes wait in the line `pending` (null on a
/// page that has none) it does not, and says so.
void reloadOnRefreshKey(QWidget& page, const PendingLine* pending, std::function<void()> reload);

/// Lets the desktop's Back key click the button that leaves the page.
void leaveOnBackKey(QPushButton& button);

} // namespace quorvan
