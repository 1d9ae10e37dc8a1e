// SPDX-License-Identifier: GPL-3.0-or-later
#include "Simulator/RequestReader.h"

#include "Simulator/KelpServer.h"

#include <charconv>
#include <cstdint>

#include <utf8proc.h>

namespace quorvan::simulator {

namespace {

constexpr int deepest = 32;

/// A recursive descent through the text. Functions return false at the first thing they do not take.
class Reader {
public:
    explicit Reader(std::string_view text)
        : text_(text) {}

    bool document(RequestElement& holder) {
        do {
            if (!element(holder.children.emplace_back(), 1))
                return false;
        } while (at_ < text_.size());
        return true;
    }

private:
    bool skip(std::string_view token) {
        if (text_.substr(at_, token.size()) != token)
            return false;
        at_ += token.size();
        return true;
    }

    bool name(std::string& into) {
        const std::size_t from = at_;
        const auto letter = [](char c) { return (c >= 'a' && c <= 'z') || (c >= 'A' && c <= 'Z'); };
        while (at_ < text_.size() &&
               (letter(text_[at_]) || (at_ > from && text_[at_] >= '0' && text_[at_] <= '9')))
            ++at_;
        into = text_.substr(from, at_ - from);
        return at_ > from;
    }

    bool element(RequestElement& into, int depth) {
        if (depth > deepest || !skip("<") || !name(into.name) || !attributes(into))
            return false;
        if (skip("/>"))
            return true;
        return skip(">") && content(into, depth) && skip("</") && skip(into.name) && skip(">");
    }

    bool attributes(RequestElement& element) {
        while (skip(" ")) {
            std::pair<std::string, std::string> attribute;
            if (!name(attribute.first))
                return false;
            if (skip(" = "))
                attribute.first += ' ';
            else if (!skip("="))
                return false;
            if (!skip("\"") || !characters(attribute.second, '"') || !skip("\""))
                return false;
            for (const auto& other : element.attributes) {
                if (other.first == attribute.first)
                    return false;
            }
            element.attributes.push_back(std::move(attribute));
        }
        return true;
    }

    bool content(RequestElement& element, int depth) {
        if (at_ < text_.size() && text_[at_] != '<')
            return characters(element.text, '<');
        while (text_.substr(at_, 2) != "</") {
            if (!this->element(element.children.emplace_back(), depth + 1))
                return false;
        }
        return true;
    }

    bool characters(std::string& into, char end) {
        while (at_ < text_.size() && text_[at_] != end) {
            if (text_[at_] == '&') {
                if (!reference(into))
                    return false;
            } else if (text_[at_] == '<' || static_cast<unsigned char>(text_[at_]) < 0x20) {
                return false;
            } else {
                into += text_[at_++];
            }
        }
        return at_ < text_.size();
    }

    bool reference(std::string& into) {
        for (const auto& [entity, character] : entities) {
            if (skip(entity)) {
                into += character;
                return true;
            }
        }
        if (!skip("&#"))
            return false;
        const int base = skip("x") ? 16 : 10;
        std::uint32_t value = 0;
        const auto [end, error] =
            std::from_chars(text_.data() + at_, text_.data() + text_.size(), value, base);
        at_ = static_cast<std::size_t>(end - text_.data());
        const auto point = static_cast<utf8proc_int32_t>(value);
        if (error != std::errc() || value < 0x20 || value > 0x10FFFF ||
            utf8proc_codepoint_valid(point) == 0 || !skip(";"))
            return false;
        utf8proc_uint8_t bytes[4];
        into.append(reinterpret_cast<const char*>(bytes),
                    static_cast<std::size_t>(utf8proc_encode_char(point, bytes)));
        return true;
    }

    static constexpr std::pair<const char*, char> entities[] = {
        {"&amp;", '&'}, {"&lt;", '<'}, {"&gt;", '>'}, {"&quot;", '"'}, {"&apos;", '\''}};

    std::string_view text_;
    std::size_t at_ = 0;
};

bool isUtf8(std::string_view text) {
    const auto* bytes = reinterpret_cast<const utf8proc_uint8_t*>(text.data());
    auto left = static_cast<utf8proc_ssize_t>(text.size());
    while (left > 0) {
        utf8proc_int32_t point = 0;
        const utf8proc_ssize_t length = utf8proc_iterate(bytes, left, &point);
        if (length <= 0)
            return false;
        bytes += length;
        left -= length;
    }
    return true;
}

[[noreturn]] void refuse() {
    throw Refusal{code::refusedRequest};
}

} // namespace

void refuseUnless(bool condition) {
    if (!condition)
        refuse();
}

std::optional<RequestElement> readRequest(std::string_view text) {
    std::optional<RequestElement> holder(std::in_place);
    if (!isUtf8(text) || !Reader(text).document(*holder))
        holder.reset();
    return holder;
}

void requireNoAttributes(const RequestElement& element) {
    if (!element.attributes.empty())
        refuse();
}

void ElementWalk::end() const {
    if (!atEnd() || !parent_.text.empty())
        refuse();
}

const RequestElement& ElementWalk::any() {
    if (atEnd())
        refuse();
    return parent_.children[next_++];
}

const RequestElement& ElementWalk::element(std::string_view name) {
    const RequestElement& child = any();
    if (child.name != name)
        refuse();
    requireNoAttributes(child);
    return child;
}

std::string ElementWalk::text(std::string_view name) {
    const RequestElement& child = element(name);
    if (!child.children.empty())
        refuse();
    return child.text;
}

void ElementWalk::text(std::string_view name, std::string_view value) {
    if (text(name) != value)
        refuse();
}

void ElementWalk::mark(std::string_view name) {
    text(name, "");
}

bool ElementWalk::optionalMark(std::string_view name) {
    if (atEnd() || parent_.children[next_].name != name)
        return false;
    mark(name);
    return true;
}

} // namespace quorvan::simulator
