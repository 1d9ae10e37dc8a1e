// SPDX-License-Identifier: GPL-3.0-or-later
#include "Platform/Secret.h"

#include <cstring>
#include <new>

#include <sys/mman.h>

namespace quorvan::platform {

Secret::Secret(std::string_view bytes) {
    if (bytes.empty())
        return;
    // Pages of their own: what is locked and left out of dumps is so by the page.
    void* const place =
        ::mmap(nullptr, bytes.size(), PROT_READ | PROT_WRITE, MAP_PRIVATE | MAP_ANONYMOUS, -1, 0);
    if (place == MAP_FAILED)
        throw std::bad_alloc();
    ::mlock(place, bytes.size()); // which may be forbidden, or the limit be used up
    ::madvise(place, bytes.size(), MADV_DONTDUMP);
    ::madvise(place, bytes.size(), MADV_WIPEONFORK);
    std::memcpy(place, bytes.data(), bytes.size());
    bytes_ = {new std::string_view(static_cast<const char*>(place), bytes.size()),
              [place](const std::string_view* view) {
                  ::explicit_bzero(place, view->size());
                  ::munmap(place, view->size());
                  delete view;
              }};
}

Secret Secret::share() const {
    Secret same;
    same.bytes_ = bytes_;
    return same;
}

} // namespace quorvan::platform
