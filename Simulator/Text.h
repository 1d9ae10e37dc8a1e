// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace quorvan::simulator {

/// The form in which the server compares names: composed and without case. Ill-formed UTF-8 stays as
/// it is.
std::string fold(std::string_view text);

/// Whether the text is well-formed UTF-8 in normalisation form NFC.
bool isComposed(std::string_view text);

std::vector<std::string_view> split(std::string_view text, char separator);

} // namespace quorvan::simulator
