// SPDX-License-Identifier: GPL-3.0-or-later
#include "Simulator/PipeSession.h"

#include <algorithm>
#include <utility>

namespace quorvan::simulator {

PipeSession::PipeSession(KelpServer& server, std::string pipeFile, std::string user)
    : server_(server)
    , pipeFile_(std::move(pipeFile))
    , user_(std::move(user)) {}

void PipeSession::write(std::uint64_t offset, std::string_view bytes) {
    if (bytes.empty())
        return;
    request_.resize(std::min(request_.size(), static_cast<std::size_t>(offset)));
    request_ += bytes;
    pending_ = true;
}

std::chrono::milliseconds PipeSession::delay() const {
    const Misbehaviour& wrong = server_.misbehaviour;
    return pending_ && wrong.appliesTo(pipeFile_) ? wrong.delay : std::chrono::milliseconds(0);
}

void PipeSession::answerPendingRequest() {
    pending_ = false;
    position_ = 0;
    reply_ = server_.handle(pipeFile_, user_, request_);
    request_.clear();
    dropAt_ = std::string::npos;
    passingErrors_ = 0;
    const Misbehaviour& wrong = server_.misbehaviour;
    if (!wrong.appliesTo(pipeFile_))
        return;
    if (wrong.cutAfter)
        reply_.resize(std::min(reply_.size(), *wrong.cutAfter));
    if (wrong.dropAfter)
        dropAt_ = std::min(*wrong.dropAfter, reply_.size());
    passingErrors_ = wrong.passingReadErrors;
}

PipeSession::Piece PipeSession::read(std::size_t size) {
    if (pending_ && !dropped_)
        answerPendingRequest();
    if (passingErrors_ > 0) {
        --passingErrors_;
        return {Read::passingError, {}};
    }
    if (dropped_ || position_ >= dropAt_) {
        dropped_ = true;
        return {Read::dropped, {}};
    }
    const std::size_t length = std::min({size, pieceSize, dropAt_ - position_, reply_.size() - position_});
    const std::string_view piece(reply_.data() + position_, length);
    position_ += length;
    return {Read::piece, piece};
}

} // namespace quorvan::simulator
