// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <cstddef>
#include <fstream>
#include <string>

#include <malloc.h>

namespace quorvan::benchmarks {

/// One line of /proc/self/status ("VmRSS", "VmHWM"), in bytes.
inline std::size_t statusBytes(const std::string& name) {
    std::ifstream status("/proc/self/status");
    for (std::string line; std::getline(status, line);) {
        if (line.starts_with(name + ":"))
            return 1024 * std::stoul(line.substr(name.size() + 1));
    }
    return 0;
}

/// By how many bytes the memory of this process grows at most while it does some work.
template <class Work>
std::size_t peakGrowth(Work&& work) {
    malloc_trim(0);
    std::ofstream("/proc/self/clear_refs") << "5\n"; // the high-water mark starts again from here
    const std::size_t before = statusBytes("VmRSS");
    work();
    return statusBytes("VmHWM") - before;
}

} // namespace quorvan::benchmarks
