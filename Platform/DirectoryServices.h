// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <cstddef>
#include <map>
#include <memory>
#include <optional>
#include <string>
#include <vector>

namespace quorvan::platform {

// Types of records.
inline constexpr const char* kODRecordTypeUsers = "dsRecTypeStandard:Users";
inline constexpr const char* kODRecordTypeGroups = "dsRecTypeStandard:Groups";

// Attributes of records; `nativeAttributePrefix` and X is attribute X of the directory itself.
inline constexpr const char* kODAttributeTypeRecordName = "dsAttrTypeStandard:RecordName"; ///< account name
inline constexpr const char* kODAttributeTypeSMBSID = "dsAttrTypeStandard:SMBSID";         ///< S-1-… text
inline constexpr const char* kODAttributeTypePrimaryNTDomain =
    "dsAttrTypeStandard:PrimaryNTDomain"; ///< the domain's NetBIOS name
inline constexpr const char* kODAttributeTypeRecordType =
    "dsAttrTypeStandard:RecordType"; ///< one of the types of records
inline constexpr const char* nativeAttributePrefix = "dsAttrTypeNative:";
inline constexpr const char* nativeDistinguishedName = "dsAttrTypeNative:distinguishedName";
inline constexpr const char* nativeMemberOf = "dsAttrTypeNative:memberOf"; ///< distinguished names

// Names of nodes: "/Active Directory/NAME" is a domain, "/Active Directory/NAME/All Domains" its forest.
inline constexpr const char* activeDirectoryNode = "/Active Directory";
inline constexpr const char* allDomainsNode = "/All Domains";

/// The key of the node's name in the state of the Active Directory connection.
inline constexpr const char* nodeNameKey = "NodeName";

/// One user, group or other object of a directory.
class DirectoryRecord {
public:
    virtual ~DirectoryRecord() = default;

    /// All values of an attribute (empty when the record has none); nothing when reading failed.
    virtual std::optional<std::vector<std::string>> values(const std::string& attribute) = 0;

    /// The first of them, "" without one. An adapter that can do without the list of all says so here: a
    /// list of users asks this twice for each.
    virtual std::optional<std::string> first(const std::string& attribute) {
        const auto all = values(attribute);
        if (!all)
            return std::nullopt;
        return all->empty() ? std::string() : all->front();
    }
};

using DirectoryRecords = std::vector<std::shared_ptr<DirectoryRecord>>;

/// Case does not count. `any` takes no values: every record matches.
enum class DirectoryMatch { any, equalTo, contains };

struct DirectoryQuery {
    std::vector<std::string> recordTypes;
    std::string attribute;
    DirectoryMatch match = DirectoryMatch::equalTo;
    std::vector<std::string> values; ///< a record matches when one of them does; never interpreted
    std::size_t limit = 0;           ///< at most this many records; 0 = all
};

/// A part of the directory that can be searched.
class DirectoryNode {
public:
    virtual ~DirectoryNode() = default;

    /// The matching records in the directory's order; nothing when it did not answer, or not to the end.
    virtual std::optional<DirectoryRecords> query(const DirectoryQuery& query) = 0;
};

enum class IdentityClass { user = 1, group = 2 };

/// An account or group that the machine itself knows, because it is bound to a directory.
struct ManagedIdentity {
    std::optional<std::string> posixName; ///< by which the machine's own programs know it
};

/// The identity service that the machine is bound to. What fails leaves the reason in errno.
class DirectoryServices {
public:
    virtual ~DirectoryServices() = default;

    /// The state of the Active Directory connection (`nodeNameKey`: "/Active Directory/NAME");
    /// nothing when this machine is not bound to one.
    virtual std::optional<std::map<std::string, std::string>> activeDirectoryState() = 0;

    /// The names of all nodes, of each domain first the domain itself and then its forest
    /// ("/Local/Default", "/Active Directory/NAME", "/Active Directory/NAME/All Domains"), whether they
    /// can be reached or not; nothing when the names cannot be read.
    virtual std::optional<std::vector<std::string>> nodeNames() = 0;

    /// A node by its name ("/Active Directory/NAME/All Domains"); null when it cannot be opened.
    virtual std::shared_ptr<DirectoryNode> openNode(const std::string& name) = 0;

    /// The node that searches everything the machine knows; null when it cannot be opened.
    virtual std::shared_ptr<DirectoryNode> openNetworkNode() = 0;

    /// Every identity of a class in the directory that the machine is bound to; nothing when it did not
    /// answer or there is none.
    virtual std::optional<std::vector<ManagedIdentity>> managedIdentities(IdentityClass identityClass) = 0;

    /// Hint: these security identifiers will be looked up one by one next.
    virtual void prefetch(const std::vector<std::string>& sids) = 0;
};

} // namespace quorvan::platform
