// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "Platform/DirectoryServices.h"
#include "Quorvan/Modal/Users.h"

#include <cstddef>
#include <memory>
#include <optional>
#include <string>

namespace quorvan {

using platform::kODAttributeTypePrimaryNTDomain;
using platform::kODAttributeTypeRecordName;
using platform::kODAttributeTypeRecordType;
using platform::kODAttributeTypeSMBSID;
using platform::kODRecordTypeGroups;
using platform::kODRecordTypeUsers;

/// Look-ups in Active Directory that share what they read about the machine, so that a list of many
/// trustees reads it once. Each failure is logged; the user is warned of the first one only.
class DirectoryLookup {
public:
    DirectoryLookup();
    ~DirectoryLookup();
    DirectoryLookup(const DirectoryLookup&) = delete;
    DirectoryLookup& operator=(const DirectoryLookup&) = delete;

    /// Announces the SIDs that are looked up next, so that they are fetched in one go.
    static void prefetch(const std::vector<std::string>& sids);

    platform::DirectoryRecords getUserGroupInfo(const std::string& strToQuery,
                                                const std::optional<std::string>& recType,
                                                const std::optional<std::string>& attribute) const;
    std::string lookupAttrValueFromID(const std::string& objectID, const std::string& attributeType) const;
    void setTrusteeTypeforTrustee(Trustees& trustee) const;
    /// The SID of the user ("Users") or group (any other type) whose `attributeName` equals `objName`; ""
    /// without one. Of several the last one's.
    std::string getSidforObject(const std::string& objName, const std::string& objType,
                                const std::string& attributeName) const;

private:
    struct Surroundings;
    Surroundings& surroundings() const;
    std::optional<platform::DirectoryRecords> ask(const platform::DirectoryQuery& query) const;
    void reportFailure() const;
    const platform::DirectoryRecords& recordsOfID(const std::string& objectID) const;
    mutable std::unique_ptr<Surroundings> surroundings_; ///< read by the first look-up
    void logFailure(const char* text) const;

    mutable std::size_t failures_ = 0;
    mutable bool warned_ = false;
};

/// The record type of a category: users for "Users", groups for any other.
const char* recordTypeOf(const std::string& category);

/// The records of Active Directory whose `attribute` equals a text; of users and groups when there is no
/// record type. Empty when there are none, or (logged) the machine is not bound to a directory, or
/// (logged and shown) the directory does not answer.
platform::DirectoryRecords getUserGroupInfo(const std::string& strToQuery,
                                            const std::optional<std::string>& recType,
                                            const std::optional<std::string>& attribute);

/// An attribute's first value, up to its first ":", of the object with a SID; "Unknown" without one.
std::string lookupAttrValueFromID(const std::string& objectID, const std::string& attributeType);

/// Sets a trustee's type from the record type of the object with its SID; without one it stays.
void setTrusteeTypeforTrustee(Trustees& trustee);

} // namespace quorvan
