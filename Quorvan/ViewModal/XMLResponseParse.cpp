// SPDX-License-Identifier: GPL-3.0-or-later
#include "Quorvan/ViewModal/XMLResponseParse.h"

#include "Common/Fatal.h"
#include "Quorvan/Modal/Constants.h"
#include "Quorvan/Modal/Utils.h"

#include <array>
#include <utility>

namespace quorvan {
namespace {

/// The elements that mean something to the event pass.
enum class Tag {
    other,
    trusteeInfo,
    trustee,
    inheritedRightsFilter,
    effectiveRights,
    file,
    path,
    id,
    rights,
    right,
    addTrustee,
    removeTrustee,
    result
};

struct TagName {
    std::string_view name;
    Tag tag = Tag::other;
    std::uint16_t bit = 0;
};

/// Every known name, the short ones first, so that a name is only compared with those of its length.
constexpr std::array tagNames = {
    TagName{"id", Tag::id},
    TagName{"name", Tag::trustee},
    TagName{"read", Tag::right, KelpRights::read},
    TagName{"file", Tag::file},
    TagName{"path", Tag::path},
    TagName{"write", Tag::right, KelpRights::write},
    TagName{"erase", Tag::right, KelpRights::erase},
    TagName{"rights", Tag::rights},
    TagName{"create", Tag::right, KelpRights::create},
    TagName{"modify", Tag::right, KelpRights::modify},
    TagName{"result", Tag::result},
    TagName{"trustee", Tag::trustee},
    TagName{"fileScan", Tag::right, KelpRights::fileScan},
    TagName{"supervisor", Tag::right, KelpRights::supervisor},
    TagName{"addTrustee", Tag::addTrustee},
    TagName{"trusteeInfo", Tag::trusteeInfo},
    TagName{"accessRights", Tag::trusteeInfo},
    TagName{"accessControl", Tag::right, KelpRights::accessControl},
    TagName{"removeTrustee", Tag::removeTrustee},
    TagName{"effectiveRights", Tag::effectiveRights},
    TagName{"inheritedRightsFilter", Tag::inheritedRightsFilter},
};
constexpr std::size_t longestName = tagNames.back().name.size();

/// Where the names of each length begin in tagNames.
constexpr auto firstOfLength = [] {
    std::array<std::uint8_t, longestName + 2> first{};
    for (std::size_t length = 0; length < first.size(); ++length) {
        for (const TagName& known : tagNames)
            first[length] = static_cast<std::uint8_t>(first[length] + (known.name.size() < length ? 1 : 0));
    }
    return first;
}();

TagName tagNamed(std::string_view name) {
    if (name.size() > longestName)
        return {};
    for (std::size_t at = firstOfLength[name.size()]; at < firstOfLength[name.size() + 1]; ++at) {
        if (tagNames[at].name == name)
            return tagNames[at];
    }
    return {};
}

void close(ReplyEntries& entries, const std::shared_ptr<ReplyEntry>& entry, std::string_view name) {
    require(entry != nullptr, "\"%@\" ended in the reply and never began", name);
    entries.push_back(entry);
}

} // namespace

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

const ReplyEntries& XMLResponseParser::getdictionaryfromXMLData(std::string_view reply) {
    error = parser.parse(reply, *this);
    return arrStack;
}

void XMLResponseParser::didStartElement(std::string_view name, XMLAttributes attributes) {
    result.didStartElement(name, attributes);
    currentElement = name;
    switch (tagNamed(name).tag) {
    case Tag::trusteeInfo:
        dictForTrustees = std::make_shared<ReplyEntry>();
        break;
    case Tag::trustee:
        if (const auto objectClass = attributes.value("objectClass"); objectClass && dictForTrustees)
            dictForTrustees->trusteeType = *objectClass;
        break;
    case Tag::inheritedRightsFilter:
        dictForIRF = std::make_shared<ReplyEntry>();
        break;
    case Tag::effectiveRights:
        dictForEffRights = std::make_shared<ReplyEntry>();
        break;
    case Tag::file:
        dictForDir = std::make_shared<ReplyEntry>();
        break;
    case Tag::result:
        if (const auto value = attributes.value("value"))
            resValue = *value;
        break;
    default:
        break;
    }
}

void XMLResponseParser::foundCharacters(std::string_view text) {
    if (text == "\n")
        textInProgress.clear();
    else
        textInProgress += text;
}

void XMLResponseParser::didEndElement(std::string_view name) {
    result.didEndElement();
    const TagName known = tagNamed(name);
    switch (known.tag) {
    case Tag::trusteeInfo:
        close(arrStack, dictForTrustees, name);
        break;
    case Tag::inheritedRightsFilter:
        close(arrStack, dictForIRF, name);
        dictForIRF->inheritedRightsFilter = std::exchange(rightsBit, std::uint16_t{0});
        break;
    case Tag::effectiveRights:
        close(arrStack, dictForEffRights, name);
        dictForEffRights->effectiveRights = std::exchange(rightsBit, std::uint16_t{0});
        break;
    case Tag::file:
        close(arrStack, dictForDir, name);
        break;
    case Tag::path:
        if (dictForDir && !dictForDir->path)
            dictForDir->path = textInProgress;
        break;
    case Tag::trustee:
        if (dictForTrustees)
            dictForTrustees->trusteeName = textInProgress;
        break;
    case Tag::id:
        if (dictForTrustees && !dictForTrustees->trusteeID)
            dictForTrustees->trusteeID = textInProgress;
        break;
    case Tag::rights:
        if (dictForTrustees)
            dictForTrustees->rights = rightsBit;
        rightsBit = 0;
        break;
    case Tag::right:
        rightsBit |= known.bit;
        break;
    case Tag::addTrustee:
        nAddFailed += resValue != "0" ? 1 : 0;
        break;
    case Tag::removeTrustee:
        nRemFailed += resValue != "0" ? 1 : 0;
        break;
    case Tag::result:
        if (resValue != "0")
            xmlReqStatus = unwrap(decimalNumber(resValue), "The result \"%@\" is not a number", resValue);
        break;
    case Tag::other:
        break;
    }
    textInProgress.clear();
}

} // namespace quorvan
