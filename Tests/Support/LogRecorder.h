// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "Common/Log.h"

#include <string>
#include <utility>
#include <vector>

namespace quorvan::test {

/// Takes the log's texts in place of standard error for its own lifetime.
class LogRecorder {
public:
    LogRecorder()
        : previous_(setLogSink([this](std::string_view text) { lines.emplace_back(text); })) {}
    ~LogRecorder() { setLogSink(std::move(previous_)); }
    LogRecorder(const LogRecorder&) = delete;
    LogRecorder& operator=(const LogRecorder&) = delete;

    /// The lines since the last call.
    std::vector<std::string> take() { return std::exchange(lines, {}); }

    std::vector<std::string> lines;

private:
    LogSink previous_;
};

} // namespace quorvan::test
