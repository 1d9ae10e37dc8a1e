// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <functional>

class QAction;
class QMenu;
class QWidget;

namespace quorvan {

/// Says in a control's tool tip, and so to a screen reader, why it is grey for as long as it is. `whyKey`
/// returns the key of the text; the control must have its usual tool tip by then.
void explainWhenGrey(QWidget& control, std::function<const char*()> whyKey);
void explainWhenGrey(QWidget& control, const char* whyKey);

/// The same for an entry of a menu; null when it is not grey.
void setGrey(QAction& action, const char* whyKey);
/// Lets a menu and those below it show the tips of their entries where one of them is grey.
void showGreyReasons(QMenu& menu);

} // namespace quorvan
