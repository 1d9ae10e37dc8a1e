// SPDX-License-Identifier: GPL-3.0-or-later
#include "Quorvan/ViewModal/XMLElement.h"

#include "Common/Fatal.h"
#include "Quorvan/ViewModal/XMLEventParser.h"

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

namespace {

class TreeBuilder final : public XMLEventHandler {
public:
    explicit TreeBuilder(XMLTree& tree)
        : tree_(tree) {}

    void didStartElement(std::string_view name, XMLAttributes attributes) override {
        open_.push_back(addNode(name, false));
        for (const XMLAttribute attribute : attributes)
            tree_.attributes.push_back({store(attribute.name), store(attribute.value)});
        textMayGrow_ = false;
    }

    void didEndElement(std::string_view) override {
        tree_.nodes[open_.back()].end = size(tree_.nodes);
        open_.pop_back();
        textMayGrow_ = false;
    }

    void foundCharacters(std::string_view text) override {
        if (textMayGrow_)
            tree_.nodes.back().piece.length += store(text).length;
        else
            addNode(text, true);
        textMayGrow_ = true;
    }

    void finish() { addNode("", true); }

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

    std::uint32_t addNode(std::string_view text, bool isText) {
        const std::uint32_t index = size(tree_.nodes);
        tree_.nodes.push_back({store(text), index + 1, size(tree_.attributes), isText});
        return index;
    }

    XMLTree& tree_;
    std::vector<std::uint32_t> open_;
    bool textMayGrow_ = false;
};

} // namespace

bool XMLElement::isText() const {
    return tree_->nodes[index_].isText;
}

std::string_view XMLElement::name() const {
    return isText() ? std::string_view() : tree_->text(tree_->nodes[index_].piece);
}

std::string XMLElement::stringValue() const {
    std::string value;
    for (std::uint32_t index = index_; index < tree_->nodes[index_].end; ++index) {
        if (tree_->nodes[index].isText)
            value += tree_->text(tree_->nodes[index].piece);
    }
    return value;
}

bool XMLElement::hasAttributes() const {
    return tree_->nodes[index_].firstAttribute != tree_->nodes[index_ + 1].firstAttribute;
}

std::optional<std::string_view> XMLElement::attribute(std::string_view name) const {
    for (std::uint32_t at = tree_->nodes[index_].firstAttribute; at < tree_->nodes[index_ + 1].firstAttribute;
         ++at) {
        if (tree_->text(tree_->attributes[at].name) == name)
            return tree_->text(tree_->attributes[at].value);
    }
    return std::nullopt;
}

XMLElement::Children XMLElement::children() const {
    return {tree_, index_ + 1, tree_->nodes[index_].end};
}

XMLElement::Children::Iterator& XMLElement::Children::Iterator::operator++() {
    index_ = tree_->nodes[index_].end;
    return *this;
}

bool XMLElement::hasChildren() const {
    return tree_->nodes[index_].end != index_ + 1;
}

std::optional<XMLElement> XMLElement::firstChild(std::string_view name) const {
    for (const XMLElement child : children()) {
        if (!child.isText() && child.name() == name)
            return child;
    }
    return std::nullopt;
}

XMLDocument::XMLDocument(std::string_view text)
    : tree_(std::make_unique<XMLTree>()) {
    TreeBuilder builder(*tree_);
    error_ = XMLEventParser::parse(text, builder);
    builder.finish();
}

XMLDocument::XMLDocument(XMLDocument&&) noexcept = default;
XMLDocument& XMLDocument::operator=(XMLDocument&&) noexcept = default;
XMLDocument::~XMLDocument() = default;

XMLElement XMLDocument::rootElement() const {
    require(!error_, "A document that is not XML has no root element");
    return {tree_.get(), 0};
}

XMLElement getElement(const ElementPath& forPath, XMLElement xmlData) {
    const auto element = getXMLElement(forPath, xmlData);
    return unwrap(element, "The reply has no element \"%@\"", forPath.empty() ? "" : forPath.back());
}

std::optional<XMLElement> getXMLElement(const ElementPath& forPath, XMLElement xmlData) {
    std::optional<XMLElement> element = xmlData;
    for (auto name = forPath.begin(); element && name != forPath.end(); ++name)
        element = element->firstChild(*name);
    return element;
}

std::string getValue(std::string_view forName, XMLElement xmlData) {
    const auto child = xmlData.firstChild(forName);
    return child ? child->stringValue() : "";
}

} // namespace quorvan
