// SPDX-License-Identifier: GPL-3.0-or-later
#include "Quorvan/ViewModal/XMLReadWrite.h"

namespace quorvan {
namespace {

/// Stores the last mask of one kind that the reply carries.
void loadMask(const std::optional<ReplyEntries>& entries, std::optional<std::uint16_t> ReplyEntry::*kind,
              Rights& rights) {
    if (!entries)
        return;
    for (const auto& entry : *entries)
        rights.uright = ((*entry).*kind).value_or(rights.uright);
}

} // namespace

void XMLReadWriteController::loadIRFRights(Rights& irf) const {
    loadMask(dictResponse, &ReplyEntry::inheritedRightsFilter, irf);
}

void XMLReadWriteController::loadEffRights(Rights& effRights) const {
    loadMask(dictResponse, &ReplyEntry::effectiveRights, effRights);
}

} // namespace quorvan
