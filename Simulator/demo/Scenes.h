// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "Simulator/demo/Stage.h"

namespace quorvan::demo {

/// Walks through every page and every state that its controls can be in.
void showEverything(const Output& output);

/// The part of that which is about attributes, owner and quotas.
void showProperties(const Output& output);
void showMainProperties(const Output& output); ///< for a look at another scale

/// The tabs about inherited and effective rights and about folders, and the file-system rights.
void showMoreRights(const Output& output);

/// The pages that show most, for a look at another scale.
void showMainPages(const Output& output);

} // namespace quorvan::demo
