// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "Quorvan/ViewModal/Replies/XMLEventParser.h"

#include <cstdint>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

namespace quorvan {

/// All nodes in document order, so that what is below a node follows it in one stretch and neither
/// walking nor freeing a tree recurses, however deep a server nests it.
struct XMLTree {
    struct Piece { // of `texts`
        std::uint32_t at;
        std::uint32_t length;
    };
    struct Node {
        Piece piece;       ///< the name of an element, or the text
        std::uint32_t end; ///< the first node behind everything below this one
        std::uint32_t firstAttribute;
        bool isText;
    };
    struct Attribute {
        Piece name;
        Piece value;
    };
    std::vector<Node> nodes; ///< ended by one that only ends the attributes of the last
    std::vector<Attribute> attributes;
    std::string texts;

    std::string_view text(Piece piece) const {
        return std::string_view(texts).substr(piece.at, piece.length);
    }
};

/// Builds a tree out of events.
class TreeBuilder {
public:
    explicit TreeBuilder(XMLTree& tree)
        : tree_(tree) {}

    /// Ends the tree once the events are over.
    void finish() { addNode("", true); }

    /// Begins a new tree in the memory of the last one.
    void clear() {
        tree_.nodes.clear();
        tree_.attributes.clear();
        tree_.texts.clear();
        textMayGrow_ = false;
    }

    void didStartElement(std::string_view name, XMLAttributes attributes) {
        endText();
        open_.push_back(addNode(name, false));
        for (const XMLAttribute attribute : attributes)
            tree_.attributes.push_back({store(attribute.name), store(attribute.value)});
    }

    void didEndElement(std::string_view) {
        endText();
        tree_.nodes[open_.back()].end = size(tree_.nodes);
        open_.pop_back();
    }

    void foundCharacters(std::string_view text) {
        if (textMayGrow_)
            tree_.nodes.back().piece.length += store(text).length;
        else
            addNode(text, true);
        textMayGrow_ = true;
    }

private:
    template <class List>
    static std::uint32_t size(const List& list) {
        return static_cast<std::uint32_t>(list.size());
    }

    /// Everything stored is a part of the document, whose size fits into an int.
    XMLTree::Piece store(std::string_view text) {
        const XMLTree::Piece piece{size(tree_.texts), size(text)};
        tree_.texts += text;
        return piece;
    }

    /// A text of nothing but whitespace only sets the elements apart and is no part of the tree.
    void endText() {
        if (!std::exchange(textMayGrow_, false))
            return;
        const XMLTree::Piece text = tree_.nodes.back().piece;
        if (!isXMLWhitespace(tree_.text(text)))
            return;
        tree_.nodes.pop_back();
        tree_.texts.resize(text.at);
    }

    std::uint32_t addNode(std::string_view text, bool isText) {
        const std::uint32_t index = size(tree_.nodes);
        tree_.nodes.push_back({store(text), index + 1, size(tree_.attributes), isText});
        return index;
    }

    XMLTree& tree_;
    std::vector<std::uint32_t> open_;
    bool textMayGrow_ = false;
};

} // namespace quorvan
