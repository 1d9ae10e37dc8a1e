// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "Quorvan/Toolkit/Segue.h"

#include <optional>
#include <string>
#include <utility>

namespace quorvan {

/// The identifier of the way by which the salvage and purge page was opened last; decides what it is for.
inline std::string identifierID;

/// The key of the page's title and of its buttons for an identifier: salvage for "salvageSegue", purge for
/// any other.
inline const char* salvagePurgeTitleKey(const std::string& identifier) {
    return identifier == "salvageSegue" ? "Salvage_Title" : "Purge_Title";
}

/// The way to the salvage and purge page.
class SalvagePurgeSegueController : public Segue {
public:
    SalvagePurgeSegueController(std::optional<std::string> segueIdentifier, ViewController* from,
                                ViewController* to)
        : Segue(std::move(segueIdentifier), from, to) {
        identifierID = identifier.value_or("");
    }

    void perform() override { source->replacePage(destination, L(salvagePurgeTitleKey(identifierID))); }
};

} // namespace quorvan
