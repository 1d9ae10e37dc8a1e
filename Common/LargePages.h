// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <cstddef>
#include <cstdint>

#include <sys/mman.h>

namespace quorvan {

/// Asks for large pages behind memory that is about to be filled for the first time: in pages of 4 kB that
/// takes half as long as parsing what is stored there. Only a wish, and none for what large pages would
/// waste.
inline void preferLargePages(const void* memory, std::size_t size) {
    constexpr std::size_t worthIt = 4U << 20U;
    constexpr std::uintptr_t page = 4096;
    if (size < worthIt)
        return;
    const std::uintptr_t offset = reinterpret_cast<std::uintptr_t>(memory) % page;
    auto* begin = const_cast<char*>(static_cast<const char*>(memory)) + (page - offset);
    ::madvise(begin, size - page, MADV_HUGEPAGE);
}

} // namespace quorvan
