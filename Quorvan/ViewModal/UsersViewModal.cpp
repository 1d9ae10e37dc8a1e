// SPDX-License-Identifier: GPL-3.0-or-later
#include "Quorvan/ViewModal/UsersViewModal.h"

#include "Common/Error.h"
#include "Common/FeatureFlags.h"
#include "Common/Log.h"
#include "Platform/Services.h"
#include "Quorvan/Modal/Constants.h"
#include "Quorvan/ViewModal/ScopedPipe.h"

#include <algorithm>
#include <map>

namespace quorvan {
namespace {

const std::vector<std::string> usersAndGroups = {kODRecordTypeUsers, kODRecordTypeGroups};

} // namespace

struct DirectoryLookup::Surroundings {
    std::optional<std::map<std::string, std::string>> state =
        platform::services().directory->activeDirectoryState();
    bool multiForest = featureFlag(readFeatureFlags(), "multiForest");

    /// Where to search. A node that could not be opened is tried again by the next look-up.
    platform::DirectoryNode* node() {
        platform::DirectoryServices& directory = *platform::services().directory;
        if (!node_)
            node_ = multiForest
                        ? directory.openNetworkNode()
                        : directory.openNode((*state)[platform::nodeNameKey] + platform::allDomainsNode);
        return node_.get();
    }

    // The last question for an ID and its records: a list asks for one attribute after the other. Without
    // any they may have failed, which the next look-up meets anew.
    platform::DirectoryQuery byID{
        usersAndGroups, kODAttributeTypeSMBSID, platform::DirectoryMatch::equalTo, {""}};
    platform::DirectoryRecords recordsOfLastID;

private:
    std::shared_ptr<platform::DirectoryNode> node_;
};

DirectoryLookup::DirectoryLookup() = default;
DirectoryLookup::~DirectoryLookup() = default;

void DirectoryLookup::prefetch(const std::vector<std::string>& sids) {
    const platform::BusyScope busy(platform::services().busy);
    platform::services().directory->prefetch(sids);
}

DirectoryLookup::Surroundings& DirectoryLookup::surroundings() const {
    if (!surroundings_)
        surroundings_ = std::make_unique<Surroundings>();
    return *surroundings_;
}

std::optional<platform::DirectoryRecords> DirectoryLookup::ask(const platform::DirectoryQuery& query) const {
    if (!surroundings().state) {
        logFailure("Could not find a Active Directory on the server");
        return platform::DirectoryRecords();
    }
    platform::DirectoryNode* node = surroundings().node();
    return node != nullptr ? node->query(query) : std::nullopt;
}

platform::DirectoryRecords
DirectoryLookup::getUserGroupInfo(const std::string& strToQuery, const std::optional<std::string>& recType,
                                  const std::optional<std::string>& attribute) const {
    auto records = ask({recType ? std::vector{*recType} : usersAndGroups,
                        attribute.value_or(kODAttributeTypeRecordName),
                        platform::DirectoryMatch::equalTo,
                        {strToQuery}});
    if (!records) {
        reportFailure();
        return {};
    }
    return *std::move(records);
}

/// A list of two million rows must not fill the disk with two million lines.
void DirectoryLookup::logFailure(const char* text) const {
    constexpr std::size_t mostLines = 100;
    if (failures_ < mostLines)
        Log("%@", text);
    else if (failures_ == mostLines)
        Log("%@ … and so on for the rest of this list", text);
    ++failures_;
}

/// A list of two hundred trustees meets a silent directory two hundred times; its user reads of it once.
void DirectoryLookup::reportFailure() const {
    logFailure("Error in Open Directory Session");
    if (!warned_)
        reportWhenPipeIsClosed([] { displayWarningMsg(errorCode::adConnect); });
    warned_ = true;
}

const platform::DirectoryRecords& DirectoryLookup::recordsOfID(const std::string& objectID) const {
    Surroundings& known = surroundings();
    std::string& lastID = known.byID.values.front();
    if (known.recordsOfLastID.empty() || lastID != objectID) {
        lastID = objectID;
        auto records = ask(known.byID);
        if (!records)
            reportFailure();
        known.recordsOfLastID = std::move(records).value_or(platform::DirectoryRecords());
    }
    return known.recordsOfLastID;
}

std::string DirectoryLookup::lookupAttrValueFromID(const std::string& objectID,
                                                   const std::string& attributeType) const {
    std::string result = "Unknown";
    for (const auto& record : recordsOfID(objectID)) {
        auto value = record->first(attributeType);
        if (!value) {
            logFailure("Error in Opening Session");
            return result;
        }
        result = *std::move(value);
        result.resize(std::min(result.find(':'), result.size()));
        if (result.empty())
            result = "Unknown";
    }
    return result;
}

void DirectoryLookup::setTrusteeTypeforTrustee(Trustees& trustee) const {
    for (const auto& record : recordsOfID(trustee.trusteeID)) {
        const auto values = record->values(kODAttributeTypeRecordType);
        if (!values || values->empty()) {
            reportFailure();
            return;
        }
        const std::string& recordType = values->front();
        const std::size_t colon = recordType.find(':');
        require(colon != std::string::npos, "The record type \"%@\" has no second part", recordType);
        trustee.trusteeType = recordType.substr(colon + 1, recordType.find(':', colon + 1) - colon - 1);
    }
}

std::string DirectoryLookup::getSidforObject(const std::string& objName, const std::string& objType,
                                             const std::string& attributeName) const {
    const auto records = [&] {
        const platform::BusyScope busy(platform::services().busy);
        return ask({{recordTypeOf(objType)}, attributeName, platform::DirectoryMatch::equalTo, {objName}});
    }();
    if (!records) {
        reportFailure();
        return "";
    }
    std::string sid;
    for (const auto& record : *records) {
        auto value = record->first(kODAttributeTypeSMBSID);
        if (!value) {
            logFailure("Error in Open Directory Session");
            return sid;
        }
        sid = *std::move(value);
    }
    return sid;
}

const char* recordTypeOf(const std::string& category) {
    return category == UserQuotaConstants::ObjectTypes::USERS ? kODRecordTypeUsers : kODRecordTypeGroups;
}

platform::DirectoryRecords getUserGroupInfo(const std::string& strToQuery,
                                            const std::optional<std::string>& recType,
                                            const std::optional<std::string>& attribute) {
    return DirectoryLookup().getUserGroupInfo(strToQuery, recType, attribute);
}

std::string lookupAttrValueFromID(const std::string& objectID, const std::string& attributeType) {
    return DirectoryLookup().lookupAttrValueFromID(objectID, attributeType);
}

void setTrusteeTypeforTrustee(Trustees& trustee) {
    DirectoryLookup().setTrusteeTypeforTrustee(trustee);
}

} // namespace quorvan
