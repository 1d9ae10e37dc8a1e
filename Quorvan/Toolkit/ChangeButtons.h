// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

class QPushButton;
class QWidget;

namespace quorvan {

/// Switches Revert and Apply, which wake up and go to sleep together. The keyboard moves to `content` when
/// it is on one that goes grey; it would end up on whatever comes next otherwise, Close perhaps.
void setChangesEnabled(bool enabled, QPushButton* revert, QPushButton* apply, QWidget* content);

} // namespace quorvan
