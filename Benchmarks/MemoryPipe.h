// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "Benchmarks/Measure.h"
#include "Quorvan/ViewModal/XMLReadWrite.h"
#include "Tests/Support/Fakes.h"

#include <algorithm>
#include <cstring>
#include <string>

namespace quorvan::benchmarks {

/// An open pipe that answers every request with one reply out of memory, in the pieces in which a server
/// hands it out, while this lives. Nothing is logged meanwhile.
class MemoryPipe {
public:
    explicit MemoryPipe(const std::string& reply)
        : installed_(servicesWith(std::make_shared<File>(reply))) {
        XMLReadWriteController::fileDes = 1;
    }
    ~MemoryPipe() { XMLReadWriteController::fileDes = -1; }
    MemoryPipe(const MemoryPipe&) = delete;
    MemoryPipe& operator=(const MemoryPipe&) = delete;

private:
    struct File final : test::FakeNetwork {
        explicit File(const std::string& text)
            : reply(text) {}
        int disableCaching(int) override { return 0; }
        off_t seek(int, off_t offset) override { return offset; }
        ssize_t write(int, const void*, std::size_t size) override {
            at = 0;
            return static_cast<ssize_t>(size);
        }
        ssize_t read(int, void* buffer, std::size_t size) override {
            const std::size_t length = std::min(size, reply.size() - at);
            std::memcpy(buffer, reply.data() + at, length);
            at += length;
            return static_cast<ssize_t>(length);
        }
        const std::string& reply;
        std::size_t at = 0;
    };
    static platform::Services servicesWith(std::shared_ptr<platform::NetworkFileSystem> network) {
        platform::Services services = platform::services();
        services.network = std::move(network);
        return services;
    }

    platform::ScopedServices installed_;
    QuietLog quiet_;
};

} // namespace quorvan::benchmarks
