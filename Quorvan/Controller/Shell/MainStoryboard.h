// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

namespace quorvan {

/// Fills the storyboard "Main" with the pages of this program. Call before the first window.
void fillMainStoryboard();

} // namespace quorvan
