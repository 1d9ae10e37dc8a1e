// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "Quorvan/ViewModal/Replies/ReplyTags.h"

#include <cstddef>
#include <optional>
#include <string>
#include <string_view>

namespace quorvan {

/// Why a text is not XML.
struct XMLError {
    int code; ///< the parser's number for it; never 0
    std::string description;
    bool operator==(const XMLError&) const = default;
};

struct XMLAttribute {
    std::string_view name;
    std::string_view value;
};

/// The attributes of a start tag in their order. Valid while the event lasts.
class XMLAttributes {
public:
    /// `pairs`: names and values in turn, ended by a null pointer; or null.
    explicit XMLAttributes(const char* const* pairs)
        : pairs_(pairs != nullptr ? pairs : &none) {}

    class Iterator {
    public:
        explicit Iterator(const char* const* pair)
            : pair_(pair) {}
        XMLAttribute operator*() const { return {pair_[0], pair_[1] != nullptr ? pair_[1] : ""}; }
        Iterator& operator++() {
            pair_ += 2;
            return *this;
        }
        bool operator!=(const Iterator&) const {
            return *pair_ != nullptr;
        } // only ever compared with the end

    private:
        const char* const* pair_;
    };
    Iterator begin() const { return Iterator(pairs_); }
    Iterator end() const { return Iterator(&none); }
    bool empty() const { return *pairs_ == nullptr; }

    /// The value of an attribute; nothing when there is none of that name.
    std::optional<std::string_view> value(std::string_view name) const {
        for (const XMLAttribute attribute : *this) {
            if (attribute.name == name)
                return attribute.value;
        }
        return std::nullopt;
    }

private:
    static constexpr const char* none = nullptr;
    const char* const* pairs_;
};

/// Whether a text is nothing but the whitespace that sets elements apart.
inline bool isXMLWhitespace(std::string_view text) {
    for (const char c : text) { // faster than a search in the set: most texts end it with their first letter
        if (c != ' ' && c != '\t' && c != '\r' && c != '\n')
            return false;
    }
    return true;
}

/// Ends the part of a text that lies between two tags. Nothing but whitespace only sets elements apart and is
/// taken back. `begin`: where the part begins in `text`; moves on to the next one.
inline void endTextPart(std::string& text, std::size_t& begin) {
    if (isXMLWhitespace(std::string_view(text).substr(begin)))
        text.resize(begin);
    begin = text.size();
}

/// Is told what an XMLEventParser reads. Names are as written, prefixes included.
class XMLEventHandler {
public:
    virtual ~XMLEventHandler() = default;
    virtual void didStartElement(ElementName name, XMLAttributes attributes) = 0;
    virtual void didEndElement(ElementName name) = 0;
    /// Part of the text between two tags, cut where the parser happens to cut it.
    virtual void foundCharacters(std::string_view text) = 0;
};

/// Reads one XML document out of memory, as UTF-8.
///
/// Documents come from a server and are not trusted: nothing is fetched from files or the network, and
/// only the five entities that XML itself defines are known, so that nothing can be expanded. There
/// is no limit on the size of a document or the depth of its elements, but what would take a time that grows
/// with its square is refused: a document type, processing instructions, more names or attributes than below.
class XMLEventParser {
public:
    static constexpr std::size_t mostNames = 10'000;        ///< different ones, of elements and attributes
    static constexpr std::ptrdiff_t mostAttributes = 1'000; ///< of one element

    /// Tells `delegate` about the document up to its end or its first error. Returns that error, or
    /// nothing for a well-formed document.
    static std::optional<XMLError> parse(const std::string& document, XMLEventHandler& delegate);
};

} // namespace quorvan
