// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "Quorvan/ViewModal/Replies/XMLElement.h"
#include "Quorvan/ViewModal/Replies/XMLElementSearch.h"
#include "Quorvan/ViewModal/Replies/XMLTree.h"

#include <cstddef>
#include <functional>
#include <optional>
#include <string_view>

namespace quorvan {

/// Builds the tree of one element while the events pass by.
class SubtreeBuilder {
public:
    /// For the start tag of the element and everything in it.
    void didStartElement(std::string_view name, XMLAttributes attributes) {
        if (depth_++ == 0)
            builder_.clear();
        builder_.didStartElement(name, attributes);
    }
    /// Whether that was the element's own end tag, from which on the tree is complete.
    bool didEndElement(std::string_view name) {
        builder_.didEndElement(name);
        if (--depth_ > 0)
            return false;
        builder_.finish();
        return true;
    }
    void foundCharacters(std::string_view text) { builder_.foundCharacters(text); }

    bool isOpen() const { return depth_ > 0; }
    XMLElement element() const { return {&tree_, 0}; } ///< as long as no other one has begun

private:
    XMLTree tree_;
    TreeBuilder builder_{tree_};
    std::size_t depth_ = 0;
};

/// Reads the element at a path as a tree of its own.
class ElementReader {
public:
    explicit ElementReader(ElementPath path)
        : search_(std::move(path)) {}
    ElementReader(const ElementReader&) = delete;
    ElementReader& operator=(const ElementReader&) = delete;

    void didStartElement(std::string_view name, XMLAttributes attributes);
    void didEndElement(std::string_view name);
    void foundCharacters(std::string_view text);

    /// Valid as long as the reader is. Nothing when a step of the path is missing.
    std::optional<XMLElement> find() const;
    XMLElement element() const; ///< a missing step is fatal

private:
    XMLElementSearch search_;
    SubtreeBuilder subtree_;
};

/// Reads a list in the memory that one row takes: `row` gets the child elements of the element at `list` one
/// after the other, each as a tree of its own that is gone when `row` returns.
class RowReader {
public:
    RowReader(ElementPath list, std::function<void(XMLElement)> row)
        : list_(std::move(list))
        , row_(std::move(row)) {}
    RowReader(const RowReader&) = delete;
    RowReader& operator=(const RowReader&) = delete;

    void didStartElement(std::string_view name, XMLAttributes attributes);
    void didEndElement(std::string_view name);
    void foundCharacters(std::string_view text);

    /// Fatal unless there was such a list.
    void requireList() const { list_.requireFound(); }

private:
    XMLElementSearch list_;
    std::function<void(XMLElement)> row_;
    SubtreeBuilder subtree_;
    bool inList_ = false;
};

} // namespace quorvan
