// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "Simulator/ModelCommands.h"
#include "Simulator/PipeSession.h"

#include <functional>
#include <mutex>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace quorvan::simulator {

/// What the conversations with one server share.
struct ConversationHost {
    KelpServer& server;
    std::function<void()> quit; ///< what the command "quit" does
    std::mutex mutex{};         ///< held while the server is used
};

/// One client's side of the line protocol (PROTOCOL.md), without its transport.
class Conversation {
public:
    explicit Conversation(ConversationHost& host)
        : host_(host) {}

    /// How many bytes follow a request line.
    static std::size_t payloadSize(std::string_view line);

    ProtocolAnswer handle(std::string_view line, std::string_view payload);

    /// "ok 3\nabc" or "error 2\n".
    static std::string format(const ProtocolAnswer& answer);

private:
    struct Command {
        std::string_view name;
        std::size_t arguments;
        ProtocolAnswer (Conversation::*run)(const Arguments&, std::string_view payload);
    };
    static const std::vector<Command>& commands();

    ProtocolAnswer open(const Arguments& arguments, std::string_view payload);
    ProtocolAnswer write(const Arguments& arguments, std::string_view payload);
    ProtocolAnswer read(const Arguments& arguments, std::string_view payload);
    ProtocolAnswer close(const Arguments& arguments, std::string_view payload);
    ProtocolAnswer mount(const Arguments& arguments, std::string_view payload);
    ProtocolAnswer accounts(const Arguments& arguments, std::string_view payload);
    ProtocolAnswer misbehave(const Arguments& arguments, std::string_view payload);
    ProtocolAnswer behave(const Arguments& arguments, std::string_view payload);
    ProtocolAnswer quit(const Arguments& arguments, std::string_view payload);

    ConversationHost& host_;
    std::optional<PipeSession> session_;
};

} // namespace quorvan::simulator
