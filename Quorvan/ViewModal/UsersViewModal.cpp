// SPDX-License-Identifier: GPL-3.0-or-later
#include "Quorvan/ViewModal/UsersViewModal.h"

#include "Common/Error.h"
#include "Common/FeatureFlags.h"
#include "Common/Log.h"
#include "Platform/Services.h"

#include <map>

namespace quorvan {
namespace {

const std::vector<std::string> usersAndGroups = {"dsRecTypeStandard:Users", "dsRecTypeStandard:Groups"};

} // namespace

struct DirectoryLookup::Surroundings {
    std::optional<std::map<std::string, std::string>> state =
        platform::services().directory->activeDirectoryState();
    bool multiForest = featureFlag(readFeatureFlags(), "multiForest");

    /// Where to search. A node that could not be opened is tried again by the next look-up.
    platform::DirectoryNode* node() {
        platform::DirectoryServices& directory = *platform::services().directory;
        if (!node_)
            node_ = multiForest ? directory.openNetworkNode()
                                : directory.openNode((*state)["NodeName"] + "/All Domains");
        return node_.get();
    }

    platform::DirectoryQuery query; ///< kept for its memory

    // The records of the ID that was looked up last: a list asks for one attribute after the other.
    std::optional<std::string> lastID;
    platform::DirectoryRecords recordsOfLastID;

private:
    std::shared_ptr<platform::DirectoryNode> node_;
};

DirectoryLookup::DirectoryLookup() = default;
DirectoryLookup::~DirectoryLookup() = default;

platform::DirectoryRecords
DirectoryLookup::getUserGroupInfo(const std::string& strToQuery, const std::optional<std::string>& recType,
                                  const std::optional<std::string>& attribute) const {
    if (!surroundings_)
        surroundings_ = std::make_unique<Surroundings>();
    if (!surroundings_->state) {
        Log("Could not find a Active Directory on the server");
        return {};
    }
    platform::DirectoryQuery& query = surroundings_->query;
    if (recType)
        query.recordTypes = {*recType};
    else
        query.recordTypes = usersAndGroups;
    query.attribute = attribute ? *attribute : "dsAttrTypeStandard:RecordName";
    query.values.assign(1, strToQuery);
    platform::DirectoryNode* node = surroundings_->node();
    auto records = node != nullptr ? node->query(query) : std::nullopt;
    if (!records) {
        Log("Error in Open Directory Session");
        displayWarningMsg(errorCode::adConnect);
        return {};
    }
    return *std::move(records);
}

const platform::DirectoryRecords& DirectoryLookup::recordsOfID(const std::string& objectID) const {
    if (!surroundings_ || surroundings_->lastID != objectID) {
        auto records = getUserGroupInfo(objectID, {}, kODAttributeTypeSMBSID);
        surroundings_->lastID.reset(); // an empty answer may be a failure, which the next look-up meets anew
        if (!records.empty())
            surroundings_->lastID = objectID;
        surroundings_->recordsOfLastID = std::move(records);
    }
    return surroundings_->recordsOfLastID;
}

std::string DirectoryLookup::lookupAttrValueFromID(const std::string& objectID,
                                                   const std::string& attributeType) const {
    std::string result = "Unknown";
    for (const auto& record : recordsOfID(objectID)) {
        const auto values = record->values(attributeType);
        if (!values) {
            Log("Error in Opening Session");
            return result;
        }
        const std::string first = values->empty() ? "" : values->front();
        result = first.substr(0, first.find(':'));
        if (result.empty())
            result = "Unknown";
    }
    return result;
}

void DirectoryLookup::setTrusteeTypeforTrustee(Trustees& trustee) const {
    for (const auto& record : recordsOfID(trustee.trusteeID)) {
        const auto values = record->values("dsAttrTypeStandard:RecordType");
        if (!values || values->empty()) {
            Log("Error in Open Directory Session");
            displayWarningMsg(errorCode::adConnect);
            return;
        }
        const std::string& recordType = values->front();
        const std::size_t colon = recordType.find(':');
        require(colon != std::string::npos, "The record type \"%@\" has no second part", recordType);
        trustee.trusteeType = recordType.substr(colon + 1, recordType.find(':', colon + 1) - colon - 1);
    }
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
