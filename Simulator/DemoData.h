// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "Simulator/KelpServer.h"

#include <array>
#include <cstddef>
#include <string>
#include <string_view>

namespace quorvan::simulator {

namespace demo {

inline constexpr const char* host = "files.meridal.example";
inline constexpr const char* address = "192.0.2.10";

/// The password of every demo account.
inline constexpr const char* password = "kelp";

// Accounts by what they may do on the whole volume VOL1. Those with "Tree" are of the Morvane tree,
// the others of Active Directory.
inline constexpr const char* supervisor = "ingrid.holm";
inline constexpr const char* accessControl = "tomas.beran"; ///< every right but supervisor
inline constexpr const char* readOnly = "lea.fournier";     ///< read and file scan
inline constexpr const char* supervisorTree = "rvogt";
inline constexpr const char* accessControlTree = "pnovak";
inline constexpr const char* readOnlyTree = "zmarchetti";

inline constexpr std::array<const char*, 6> accounts{supervisor,     accessControl,     readOnly,
                                                     supervisorTree, accessControlTree, readOnlyTree};

inline constexpr const char* selection = "VOL1:\\Projects\\Aurora"; ///< a dozen trustees of both kinds
inline constexpr const char* crowded = "VOL1:\\Projects\\Harbour Festival"; ///< two hundred of either kind

// A second server with the same identities and accounts and a volume DATA. Links of both are named by the
// path where they lie.
inline constexpr const char* secondHost = "files2.meridal.example";
inline constexpr const char* secondAddress = "192.0.2.12";
inline constexpr const char* link = "VOL1:\\Partners"; ///< leads to the second server
inline constexpr const char* linkTarget = "DATA:\\Festival Partners";
inline constexpr const char* linkOnLink = "DATA:\\Festival Partners\\Archive"; ///< leads back to VOL1:\Archiv
inline constexpr const char* linkOnSameServer = "VOL1:\\Current Project";      ///< leads to the selection

// Folders by their quota, and a file by its owner.
inline constexpr const char* limitedFolder = selection;
inline constexpr const char* unlimitedFolder = "VOL1:\\Archiv";
inline constexpr const char* folderWithoutQuota = "VOL1:\\Projects";
inline constexpr const char* compressedFile = "VOL1:\\Projects\\Aurora\\Drawings\\Stage plan A0.pdf";
inline constexpr const char* fileOfNobody = "VOL1:\\Projects\\Aurora\\Concept.odt"; ///< its owner is gone
inline constexpr std::size_t usersWithQuota = 150; ///< of VOL1, half of them in either directory

// Beside the volume's own domain the directory knows a second forest, and a domain out of reach.
inline constexpr const char* secondForest = "NORDHAVN";
inline constexpr std::size_t secondForestUsers = 105;
inline constexpr std::size_t secondForestGroups = 31;
inline constexpr const char* groupWithoutSid = "Gjester"; ///< of the second forest
inline constexpr const char* unreachableDomain = "FJERNØY";

} // namespace demo

/// Fills an empty server with the volume VOL1, the users and groups of both directories, and the
/// accounts above.
void addDemoData(KelpServer& server);

/// Fills the second server; it may share the identities of the first.
void addSecondDemoData(KelpServer& server);

/// The same identities and accounts on a volume VOL1 with no folders, where only the accounts above
/// are trustees.
void addDemoAccounts(KelpServer& server);

/// Adds the users and groups of the second forest; with the demo data they make 300 users and 60 groups
/// of Active Directory.
void addDemoForest(Identities& store);

/// Adds `count` new identities of one kind and makes each a trustee of `path`, with varied names and
/// rights. The same arguments give the same data.
void addManyTrustees(KelpServer& server, std::string_view path, std::size_t count,
                     IdentityKind kind = IdentityKind::activeDirectory);

} // namespace quorvan::simulator
