// SPDX-License-Identifier: GPL-3.0-or-later
#include "Platform/Linux/LdapFilter.h"

#include <algorithm>
#include <charconv>
#include <cstdint>
#include <limits>

#include <strings.h>

namespace quorvan::platform {
namespace {

constexpr std::size_t sidHead = 8; // revision, number of parts, six bytes of authority
constexpr std::size_t maxParts = 15;

std::uint8_t byteOf(char c) {
    return static_cast<std::uint8_t>(c);
}

/// Takes "-NUMBER" off the front of a text.
std::optional<std::uint64_t> takeNumber(std::string_view& text, std::uint64_t max) {
    std::uint64_t number = 0;
    if (text.empty() || text.front() != '-')
        return std::nullopt;
    const auto [end, error] = std::from_chars(text.data() + 1, text.data() + text.size(), number);
    if (error != std::errc() || number > max)
        return std::nullopt;
    text.remove_prefix(static_cast<std::size_t>(end - text.data()));
    return number;
}

bool isLetter(char c) {
    return (c >= 'a' && c <= 'z') || (c >= 'A' && c <= 'Z');
}

bool isDigit(char c) {
    return c >= '0' && c <= '9';
}

bool isAttributeName(std::string_view name) {
    return !name.empty() && isLetter(name.front()) && std::all_of(name.begin(), name.end(), [](char c) {
        return isLetter(c) || isDigit(c) || c == '-';
    });
}

std::string anyOf(const std::string& filters, std::size_t count) {
    return count == 1 ? filters : "(|" + filters + ")";
}

/// Computer accounts are users too, but of another category.
std::string recordTypeFilter(const std::vector<std::string>& recordTypes) {
    std::string filters;
    std::size_t count = 0;
    const auto add = [&](const char* type, const char* filter) {
        if (std::find(recordTypes.begin(), recordTypes.end(), type) == recordTypes.end())
            return;
        filters += filter;
        ++count;
    };
    add(kODRecordTypeUsers, "(&(objectCategory=person)(objectClass=user))");
    add(kODRecordTypeGroups, "(objectClass=group)");
    return count == 0 ? "" : anyOf(filters, count);
}

/// One value of a query for an attribute; nothing when nothing can match it.
std::string valueFilter(const std::string& attribute, DirectoryMatch match, const std::string& value) {
    const bool isSid = attribute == "objectSid";
    const std::optional<std::string> bytes = isSid ? sidBytes(value) : value;
    if (match == DirectoryMatch::contains) {
        if (isSid)
            return "";
        return "(" + attribute + (value.empty() ? "=*)" : "=*" + escapeForFilter(value) + "*)");
    }
    return bytes && !bytes->empty() ? "(" + attribute + "=" + escapeForFilter(*bytes) + ")" : "";
}

} // namespace

std::optional<std::string> sidText(std::string_view bytes) {
    if (bytes.size() < sidHead || byteOf(bytes[1]) > maxParts ||
        bytes.size() != sidHead + 4U * byteOf(bytes[1]))
        return std::nullopt;
    std::uint64_t authority = 0;
    for (std::size_t i = 2; i < sidHead; ++i)
        authority = authority << 8U | byteOf(bytes[i]);
    std::string text = "S-" + std::to_string(byteOf(bytes[0])) + "-" + std::to_string(authority);
    for (std::size_t at = sidHead; at < bytes.size(); at += 4) {
        std::uint32_t part = 0;
        for (std::size_t i = 4; i-- > 0;)
            part = part << 8U | byteOf(bytes[at + i]);
        text += "-" + std::to_string(part);
    }
    return text;
}

std::optional<std::string> sidBytes(std::string_view text) {
    if (text.empty() || (text.front() != 'S' && text.front() != 's'))
        return std::nullopt;
    text.remove_prefix(1);
    const auto revision = takeNumber(text, std::numeric_limits<std::uint8_t>::max());
    const auto authority = takeNumber(text, (std::uint64_t{1} << 48U) - 1);
    if (!revision || !authority)
        return std::nullopt;
    std::string bytes{static_cast<char>(*revision), '\0'};
    for (unsigned shift = 48; shift > 0; shift -= 8)
        bytes += static_cast<char>(*authority >> (shift - 8) & 0xFFU);
    while (!text.empty()) {
        const auto part = takeNumber(text, std::numeric_limits<std::uint32_t>::max());
        if (!part || ++bytes[1] > static_cast<char>(maxParts))
            return std::nullopt;
        for (unsigned shift = 0; shift < 32; shift += 8)
            bytes += static_cast<char>(*part >> shift & 0xFFU);
    }
    return bytes;
}

std::string escapeForFilter(std::string_view value) {
    constexpr const char* digits = "0123456789abcdef";
    std::string escaped;
    for (const char c : value) {
        if (isLetter(c) || isDigit(c))
            escaped += c;
        else
            escaped += {'\\', digits[byteOf(c) >> 4U], digits[byteOf(c) & 0xFU]};
    }
    return escaped;
}

std::optional<std::string> ldapAttribute(std::string_view attribute) {
    if (attribute == kODAttributeTypeRecordName)
        return "sAMAccountName";
    if (attribute == kODAttributeTypeSMBSID)
        return "objectSid";
    constexpr std::string_view native = nativeAttributePrefix;
    if (attribute.substr(0, native.size()) != native || !isAttributeName(attribute.substr(native.size())))
        return std::nullopt;
    return std::string(attribute.substr(native.size()));
}

std::optional<std::string> ldapFilter(const DirectoryQuery& query) {
    const std::string type = recordTypeFilter(query.recordTypes);
    if (type.empty())
        return std::nullopt;
    if (query.match == DirectoryMatch::any)
        return type;
    const std::optional<std::string> attribute = ldapAttribute(query.attribute);
    std::string filters;
    std::size_t count = 0;
    for (const std::string& value : query.values) {
        const std::string filter = attribute ? valueFilter(*attribute, query.match, value) : "";
        filters += filter;
        count += filter.empty() ? 0 : 1;
    }
    if (count == 0)
        return std::nullopt;
    return "(&" + type + anyOf(filters, count) + ")";
}

bool isBelow(std::string_view name, std::string_view base) {
    if (name.size() < base.size())
        return false;
    const std::size_t rest = name.size() - base.size();
    return strncasecmp(name.data() + rest, base.data(), base.size()) == 0 &&
           (rest == 0 || base.empty() || name[rest - 1] == ',');
}

} // namespace quorvan::platform
