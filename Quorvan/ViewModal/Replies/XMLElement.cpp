// SPDX-License-Identifier: GPL-3.0-or-later
#include "Quorvan/ViewModal/Replies/XMLElement.h"

#include "Common/Fatal.h"
#include "Quorvan/ViewModal/Replies/ReplyPass.h"
#include "Quorvan/ViewModal/Replies/XMLElementSearch.h"
#include "Quorvan/ViewModal/Replies/XMLTree.h"

namespace quorvan {

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

XMLDocument::XMLDocument(const std::string& text)
    : tree_(std::make_unique<XMLTree>()) {
    TreeBuilder builder(*tree_);
    error_ = readReply(text, builder);
    builder.finish();
}

XMLDocument::XMLDocument(XMLDocument&&) noexcept = default;
XMLDocument& XMLDocument::operator=(XMLDocument&&) noexcept = default;
XMLDocument::~XMLDocument() = default;

XMLElement XMLDocument::rootElement() const {
    require(!error_, "A document that is not XML has no root element");
    return {tree_.get(), 0};
}

namespace {

/// The name by which a missing element is reported: that of the whole path's end.
std::string_view lastStep(const ElementPath& path) {
    return path.empty() ? std::string_view() : path.back();
}

} // namespace

void XMLElementSearch::requireFound() const {
    require(state_ == State::found, "The reply has no element \"%@\"", lastStep(path_));
}

XMLElement getElement(const ElementPath& forPath, XMLElement xmlData) {
    const auto element = getXMLElement(forPath, xmlData);
    return unwrap(element, "The reply has no element \"%@\"", lastStep(forPath));
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
