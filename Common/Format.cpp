// SPDX-License-Identifier: GPL-3.0-or-later
#include "Common/Format.h"

namespace quorvan {

std::string fill(std::string_view format, std::initializer_list<FormatArgument> arguments) {
    std::size_t length = format.size();
    for (const FormatArgument& argument : arguments)
        length += argument.text().size();
    std::string text;
    text.reserve(length);
    forEachPiece(format, arguments, [&text](std::string_view piece) { text += piece; });
    return text;
}

} // namespace quorvan
