// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

namespace quorvan::simulator {

/// One element of a request: either child elements or text, never both.
struct RequestElement {
    std::string name;
    std::vector<std::pair<std::string, std::string>> attributes; ///< see readRequest
    std::vector<RequestElement> children;
    std::string text;
};

/// Reads a request: one or more elements, which become the children of a nameless one. Nothing around
/// and between elements, no declaration, comment, instruction or document type, ASCII names, attributes
/// in double quotes, the five named entities and character references. An attribute that is written
/// with a blank on each side of the equals sign keeps one at the end of its name ("type "): there are
/// requests that have it there, and all others must not. Nothing for anything else, ill-formed UTF-8
/// and nesting deeper than 32 included.
std::optional<RequestElement> readRequest(std::string_view text);

/// Thrown while a request is looked at: it fails with this code.
struct Refusal {
    int code;
};

/// Walks the children of an element in the one order in which the server takes them; throws Refusal
/// with code::refusedRequest at the first that is not as it should be. Elements have no attributes
/// unless named otherwise.
class ElementWalk {
public:
    explicit ElementWalk(const RequestElement& parent)
        : parent_(parent) {}

    bool atEnd() const { return next_ == parent_.children.size(); }
    void end() const; ///< refuses what is left

    /// The next child, whatever it is; refuses when there is none.
    const RequestElement& any();

    const RequestElement& element(std::string_view name); ///< the next one must be this
    std::string text(std::string_view name);              ///< … and hold nothing but text
    void text(std::string_view name, std::string_view value);
    void mark(std::string_view name);         ///< … and be empty
    bool optionalMark(std::string_view name); ///< taken when it is the next one

private:
    const RequestElement& parent_;
    std::size_t next_ = 0;
};

/// Refuses with code::refusedRequest.
void refuseUnless(bool condition);

/// Refuses an element with attributes.
void requireNoAttributes(const RequestElement& element);

} // namespace quorvan::simulator
