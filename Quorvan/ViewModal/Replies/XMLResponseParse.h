// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "Common/LargePages.h"
#include "Quorvan/ViewModal/Replies/ReplyTags.h"
#include "Quorvan/ViewModal/Replies/XMLElementSearch.h"
#include "Quorvan/ViewModal/Replies/XMLEventParser.h"

#include <cstddef>
#include <cstdint>
#include <cstring>
#include <deque>
#include <memory>
#include <memory_resource>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace quorvan {

/// A text of a reply, or none, in the size of a pointer: a reply may have a million entries, most of whose
/// texts are absent.
class EntryText {
public:
    EntryText() = default;
    /// A copy of `text` that lies in `memory` as long as that does.
    EntryText(std::string_view text, std::pmr::memory_resource& memory);

    bool has_value() const { return begin_ != nullptr; }
    explicit operator bool() const { return has_value(); }
    std::string_view operator*() const {
        std::uint32_t size = 0;
        std::memcpy(&size, begin_, sizeof size);
        return {begin_ + sizeof size, size};
    }
    std::string_view value_or(std::string_view other) const { return has_value() ? **this : other; }
    friend bool operator==(const EntryText& text, std::string_view other) {
        return text.has_value() && *text == other;
    }

private:
    const char* begin_ = nullptr; ///< the size, and the bytes
};

/// What the event pass gathered about one entry of a reply; a key that the reply did not give is absent.
///
/// Entries "trusteeInfo" and "accessRights" carry the trustee keys, "inheritedRightsFilter" and
/// "effectiveRights" their mask, "file" its path. The texts are valid as long as any entry of the same
/// reply is.
struct ReplyEntry {
    EntryText trusteeName;
    EntryText trusteeID;
    EntryText trusteeType;
    EntryText path;
    std::optional<std::uint16_t> rights;
    std::optional<std::uint16_t> inheritedRightsFilter;
    std::optional<std::uint16_t> effectiveRights;
};

/// Entries are shared: a later element may still write into one that is already in the list.
using ReplyEntries = std::vector<std::shared_ptr<ReplyEntry>>;

/// Reads the status of the element at a path while the events pass by; it can stand among other readers.
class ResultElement {
public:
    explicit ResultElement(ElementPath path)
        : search_(std::move(path)) {}

    void didStartElement(std::string_view name, XMLAttributes attributes);
    void didEndElement(std::string_view) { search_.didEndElement(); }
    void foundCharacters(std::string_view) {}

    /// The "value" attribute of the element, "0" without one. Fatal when a step of the path is missing
    /// or the element has no attributes at all.
    std::string status() const;

private:
    XMLElementSearch search_;
    bool hasAttributes_ = false;
    std::string value_ = "0";
};

/// The event pass over one reply: gathers its entries and counts its failures, finds its result element
/// and learns whether it is XML at all. Single use: its list and counters only grow.
class XMLResponseParser final : public XMLEventHandler {
public:
    XMLResponseParser()
        : XMLResponseParser(ElementPath{}) {}
    enum class Entries { gathered, leftOut };
    /// Entries may be left out where no one reads them; the rest of what a reply says is learned all the
    /// same.
    explicit XMLResponseParser(ElementPath resultPath, Entries entries = Entries::gathered)
        : result(std::move(resultPath))
        , gathers_(entries == Entries::gathered) {}

    /// Parses a reply and returns the entries in the order in which their elements closed. A parse
    /// error stops the events early; what was gathered until then is returned.
    const ReplyEntries& getdictionaryfromXMLData(const std::string& reply);

    void didStartElement(ElementName name, XMLAttributes attributes) override;
    void didEndElement(ElementName name) override;
    void foundCharacters(std::string_view text) override;

    XMLEventParser parser;
    ReplyEntries arrStack;
    std::string textInProgress; ///< since the last end tag, or the last line feed that came alone
    std::string currentElement;
    std::shared_ptr<ReplyEntry> dictForTrustees;
    std::shared_ptr<ReplyEntry> dictForIRF;
    std::shared_ptr<ReplyEntry> dictForEffRights;
    std::shared_ptr<ReplyEntry> dictForDir;
    std::string resValue; ///< of the last "result" element that had one
    std::int32_t count = 0;
    std::uint16_t rightsBit = 0;
    std::int64_t nAddFailed = 0;   ///< "addTrustee" elements that closed while resValue was not "0"
    std::int64_t nRemFailed = 0;   ///< the same for "removeTrustee"
    std::int64_t xmlReqStatus = 0; ///< the last result value other than "0"

    std::optional<XMLError> error; ///< why the reply is not XML; nothing when it is
    ResultElement result;

private:
    class LargePages final : public std::pmr::memory_resource {
        void* do_allocate(std::size_t size, std::size_t alignment) override {
            void* const memory = std::pmr::new_delete_resource()->allocate(size, alignment);
            preferLargePages(memory, size);
            return memory;
        }
        void do_deallocate(void* memory, std::size_t size, std::size_t alignment) override {
            std::pmr::new_delete_resource()->deallocate(memory, size, alignment);
        }
        bool do_is_equal(const memory_resource& other) const noexcept override { return this == &other; }
    };
    /// Everything that a reply's entries consist of. They live and die together, so it is taken in large
    /// pieces and given back at once; every entry shares its ownership.
    struct Storage {
        LargePages pages;
        std::pmr::monotonic_buffer_resource memory{&pages};
        std::pmr::deque<ReplyEntry> entries{&memory};
    };
    std::shared_ptr<ReplyEntry> makeEntry();
    EntryText keep(std::string_view text) { return {text, storage_->memory}; }
    void endEntryElement(const ReplyTag& tag);

    bool gathers_;
    std::shared_ptr<Storage> storage_ = std::make_shared<Storage>();
};

} // namespace quorvan
