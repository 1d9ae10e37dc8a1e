// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <charconv>
#include <concepts>
#include <initializer_list>
#include <string>
#include <string_view>

namespace quorvan {

/// One value for a placeholder: text, or an integer written in decimal.
///
/// The argument only refers to the text it is made from, so it is built in the call that uses it.
class FormatArgument {
public:
    FormatArgument(std::string_view value)
        : text_(value) {}
    FormatArgument(const std::string& value)
        : text_(value) {}
    FormatArgument(const char* value)
        : text_(value) {}
    FormatArgument(std::integral auto value) {
        length_ =
            static_cast<std::size_t>(std::to_chars(digits_, digits_ + sizeof digits_, value).ptr - digits_);
    }

    std::string_view text() const { return length_ > 0 ? std::string_view(digits_, length_) : text_; }

private:
    std::string_view text_;
    char digits_[24];
    std::size_t length_ = 0;
};

/// Cuts `format` at its placeholders "%@" and "%d", from left to right, and hands every stretch of
/// text to `piece` in order. Inserted text is never scanned again; placeholders beyond the arguments
/// stay as they are, and arguments beyond the placeholders are dropped.
template <class Piece>
void forEachPiece(std::string_view format, std::initializer_list<FormatArgument> arguments, Piece&& piece) {
    auto argument = arguments.begin();
    std::size_t from = 0;
    for (std::size_t at = 0;
         argument != arguments.end() && (at = format.find('%', at)) != std::string_view::npos;) {
        if (at + 1 < format.size() && (format[at + 1] == '@' || format[at + 1] == 'd')) {
            piece(format.substr(from, at - from));
            piece((argument++)->text());
            from = at += 2;
        } else {
            ++at;
        }
    }
    piece(format.substr(from));
}

/// The text of `format` with its placeholders filled (see forEachPiece).
std::string fill(std::string_view format, std::initializer_list<FormatArgument> arguments);

} // namespace quorvan
