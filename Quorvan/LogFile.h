// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <string>

namespace quorvan {

/// Lets standard error, input and output of this process go on at the end of a file, which is made with its
/// folders if there is none. They stay where they are when the path is not ASCII or the file cannot be
/// used, which is told on standard output; a file of another user, or a link, is not.
///
/// Only its owner can read the file afterwards. A last line without end, left by a run that was killed, ends
/// first.
void sendStandardStreamsInto(const std::string& file);

} // namespace quorvan
