// SPDX-License-Identifier: GPL-3.0-or-later
#include "Quorvan/ViewModal/XMLRows.h"

#include "Quorvan/ViewModal/XMLElementSearch.h"
#include "Quorvan/ViewModal/XMLTree.h"

namespace quorvan {

class XMLRowReader final : public XMLEventHandler {
public:
    XMLRowReader(const ElementPath& list, const std::function<void(XMLElement)>& row)
        : list(list)
        , row_(row) {}

    void didStartElement(std::string_view name, XMLAttributes attributes) override {
        if (!inList_) {
            inList_ = list.didStartElement(name);
            return;
        }
        if (depth_++ == 0)
            builder_.clear();
        builder_.didStartElement(name, attributes);
    }

    void didEndElement(std::string_view name) override {
        if (depth_ == 0) {
            inList_ = false;
            list.didEndElement();
            return;
        }
        builder_.didEndElement(name);
        if (--depth_ > 0)
            return;
        builder_.finish();
        row_(XMLElement(&tree_, 0));
    }

    void foundCharacters(std::string_view text) override {
        if (depth_ > 0)
            builder_.foundCharacters(text);
    }

    XMLElementSearch list;

private:
    const std::function<void(XMLElement)>& row_;
    XMLTree tree_;
    TreeBuilder builder_{tree_};
    bool inList_ = false;
    std::size_t depth_ = 0; ///< open elements of the row
};

std::optional<XMLError> readRows(const std::string& document, const ElementPath& list,
                                 const std::function<void(XMLElement)>& row) {
    XMLRowReader reader(list, row);
    auto error = XMLEventParser::parse(document, reader);
    if (!error)
        reader.list.requireFound();
    return error;
}

} // namespace quorvan
