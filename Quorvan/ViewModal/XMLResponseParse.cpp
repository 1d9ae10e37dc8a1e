// SPDX-License-Identifier: GPL-3.0-or-later
#include "Quorvan/ViewModal/XMLResponseParse.h"

#include "Common/Fatal.h"
#include "Quorvan/Modal/Constants.h"

#include <array>
#include <charconv>
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
    Tag tag;
    std::uint16_t bit = 0;
};

constexpr std::array tagNames = {
    TagName{"id", Tag::id},
    TagName{"name", Tag::trustee},
    TagName{"rights", Tag::rights},
    TagName{"read", Tag::right, KelpRights::read},
    TagName{"write", Tag::right, KelpRights::write},
    TagName{"create", Tag::right, KelpRights::create},
    TagName{"erase", Tag::right, KelpRights::erase},
    TagName{"accessControl", Tag::right, KelpRights::accessControl},
    TagName{"fileScan", Tag::right, KelpRights::fileScan},
    TagName{"modify", Tag::right, KelpRights::modify},
    TagName{"supervisor", Tag::right, KelpRights::supervisor},
    TagName{"trusteeInfo", Tag::trusteeInfo},
    TagName{"accessRights", Tag::trusteeInfo},
    TagName{"trustee", Tag::trustee},
    TagName{"file", Tag::file},
    TagName{"path", Tag::path},
    TagName{"result", Tag::result},
    TagName{"inheritedRightsFilter", Tag::inheritedRightsFilter},
    TagName{"effectiveRights", Tag::effectiveRights},
    TagName{"addTrustee", Tag::addTrustee},
    TagName{"removeTrustee", Tag::removeTrustee},
};

constexpr TagName tagNamed(std::string_view name) {
    for (const TagName& known : tagNames) {
        if (known.name == name)
            return known;
    }
    return {name, Tag::other};
}

void close(ReplyEntries& entries, const std::shared_ptr<ReplyEntry>& entry, std::string_view name) {
    require(entry != nullptr, "\"%@\" ended in the reply and never began", name);
    entries.push_back(entry);
}

std::int64_t statusNumber(const std::string& text) {
    std::int64_t number = 0;
    const char* begin = text.data();
    const char* end = begin + text.size();
    if (text.size() > 1 && text[0] == '+' && text[1] != '-')
        ++begin;
    const auto [last, error] = std::from_chars(begin, end, number);
    require(error == std::errc() && last == end, "The result \"%@\" is not a number", text);
    return number;
}

} // namespace

void ResultElement::didStartElement(std::string_view name, XMLAttributes attributes) {
    const std::size_t depth = depth_++;
    if (search_ != Search::running || depth != steps_ || (depth > 0 && name != path_[depth - 1]))
        return;
    if (steps_++ < path_.size())
        return;
    search_ = Search::found;
    hasAttributes_ = !attributes.empty();
    value_ = attributes.value("value").value_or("0");
}

void ResultElement::didEndElement() {
    // The first element of a name is the only one that counts: when it lacks the next step, the path
    // leads nowhere.
    if (depth_-- == steps_ && search_ == Search::running)
        search_ = Search::failed;
}

std::string ResultElement::status() const {
    require(search_ == Search::found, "The reply has no element \"%@\"", path_.empty() ? "" : path_.back());
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
            xmlReqStatus = statusNumber(resValue);
        break;
    case Tag::other:
        break;
    }
    textInProgress.clear();
}

} // namespace quorvan
