// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <cstddef>
#include <cstring>
#include <memory>
#include <string_view>

namespace quorvan::platform {

/// A password: bytes in one place of memory, which is wiped before it is given back.
///
/// A secret moves from owner to owner. Nothing copies it unless copy() is called, nothing converts it into a
/// text that could be logged, and it never grows, so that no part of it stays behind.
class Secret {
public:
    Secret() = default;
    explicit Secret(std::string_view bytes)
        : bytes_(new char[bytes.size()], Wipe{bytes.size()}) {
        bytes.copy(bytes_.get(), bytes.size());
    }

    Secret copy() const { return Secret(reveal()); }

    /// The bytes, for whoever sends them to the server or compares them. Valid as long as this owner.
    std::string_view reveal() const { return {bytes_.get(), size()}; }

    std::size_t size() const { return bytes_ ? bytes_.get_deleter().size : 0; }
    bool empty() const { return size() == 0; }

private:
    struct Wipe {
        std::size_t size = 0;
        void operator()(char* bytes) const {
            ::explicit_bzero(bytes, size);
            delete[] bytes;
        }
    };

    std::unique_ptr<char[], Wipe> bytes_;
};

} // namespace quorvan::platform
