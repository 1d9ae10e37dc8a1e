// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "Simulator/KelpServer.h"

#include <map>
#include <string>

namespace quorvan::simulator {

// The identities of the demo data, for the files that make it up.

using DemoNames = std::map<std::string, Identity*>;

inline constexpr const char* demoEveryone = "Everyone";

/// Adds the users and groups that have a name of their own in the demo, unless they are there yet.
DemoNames addDemoIdentities(Identities& store);

/// Attributes, owners, quotas and links of the first and the second server.
void addDemoProperties(KelpServer& server, const DemoNames& known);
void addSecondDemoProperties(KelpServer& server, const DemoNames& known);

std::string demoSid(std::size_t relative);
std::string demoGuid(std::size_t number); ///< one that ends in the number

} // namespace quorvan::simulator
