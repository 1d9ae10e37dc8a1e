// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

namespace quorvan {

class ViewController;

/// Shows the options page, made anew, instead of the page that a view belongs to.
void returnToMainMenu(ViewController& view);

} // namespace quorvan
