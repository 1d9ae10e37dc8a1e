// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "Platform/DirectoryServices.h"
#include "Quorvan/Modal/Users.h"

#include <memory>
#include <optional>
#include <string>

namespace quorvan {

inline constexpr const char* kODAttributeTypeSMBSID = "dsAttrTypeStandard:SMBSID";
inline constexpr const char* kODAttributeTypePrimaryNTDomain = "dsAttrTypeStandard:PrimaryNTDomain";

/// Look-ups in Active Directory that share what they read about the machine, so that a list of many
/// trustees reads it once. Failures are logged and shown as a warning, one for each look-up.
class DirectoryLookup {
public:
    DirectoryLookup();
    ~DirectoryLookup();
    DirectoryLookup(const DirectoryLookup&) = delete;
    DirectoryLookup& operator=(const DirectoryLookup&) = delete;

    platform::DirectoryRecords getUserGroupInfo(const std::string& strToQuery,
                                                const std::optional<std::string>& recType,
                                                const std::optional<std::string>& attribute) const;
    std::string lookupAttrValueFromID(const std::string& objectID, const std::string& attributeType) const;
    void setTrusteeTypeforTrustee(Trustees& trustee) const;

private:
    struct Surroundings;
    const platform::DirectoryRecords& recordsOfID(const std::string& objectID) const;
    mutable std::unique_ptr<Surroundings> surroundings_; ///< read by the first look-up
};

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
