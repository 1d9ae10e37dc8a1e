// SPDX-License-Identifier: GPL-3.0-or-later
#include "Quorvan/ViewModal/Replies/DirectoryTreeReplies.h"

#include "Quorvan/ViewModal/Replies/RowsOfNothing.h"
#include "Quorvan/ViewModal/XMLReadWrite.h"

#include <algorithm>
#include <iterator>
#include <string>
#include <utility>

namespace quorvan {
namespace {

const ElementPath attributeResult = {"trellObject", "getAttribute", "result"};

} // namespace

const TreeQuestion TreeBrowseReader::question = {
    {"trellObject", "trellSearch", "result"}, "Error parsing TRELL Response : error ", ""};
const TreeQuestion TreeGuidReader::question = {attributeResult,
                                               "Error parsing TRELL Morvane Guid Response : error ", "0"};
const TreeQuestion TreeGroupsReader::question = {attributeResult,
                                                 "Error parsing TRELL Morvane Groups Response : error ", "0"};

TreeBrowseReader::TreeBrowseReader(std::vector<User>& users)
    : users_(users)
    , objects_({"trellObject", "trellSearch"}, [this](XMLElement object) {
        if (object.hasChildren()) // the result has none
            XMLReadWriteController::decodeTRELLBrowse(object, found_);
    }) {}

std::string TreeBrowseReader::answer(std::string status) {
    objects_.requireList();
    std::move(found_.begin(), found_.end(), std::back_inserter(users_));
    return status;
}

TreeAttributeReader::TreeAttributeReader()
    : ElementReader({"trellObject", "getAttribute", "trellAttribute"}) {}

std::string TreeGuidReader::answer(std::string status) const {
    const XMLElement values = element();
    if (!values.hasChildren())
        return status;
    const XMLElement first = *values.children().begin();
    return first.name() == "value" ? first.stringValue() : status;
}

std::string TreeGroupsReader::answer(std::string status) const {
    RowsOfNothing ofNothing;
    for (const XMLElement child : element().children()) {
        std::string name = child.name() == "value" ? child.stringValue() : "";
        if (!name.empty() || !ofNothing.isOneTooMany())
            groups_.push_back({std::move(name), "", ""});
    }
    ofNothing.report();
    return status;
}

void XMLReadWriteController::decodeTRELLBrowse(XMLElement nodes, std::vector<User>& userlist) {
    User user;
    for (const XMLElement child : nodes.children()) {
        if (child.name() == "dn")
            user.trusteeName = child.stringValue();
        else if (child.name() == "objectClass")
            user.trusteeType = child.stringValue();
        else if (child.name() == "userID")
            user.trusteeID = child.stringValue();
    }
    userlist.push_back(std::move(user));
}

} // namespace quorvan
