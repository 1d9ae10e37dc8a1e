// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

class QWidget;

namespace quorvan {

/// Shows name, version and licence of the program over a window, until dismissed.
void showAboutPanel(QWidget* window);

/// Shows how to work with the program over a window, until dismissed.
void showHelpPanel(QWidget* window);

} // namespace quorvan
