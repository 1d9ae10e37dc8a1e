// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "Common/Log.h"

#include <iostream>
#include <string>
#include <utility>
#include <vector>

namespace quorvan::test {

/// Takes the log's texts in place of standard error for its own lifetime. A fatal end shows on standard
/// error all the same, where death tests look for it.
class LogRecorder {
public:
    LogRecorder()
        : previous_(setLogSink([this](std::string_view text) { record(text); })) {}
    ~LogRecorder() { setLogSink(std::move(previous_)); }
    LogRecorder(const LogRecorder&) = delete;
    LogRecorder& operator=(const LogRecorder&) = delete;

    /// The lines since the last call.
    std::vector<std::string> take() { return std::exchange(lines, {}); }

    std::vector<std::string> lines;

private:
    void record(std::string_view text) {
        lines.emplace_back(text);
        if (text.starts_with("Fatal: "))
            std::cerr << text << std::endl;
    }

    LogSink previous_;
};

} // namespace quorvan::test
