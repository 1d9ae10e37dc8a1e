// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "Simulator/KelpServer.h"

#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>

namespace quorvan::simulator {

/// One open pipe file: takes a request, hands out its reply in pieces.
///
/// A write at offset 0 begins a request, writes further on continue it; the first read after it has
/// the server answer. Where a read starts makes no difference: every read gives the next piece, and
/// the reply ends with an empty one.
class PipeSession {
public:
    static constexpr std::size_t pieceSize = 4096;

    PipeSession(KelpServer& server, std::string pipeFile, std::string user);

    void write(std::uint64_t offset, std::string_view bytes);

    enum class Read { piece, passingError, dropped };
    struct Piece {
        Read outcome = Read::piece;
        std::string_view bytes; ///< valid until the next call
    };

    /// At most min(size, pieceSize) bytes.
    Piece read(std::size_t size);

    /// How long the caller has to wait before its next read; zero except before the first of a slow reply.
    std::chrono::milliseconds delay() const;

    bool dropped() const { return dropped_; }

private:
    void answerPendingRequest();

    KelpServer& server_;
    std::string pipeFile_;
    std::string user_;
    std::string request_;
    std::string reply_;
    std::size_t position_ = 0;
    std::size_t dropAt_ = std::string::npos;
    int passingErrors_ = 0;
    bool pending_ = false;
    bool dropped_ = false;
};

} // namespace quorvan::simulator
