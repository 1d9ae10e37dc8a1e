// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "Quorvan/ViewModal/Replies/XMLEventParser.h"

#include <optional>
#include <string>
#include <string_view>
#include <tuple>

namespace quorvan {

/// Reads a reply once for several readers: each has the three functions of an XMLEventHandler and is told of
/// every event. Returns why the reply is not XML, or nothing; what the readers have gathered by then counts
/// only for a reply that is.
template <class... Readers>
std::optional<XMLError> readReply(const std::string& reply, Readers&... readers) {
    class Group final : public XMLEventHandler {
    public:
        explicit Group(Readers&... readers)
            : readers_(readers...) {}
        void didStartElement(ElementName name, XMLAttributes attributes) override {
            std::apply([&](Readers&... each) { (each.didStartElement(name, attributes), ...); }, readers_);
        }
        void didEndElement(ElementName name) override {
            std::apply([&](Readers&... each) { (each.didEndElement(name), ...); }, readers_);
        }
        void foundCharacters(std::string_view text) override {
            std::apply([&](Readers&... each) { (each.foundCharacters(text), ...); }, readers_);
        }

    private:
        std::tuple<Readers&...> readers_;
    };
    Group group(readers...);
    return XMLEventParser::parse(reply, group);
}

} // namespace quorvan
