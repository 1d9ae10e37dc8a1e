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

    platform::DirectoryQuery query; ///< kept for its memory

    // The records of the ID that was looked up last: a list asks for one attribute after the other. Without
    // any they may have failed, which the next look-up meets anew.
    std::string lastID;
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

std::optional<platform::DirectoryRecords> DirectoryLookup::ask(const std::string& strToQuery,
                                                               const std::optional<std::string>& recType,
                                                               std::string_view attribute) const {
    if (!surroundings_)
        surroundings_ = std::make_unique<Surroundings>();
    if (!surroundings_->state) {
        logFailure("Could not find a Active Directory on the server");
        return platform::DirectoryRecords();
    }
    platform::DirectoryQuery& query = surroundings_->query;
    if (recType)
        query.recordTypes = {*recType};
    else
        query.recordTypes = usersAndGroups;
    query.attribute = attribute;
    query.values.assign(1, strToQuery);
    platform::DirectoryNode* node = surroundings_->node();
    return node != nullptr ? node->query(query) : std::nullopt;
}

platform::DirectoryRecords
DirectoryLookup::getUserGroupInfo(const std::string& strToQuery, const std::optional<std::string>& recType,
                                  const std::optional<std::string>& attribute) const {
    auto records = ask(strToQuery, recType, attribute ? *attribute : kODAttributeTypeRecordName);
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
    if (!surroundings_ || surroundings_->recordsOfLastID.empty() || surroundings_->lastID != objectID) {
        auto records = ask(objectID, {}, kODAttributeTypeSMBSID);
        if (!records)
            reportFailure();
        surroundings_->lastID = objectID;
        surroundings_->recordsOfLastID = std::move(records).value_or(platform::DirectoryRecords());
    }
    return surroundings_->recordsOfLastID;
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
        return ask(objName, recordTypeOf(objType), attributeName);
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
