// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "Quorvan/Modal/RightsExplanation.h"
#include "Quorvan/Modal/Users.h"

#include <optional>
#include <string>
#include <vector>

namespace quorvan {

class XMLReadWriteController;

/// What is granted on the folders from the volume down to a server path, and what their filters let through:
/// one request for each folder, over the pipe for files that is open. Ends early after a loss.
std::vector<FolderOnWay> readRightsWay(XMLReadWriteController& controller, const std::string& path,
                                       const std::string& identityType);

/// What the server itself grants somebody on a path; nothing when its reply does not say.
std::optional<Rights> rightsOfUser(XMLReadWriteController& controller, const std::string& path,
                                   const std::string& id, const std::string& identityType);

/// An account of Active Directory and the groups that it is a member of, groups of groups too, as far as the
/// directory names them.
std::vector<RightsHolder> holdersOfActiveDirectory(const RightsHolder& account);

/// The same of an object of the tree, and the containers above it, over the pipe for the directory tree that
/// is open. `object.name` is its distinguished name.
std::vector<RightsHolder> holdersOfTheTree(XMLReadWriteController& controller, const RightsHolder& object);

} // namespace quorvan
