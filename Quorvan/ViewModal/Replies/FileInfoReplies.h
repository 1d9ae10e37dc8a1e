// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "Quorvan/Modal/FileInfo.h"
#include "Quorvan/ViewModal/Replies/ElementReaders.h"

#include <optional>
#include <string>
#include <string_view>

namespace quorvan {

/// Where the reply about a file holds one of its properties, and what is logged before the reason when that
/// reply is not XML.
struct FileProperty {
    ElementPath path;
    std::string_view complaint;

    static const FileProperty owner;
    static const FileProperty attributes;
    static const FileProperty directoryQuota;
};

/// Reads one property of a file and the server's description of how the request went.
class FileInfoReader {
public:
    explicit FileInfoReader(const FileProperty& property);

    void didStartElement(std::string_view name, XMLAttributes attributes) {
        property_.didStartElement(name, attributes);
        result_.didStartElement(name, attributes);
    }
    void didEndElement(std::string_view name) {
        property_.didEndElement(name);
        result_.didEndElement(name);
    }
    void foundCharacters(std::string_view text) {
        property_.foundCharacters(text);
        result_.foundCharacters(text);
    }

    // To be called when the reply is over: each fills its record, or logs why the reply is not XML and leaves
    // the record as it is. A reply without the property or without a result is fatal.
    void finish(const std::optional<XMLError>& error, OwnerInfo& info) const;
    void finish(const std::optional<XMLError>& error, AttributesInfo& info) const;
    void finish(const std::optional<XMLError>& error, DirectoryQuotaInfo& info) const;

private:
    bool isXML(const std::optional<XMLError>& error) const;

    std::string_view complaint_;
    ElementReader property_;
    ElementReader result_;
};

} // namespace quorvan
