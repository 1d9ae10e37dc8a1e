// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

namespace quorvan {

/// The model of the trustee rights tab; the tab keeps its data itself.
class RightsTabViewModal {};

} // namespace quorvan
