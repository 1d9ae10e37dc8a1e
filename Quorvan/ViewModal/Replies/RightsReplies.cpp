// SPDX-License-Identifier: GPL-3.0-or-later
#include "Quorvan/ViewModal/Replies/RightsReplies.h"

#include "Common/Fatal.h"
#include "Common/Log.h"
#include "Quorvan/Modal/Constants.h"
#include "Quorvan/ViewModal/Replies/ReplyPass.h"
#include "Quorvan/ViewModal/XMLReadWrite.h"

#include <algorithm>

namespace quorvan {
namespace {

/// The bit of a right by the name of its element; 0 for any other name.
std::uint16_t bitOf(std::string_view tag) {
    const auto right = std::find_if(rightTags.begin(), rightTags.end(),
                                    [tag](const RightTag& known) { return known.tag == tag; });
    return right == rightTags.end() ? std::uint16_t{0} : right->bit;
}

} // namespace

FileRightsReader::FileRightsReader(const std::vector<std::string>& identities,
                                   std::vector<IdentityFileRights>& rows)
    : identities_(identities.begin(), identities.end())
    , rows_(rows)
    , before_(rows.size())
    , files_({}, [this](XMLElement file) { readFile(file); }) {}

void FileRightsReader::readFile(XMLElement file) {
    if (file.name() != "file")
        return;
    const auto list = getXMLElement({"rightsInfo", "trusteeList"}, file);
    const auto path = file.firstChild("path");
    complete_ = complete_ && list && path;
    if (!complete_ || !list->hasChildren())
        return;
    const SharedText pathText = path->stringValue();
    for (const XMLElement trustee : list->children()) {
        if (trustee.hasChildren())
            XMLReadWriteController::decodeFSRTrusteeInfo(trustee, pathText, identities_, rows_);
    }
}

void FileRightsReader::finish(const std::optional<XMLError>& error) {
    if (error) {
        Log("Error parsing FSR Response : error %@", error->description);
        rows_.resize(before_);
        return;
    }
    require(complete_, "A file of the reply has no path or no list of trustees");
}

void XMLReadWriteController::decodeFSRInfo(const std::string& xmlResp, const std::vector<std::string>& userID,
                                           std::vector<IdentityFileRights>& arr) {
    FileRightsReader files(userID, arr);
    files.finish(readReply(xmlResp, files));
}

void XMLReadWriteController::decodeFSRTrusteeInfo(XMLElement xmlNodeArr, const SharedText& path,
                                                  const IdentitySet& userID,
                                                  std::vector<IdentityFileRights>& arr) {
    std::string current;
    std::uint16_t mask = 0;
    for (const XMLElement child : xmlNodeArr.children()) {
        if (child.name() == "id") {
            current = child.stringValue();
        } else if (child.name() == "rights" && userID.contains(current)) {
            for (const XMLElement right : child.children())
                mask |= bitOf(right.name());
            arr.push_back({current, {path, mask}});
        }
    }
}

std::vector<std::string> XMLReadWriteController::parseEffectiveRights(XMLElement xmlData) {
    std::vector<std::string> names;
    for (const XMLElement right : xmlData.children()) {
        require(!right.isText(), "There is text among the effective rights");
        names.emplace_back(right.name());
    }
    return names;
}

} // namespace quorvan
