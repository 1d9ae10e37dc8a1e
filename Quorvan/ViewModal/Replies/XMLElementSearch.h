// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "Quorvan/ViewModal/Replies/XMLElement.h"

#include <cstddef>
#include <utility>

namespace quorvan {

/// Finds the element at a path while the events pass by. The first element of a name is the only one that
/// counts: when it lacks the next step, the path leads nowhere.
class XMLElementSearch {
public:
    explicit XMLElementSearch(ElementPath path)
        : path_(std::move(path)) {}

    /// Whether the element that starts is the one.
    bool didStartElement(std::string_view name) {
        const std::size_t depth = depth_++;
        if (state_ != State::running || depth != steps_ || (depth > 0 && name != path_[depth - 1]))
            return false;
        if (steps_++ < path_.size())
            return false;
        state_ = State::found;
        return true;
    }

    void didEndElement() {
        if (depth_ == 0) // an end tag without its start tag
            return;
        if (depth_-- == steps_ && state_ == State::running)
            state_ = State::failed;
    }

    bool found() const { return state_ == State::found; }
    /// Fatal unless the element was there.
    void requireFound() const;

private:
    ElementPath path_;
    std::size_t depth_ = 0; ///< open elements
    std::size_t steps_ = 0; ///< open elements that lie on the path, the root included
    enum class State { running, found, failed } state_ = State::running;
};

} // namespace quorvan
