// SPDX-License-Identifier: GPL-3.0-or-later
#include "Quorvan/ViewModal/Replies/FileInfoReplies.h"

#include "Common/Fatal.h"
#include "Common/Log.h"
#include "Quorvan/Modal/Constants.h"
#include "Quorvan/ViewModal/Replies/ReplyPass.h"
#include "Quorvan/ViewModal/XMLReadWrite.h"

namespace quorvan {
namespace {

ElementPath inFileInfo(const ElementPath& path) {
    ElementPath whole = {"fileInfo", "getFileInfo"};
    whole.insert(whole.end(), path.begin(), path.end());
    return whole;
}

template <class Info>
void decode(const std::string& xml, const FileProperty& property, Info& info) {
    FileInfoReader reader(property);
    reader.finish(readReply(xml, reader), info);
}

} // namespace

const FileProperty FileProperty::owner = {{"idInfo", "creator"}, "Error parsing ownerInfo - "};
const FileProperty FileProperty::attributes = {{"standardInfo", "attributes"}, "Error parsing ownerInfo - "};
const FileProperty FileProperty::directoryQuota = {{"quotaInfo"},
                                                   "Error parsing Directory Quota Response - "};

FileInfoReader::FileInfoReader(const FileProperty& property)
    : complaint_(property.complaint)
    , property_(inFileInfo(property.path))
    , result_(inFileInfo({"result"})) {}

bool FileInfoReader::isXML(const std::optional<XMLError>& error) const {
    if (error)
        Log("%@%@", complaint_, error->description);
    return !error;
}

void FileInfoReader::finish(const std::optional<XMLError>& error, OwnerInfo& info) const {
    if (isXML(error))
        info = {getValue("name", property_.element()), getValue("id", property_.element()),
                getValue("description", result_.element())};
}

void FileInfoReader::finish(const std::optional<XMLError>& error, AttributesInfo& info) const {
    if (isXML(error))
        info = {XMLReadWriteController::parseFileAttributes(property_.element()),
                getValue("description", result_.element())};
}

void FileInfoReader::finish(const std::optional<XMLError>& error, DirectoryQuotaInfo& info) const {
    if (isXML(error))
        info = {getValue("quotaAmount", property_.element()), getValue("usedAmount", property_.element()),
                getValue("description", result_.element())};
}

void XMLReadWriteController::decodeOwnerInfo(const std::string& xml, OwnerInfo& dictionary) {
    decode(xml, FileProperty::owner, dictionary);
}

void XMLReadWriteController::decodeFileAttributesResponse(const std::string& xml,
                                                          AttributesInfo& dictionary) {
    decode(xml, FileProperty::attributes, dictionary);
}

void XMLReadWriteController::decodeDirQuotaResponse(const std::string& xml, DirectoryQuotaInfo& dictionary) {
    decode(xml, FileProperty::directoryQuota, dictionary);
}

std::vector<std::string> XMLReadWriteController::parseFileAttributes(XMLElement xmlData) {
    std::vector<std::string> names;
    for (const XMLElement attribute : xmlData.children()) {
        require(!attribute.isText(), "There is text among the attributes");
        if (FileAttributes::FILE_ATTRIBUTES_TAG_ENABLED.contains(attribute.name()))
            names.emplace_back(attribute.name());
    }
    return names;
}

} // namespace quorvan
