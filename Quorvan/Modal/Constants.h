// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <array>
#include <cstdint>
#include <map>
#include <string_view>

namespace quorvan {

/// The two identity types, compared exactly. Any other value (the empty one included) is neither.
inline constexpr std::string_view identityActiveDirectory = "ActiveDirectory";
inline constexpr std::string_view identityMorvane = "Morvane";

/// The bits of a rights mask, an unsigned 16-bit value. 0x0004 is never used and stays as it is.
struct KelpRights {
    static constexpr std::uint16_t read = 0x0001;
    static constexpr std::uint16_t write = 0x0002;
    static constexpr std::uint16_t create = 0x0008;
    static constexpr std::uint16_t erase = 0x0010;
    static constexpr std::uint16_t accessControl = 0x0020;
    static constexpr std::uint16_t fileScan = 0x0040;
    static constexpr std::uint16_t modify = 0x0080;
    static constexpr std::uint16_t supervisor = 0x0100;
};

/// One right and its XML element.
struct RightTag {
    std::uint16_t bit;
    std::string_view tag;
};

/// All rights in the order in which requests write them (which is not the order of the bits).
inline constexpr std::array<RightTag, 8> rightTags = {{{KelpRights::read, "read"},
                                                       {KelpRights::write, "write"},
                                                       {KelpRights::create, "create"},
                                                       {KelpRights::modify, "modify"},
                                                       {KelpRights::erase, "erase"},
                                                       {KelpRights::fileScan, "fileScan"},
                                                       {KelpRights::accessControl, "accessControl"},
                                                       {KelpRights::supervisor, "supervisor"}}};

/// What a newly added trustee gets: read and file scan.
inline constexpr std::uint16_t newTrusteeRights = KelpRights::read | KelpRights::fileScan;

/// `mask` with exactly one right set or cleared; every other bit, unknown ones included, stays.
constexpr std::uint16_t withRight(std::uint16_t mask, std::uint16_t bit, bool on) {
    return static_cast<std::uint16_t>(on ? mask | bit : mask & ~bit);
}

/// The eight file attributes, in the order in which their tags are written, and the tags of each.
struct FileAttributes {
    using Tags = std::map<std::string_view, std::string_view>;

    static constexpr std::array<std::string_view, 8> FILE_ATTRIBUTES = {
        "readOnly",      "hidden",        "archive",           "immediatePurge",
        "renameInhibit", "deleteInhibit", "compressImmediate", "doNotCompress"};
    inline static const Tags FILE_ATTRIBUTES_TAG_ENABLED = {
        {"readOnly", R"(<readOnly enabled="yes"/>)"},
        {"hidden", R"(<hidden enabled="yes"/>)"},
        {"archive", R"(<archive enabled="yes"/>)"},
        {"immediatePurge", R"(<immediatePurge enabled="yes"/>)"},
        {"renameInhibit", R"(<renameInhibit enabled="yes"/>)"},
        {"deleteInhibit", R"(<deleteInhibit enabled="yes"/>)"},
        {"compressImmediate", R"(<compressImmediate enabled="yes"/>)"},
        {"doNotCompress", R"(<doNotCompress enabled="yes"/>)"}};
    inline static const Tags FILE_ATTRIBUTES_TAG_DISABLED = {
        {"readOnly", R"(<readOnly enabled="no"/>)"},
        {"hidden", R"(<hidden enabled="no"/>)"},
        {"archive", R"(<archive enabled="no"/>)"},
        {"immediatePurge", R"(<immediatePurge enabled="no"/>)"},
        {"renameInhibit", R"(<renameInhibit enabled="no"/>)"},
        {"deleteInhibit", R"(<deleteInhibit enabled="no"/>)"},
        {"compressImmediate", R"(<compressImmediate enabled="no"/>)"},
        {"doNotCompress", R"(<doNotCompress enabled="no"/>)"}};
};

/// Object classes (lower case, as the server reports them) that sort directory-tree entries.
struct MorvaneObjectTypes {
    static constexpr std::array<std::string_view, 4> USERS = {"inetorgperson", "person",
                                                              "organizationalperson", "user"};
    static constexpr std::array<std::string_view, 3> GROUPS = {"top", "groupofnames", "group"};
    static constexpr std::array<std::string_view, 6> CONTAINERS = {
        "country", "locality", "domain", "organization", "organizational unit", "container"};
};

struct UserQuotaConstants {
    struct ObjectTypes {
        static constexpr std::string_view USERS = "Users";
        static constexpr std::string_view GROUPS = "Groups";
    };
    struct Actions {
        static constexpr std::string_view NONE = "NONE";
        static constexpr std::string_view ADD = "ADD";
        static constexpr std::string_view MODIFY = "MODIFY";
        static constexpr std::string_view REMOVE = "REMOVE";
    };
};

/// Amounts of space that stand for something else, in decimal.
struct DirectoryQuotaConstants {
    static constexpr std::string_view UNLIMITED = "9223372036854775807"; ///< what removing a limit writes
    static constexpr std::string_view NOT_SET = "-1";
};

/// The names by which the server tells the logged-in user's rights.
struct EffectiveRightsConstants {
    static constexpr std::string_view SUPERVISOR = "supervisor";
    static constexpr std::string_view ACCESS_CONTROL = "accessControl";
};

/// A trustee's pending change, and the identity that stands for everyone.
struct TrusteeInfo {
    static constexpr std::string_view ADD = "ADD"; ///< to be added, or to have its rights set
    static constexpr std::string_view REMOVE = "REMOVE";
    static constexpr std::string_view EVERYONE = "S-1-1-0";
};

struct Constants {
    static constexpr std::string_view NIL = ""; ///< "no value"
};

} // namespace quorvan
