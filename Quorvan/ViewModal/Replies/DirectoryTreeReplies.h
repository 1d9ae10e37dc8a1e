// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "Quorvan/Modal/Users.h"
#include "Quorvan/ViewModal/Replies/ElementReaders.h"

#include <string>
#include <string_view>
#include <vector>

namespace quorvan {

/// What is particular to one question to the directory tree.
struct TreeQuestion {
    ElementPath result;         ///< where the tree's own status stands; the reply as a whole has another one
    std::string_view complaint; ///< what is logged before the reason when the reply is not XML
    std::string_view ifNotXML;  ///< the answer then
};

/// Reads the objects below a distinguished name.
class TreeBrowseReader {
public:
    static const TreeQuestion question;

    explicit TreeBrowseReader(std::vector<User>& users);
    TreeBrowseReader(const TreeBrowseReader&) = delete;
    TreeBrowseReader& operator=(const TreeBrowseReader&) = delete;

    void didStartElement(std::string_view name, XMLAttributes attributes) {
        objects_.didStartElement(name, attributes);
    }
    void didEndElement(std::string_view name) { objects_.didEndElement(name); }
    void foundCharacters(std::string_view text) { objects_.foundCharacters(text); }

    /// The answer of a reply with the status "0": that status. The objects are appended to `users`.
    std::string answer(std::string status);

private:
    std::vector<User>& users_;
    std::vector<User> found_;
    RowReader objects_;
};

/// Reads the values of an attribute that was asked for.
class TreeAttributeReader : public ElementReader {
public:
    TreeAttributeReader();
};

class TreeGuidReader : public TreeAttributeReader {
public:
    static const TreeQuestion question;

    /// The first value, or the status when there is none.
    std::string answer(std::string status) const;
};

class TreeGroupsReader : public TreeAttributeReader {
public:
    static const TreeQuestion question;

    explicit TreeGroupsReader(std::vector<Group>& groups)
        : groups_(groups) {}

    /// The status. A group is appended to `groups` for each value, known by its name alone.
    std::string answer(std::string status) const;

private:
    std::vector<Group>& groups_;
};

} // namespace quorvan
