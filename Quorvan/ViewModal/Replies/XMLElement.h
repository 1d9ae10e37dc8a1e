// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "Quorvan/ViewModal/Replies/XMLEventParser.h"

#include <cstdint>
#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace quorvan {

struct XMLTree;

/// A node of an XMLDocument: an element, or the text between two tags unless it is nothing but whitespace. A
/// small value that refers into its document and is valid as long as that is.
class XMLElement {
public:
    class Children;

    bool isText() const;
    std::string_view name() const; ///< "" for text
    /// All text in and below the node, in document order.
    std::string stringValue() const;

    bool hasAttributes() const;
    /// The value of an attribute; nothing when there is none of that name.
    std::optional<std::string_view> attribute(std::string_view name) const;

    Children children() const; ///< elements and texts, in document order
    bool hasChildren() const;
    std::optional<XMLElement> firstChild(std::string_view name) const; ///< the first element of that name

private:
    friend class XMLDocument;
    friend class SubtreeBuilder;
    XMLElement(const XMLTree* tree, std::uint32_t index)
        : tree_(tree)
        , index_(index) {}

    const XMLTree* tree_;
    std::uint32_t index_;
};

class XMLElement::Children {
public:
    class Iterator {
    public:
        XMLElement operator*() const { return {tree_, index_}; }
        Iterator& operator++();
        bool operator!=(const Iterator& other) const { return index_ != other.index_; }

    private:
        friend class Children;
        Iterator(const XMLTree* tree, std::uint32_t index)
            : tree_(tree)
            , index_(index) {}
        const XMLTree* tree_;
        std::uint32_t index_;
    };
    Iterator begin() const { return {tree_, begin_}; }
    Iterator end() const { return {tree_, end_}; }

private:
    friend class XMLElement;
    Children(const XMLTree* tree, std::uint32_t begin, std::uint32_t end)
        : tree_(tree)
        , begin_(begin)
        , end_(end) {}
    const XMLTree* tree_;
    std::uint32_t begin_;
    std::uint32_t end_;
};

/// A reply as a tree, for decoders that walk it.
class XMLDocument {
public:
    explicit XMLDocument(const std::string& text);
    XMLDocument(XMLDocument&&) noexcept;
    XMLDocument& operator=(XMLDocument&&) noexcept;
    ~XMLDocument();

    /// Why the text is not XML; nothing when it is.
    const std::optional<XMLError>& error() const { return error_; }

    /// Only for a document without error.
    XMLElement rootElement() const;

private:
    std::unique_ptr<XMLTree> tree_;
    std::optional<XMLError> error_;
};

/// The names of the elements that lead from an element (itself not included) to one below it: at each
/// step the first child element of that name.
using ElementPath = std::vector<std::string>;

/// The element at a path; a missing step is fatal.
XMLElement getElement(const ElementPath& forPath, XMLElement xmlData);

/// The element at a path; nothing when a step is missing.
std::optional<XMLElement> getXMLElement(const ElementPath& forPath, XMLElement xmlData);

/// The text of the first child element of a name; "" when there is none.
std::string getValue(std::string_view forName, XMLElement xmlData);

} // namespace quorvan
