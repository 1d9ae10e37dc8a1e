// SPDX-License-Identifier: GPL-3.0-or-later
#include "Quorvan/ViewModal/Replies/RightsReplies.h"

#include "Common/Fatal.h"
#include "Common/Log.h"
#include "Quorvan/Modal/Constants.h"
#include "Quorvan/ViewModal/Replies/ReplyPass.h"
#include "Quorvan/ViewModal/XMLReadWrite.h"

#include <algorithm>
#include <utility>

namespace quorvan {
void TrusteeRights::add(std::string_view right) {
    const auto known = std::find_if(rightTags.begin(), rightTags.end(),
                                    [right](const RightTag& tag) { return tag.tag == right; });
    if (known != rightTags.end())
        mask_ |= known->bit;
}

FileRightsReader::FileRightsReader(const std::vector<std::string>& identities,
                                   std::vector<IdentityFileRights>& rows)
    : identities_(identities.begin(), identities.end())
    , rows_(rows)
    , before_(rows.size()) {}

void FileRightsReader::didStartElement(std::string_view name, XMLAttributes) {
    if (text_ != nullptr)
        endTextPart(*text_, textPart_);
    const std::size_t level = depth_++;
    if (level == onTheWay_ && leadsOn(level, name))
        ++onTheWay_;
}

bool FileRightsReader::leadsOn(std::size_t level, std::string_view name) {
    switch (level) {
    case root:
        return true;
    case file:
        fileBegin_ = rows_.size();
        hasRightsInfo_ = hasList_ = hasPath_ = false;
        return name == "file";
    case inFile:
        if (name == "path" && !std::exchange(hasPath_, true))
            read(path_);
        return name == "rightsInfo" && !std::exchange(hasRightsInfo_, true);
    case inRightsInfo:
        return name == "trusteeList" && !std::exchange(hasList_, true);
    case trustee:
        trustee_.begin();
        return true;
    case inTrustee:
        if (name == "id")
            read(id_);
        return name == "rights" && trustee_.isOneOf(identities_);
    case inRights:
        trustee_.add(name);
        return false;
    default:
        return false;
    }
}

void FileRightsReader::read(std::string& text) {
    text.clear();
    text_ = &text;
    textDepth_ = depth_;
    textPart_ = 0;
}

void FileRightsReader::foundCharacters(std::string_view text) {
    if (text_ != nullptr)
        *text_ += text;
}

void FileRightsReader::didEndElement(std::string_view) {
    if (text_ != nullptr) {
        endTextPart(*text_, textPart_);
        if (depth_ == textDepth_ && std::exchange(text_, nullptr) == &id_)
            trustee_.setID(id_);
    }
    const std::size_t level = --depth_;
    if (onTheWay_ <= level)
        return;
    onTheWay_ = level;
    if (level == inTrustee)
        rows_.push_back(trustee_.on({}));
    else if (level == file)
        endFile();
}

void FileRightsReader::endFile() {
    isComplete_ = isComplete_ && hasList_ && hasPath_;
    if (fileBegin_ == rows_.size())
        return;
    const SharedText path(path_);
    for (std::size_t at = fileBegin_; at < rows_.size(); ++at)
        rows_[at].rights.fpath = path;
}

void FileRightsReader::finish(const std::optional<XMLError>& error) {
    if (error) {
        Log("Error parsing FSR Response : error %@", error->description);
        rows_.resize(before_);
        return;
    }
    require(isComplete_, "A file of the reply has no path or no list of trustees");
}

void XMLReadWriteController::decodeFSRInfo(const std::string& xmlResp, const std::vector<std::string>& userID,
                                           std::vector<IdentityFileRights>& arr) {
    FileRightsReader files(userID, arr);
    files.finish(readReply(xmlResp, files));
}

void XMLReadWriteController::decodeFSRTrusteeInfo(XMLElement xmlNodeArr, const SharedText& path,
                                                  const IdentitySet& userID,
                                                  std::vector<IdentityFileRights>& arr) {
    TrusteeRights trustee;
    for (const XMLElement child : xmlNodeArr.children()) {
        if (child.name() == "id") {
            trustee.setID(child.stringValue());
        } else if (child.name() == "rights" && trustee.isOneOf(userID)) {
            for (const XMLElement right : child.children())
                trustee.add(right.name());
            arr.push_back(trustee.on(path));
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
