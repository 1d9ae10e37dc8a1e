// SPDX-License-Identifier: GPL-3.0-or-later
#include "Quorvan/ViewModal/Replies/XMLResponseParse.h"

#include "Common/Fatal.h"
#include "Quorvan/Modal/Utils.h"

#include <cstring>
#include <utility>

namespace quorvan {
namespace {

void close(ReplyEntries& entries, const std::shared_ptr<ReplyEntry>& entry, std::string_view name) {
    require(entry != nullptr, "\"%@\" ended in the reply and never began", name);
    entries.push_back(entry);
}

} // namespace

EntryText::EntryText(std::string_view text, std::pmr::memory_resource& memory) {
    const auto size = static_cast<std::uint32_t>(text.size()); // a reply fits into an int
    auto* copy = static_cast<char*>(memory.allocate(sizeof size + size, 1));
    std::memcpy(copy, &size, sizeof size);
    std::memcpy(copy + sizeof size, text.data(), size);
    begin_ = copy;
}

void ResultElement::didStartElement(std::string_view name, XMLAttributes attributes) {
    if (!search_.didStartElement(name))
        return;
    hasAttributes_ = !attributes.empty();
    value_ = attributes.value("value").value_or("0");
}

std::string ResultElement::status() const {
    search_.requireFound();
    require(hasAttributes_, "The result of the reply has no attributes");
    return value_;
}

const ReplyEntries& XMLResponseParser::getdictionaryfromXMLData(const std::string& reply) {
    error = parser.parse(reply, *this);
    return arrStack;
}

std::shared_ptr<ReplyEntry> XMLResponseParser::makeEntry() {
    return {storage_, &storage_->entries.emplace_back()};
}

void XMLResponseParser::didStartElement(ElementName name, XMLAttributes attributes) {
    result.didStartElement(name, attributes);
    currentElement = name;
    const ReplyTag& tag = name.tag();
    if (tag.kind == ReplyTag::Kind::result) {
        if (const auto value = attributes.value("value"))
            resValue = *value;
    }
    if (!gathers_)
        return;
    switch (tag.kind) {
    case ReplyTag::Kind::trusteeInfo:
        dictForTrustees = makeEntry();
        break;
    case ReplyTag::Kind::trusteeName:
        if (const auto objectClass = attributes.value("objectClass"); objectClass && dictForTrustees)
            dictForTrustees->trusteeType = keep(*objectClass);
        break;
    case ReplyTag::Kind::inheritedRightsFilter:
        dictForIRF = makeEntry();
        break;
    case ReplyTag::Kind::effectiveRights:
        dictForEffRights = makeEntry();
        break;
    case ReplyTag::Kind::file:
        dictForDir = makeEntry();
        break;
    default:
        break;
    }
}

void XMLResponseParser::foundCharacters(std::string_view text) {
    if (!gathers_)
        return;
    if (text == "\n")
        textInProgress.clear();
    else
        textInProgress += text;
}

void XMLResponseParser::didEndElement(ElementName name) {
    result.didEndElement(name);
    const ReplyTag& tag = name.tag();
    switch (tag.kind) {
    case ReplyTag::Kind::addTrustee:
        nAddFailed += resValue != "0" ? 1 : 0;
        break;
    case ReplyTag::Kind::removeTrustee:
        nRemFailed += resValue != "0" ? 1 : 0;
        break;
    case ReplyTag::Kind::result:
        if (resValue != "0")
            xmlReqStatus = unwrap(decimalNumber(resValue), "The result \"%@\" is not a number", resValue);
        break;
    default:
        if (gathers_)
            endEntryElement(tag);
    }
    textInProgress.clear();
}

void XMLResponseParser::endEntryElement(const ReplyTag& tag) {
    switch (tag.kind) {
    case ReplyTag::Kind::trusteeInfo:
        close(arrStack, dictForTrustees, tag.name);
        break;
    case ReplyTag::Kind::inheritedRightsFilter:
        close(arrStack, dictForIRF, tag.name);
        dictForIRF->inheritedRightsFilter = std::exchange(rightsBit, std::uint16_t{0});
        break;
    case ReplyTag::Kind::effectiveRights:
        close(arrStack, dictForEffRights, tag.name);
        dictForEffRights->effectiveRights = std::exchange(rightsBit, std::uint16_t{0});
        break;
    case ReplyTag::Kind::file:
        close(arrStack, dictForDir, tag.name);
        break;
    case ReplyTag::Kind::path:
        if (dictForDir && !dictForDir->path)
            dictForDir->path = keep(textInProgress);
        break;
    case ReplyTag::Kind::trusteeName:
        if (dictForTrustees)
            dictForTrustees->trusteeName = keep(textInProgress);
        break;
    case ReplyTag::Kind::trusteeID:
        if (dictForTrustees && !dictForTrustees->trusteeID)
            dictForTrustees->trusteeID = keep(textInProgress);
        break;
    case ReplyTag::Kind::rights:
        if (dictForTrustees)
            dictForTrustees->rights = rightsBit;
        rightsBit = 0;
        break;
    case ReplyTag::Kind::right:
        rightsBit |= tag.bit;
        break;
    default:
        break;
    }
}

} // namespace quorvan
