// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <string>
#include <string_view>
#include <utility>
#include <vector>

namespace quorvan::simulator {

/// Writes a reply on one line. Text and attribute values are escaped; control characters, which XML
/// cannot carry, become U+FFFD.
class ReplyWriter {
public:
    using Attributes = std::initializer_list<std::pair<const char*, std::string_view>>;

    void open(const char* name, Attributes attributes = {});
    void close();
    void mark(const char* name) { text_.append("<").append(name).append("/>"); } ///< an empty element
    void text(const char* name, std::string_view value, Attributes attributes = {});

    /// The whole reply, every open element closed.
    std::string finish();

private:
    void escape(std::string_view value);

    std::string text_;
    std::vector<const char*> open_;
};

} // namespace quorvan::simulator
