// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <concepts>
#include <cstdint>
#include <string_view>

namespace quorvan {

/// An element that means something to the event pass over a reply.
struct ReplyTag {
    enum class Kind {
        other, ///< every element without a name of its own here
        trusteeInfo,
        trusteeName,
        trusteeID,
        rights,
        right,
        inheritedRightsFilter,
        effectiveRights,
        file,
        path,
        addTrustee,
        removeTrustee,
        result
    };

    std::string_view name;
    Kind kind = Kind::other;
    std::uint16_t bit = 0; ///< of a right

    /// The tag of an element's name; lives for ever.
    static const ReplyTag& named(std::string_view name);
};

/// The name of an element, with what it means. A reply repeats a few names in their millions: the parser
/// keeps those that it has met, so that each is looked up once.
class ElementName {
public:
    // NOLINTBEGIN(google-explicit-constructor): it stands for the name
    template <std::convertible_to<std::string_view> Text>
    ElementName(const Text& name)
        : name_(name)
        , tag_(&ReplyTag::named(name_)) {}
    operator std::string_view() const { return name_; }
    // NOLINTEND(google-explicit-constructor)

    const char* data() const { return name_.data(); }
    const ReplyTag& tag() const { return *tag_; }

private:
    std::string_view name_;
    const ReplyTag* tag_;
};

} // namespace quorvan
