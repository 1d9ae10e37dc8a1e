// SPDX-License-Identifier: GPL-3.0-or-later
#include "Simulator/Conversation.h"

#include "Simulator/Text.h"

#include <cerrno>
#include <chrono>
#include <map>
#include <thread>

namespace quorvan::simulator {

namespace {

ProtocolAnswer failure(int error) {
    return {error, {}, false};
}
ProtocolAnswer success(std::string payload = {}) {
    return {0, std::move(payload), false};
}

template <class Number, class Field>
bool setNumber(Field& field, std::string_view text) {
    const auto value = number<Number>(text);
    if (value)
        field = Field(*value);
    return value.has_value();
}

bool setMisbehaviour(Misbehaviour& wrong, std::string_view name, std::string_view value) {
    using Setter = bool (*)(Misbehaviour&, std::string_view);
    static const std::map<std::string_view, Setter> setters{
        {"mountError", [](Misbehaviour& m, std::string_view v) { return setNumber<int>(m.mountError, v); }},
        {"openError", [](Misbehaviour& m, std::string_view v) { return setNumber<int>(m.openError, v); }},
        {"code", [](Misbehaviour& m, std::string_view v) { return setNumber<int>(m.code, v); }},
        {"replyMegabytes",
         [](Misbehaviour& m, std::string_view v) { return setNumber<std::size_t>(m.replyMegabytes, v); }},
        {"cutAfter",
         [](Misbehaviour& m, std::string_view v) { return setNumber<std::size_t>(m.cutAfter, v); }},
        {"dropAfter",
         [](Misbehaviour& m, std::string_view v) { return setNumber<std::size_t>(m.dropAfter, v); }},
        {"delay", [](Misbehaviour& m, std::string_view v) { return setNumber<int>(m.delay, v); }},
        {"passingReadErrors",
         [](Misbehaviour& m, std::string_view v) { return setNumber<int>(m.passingReadErrors, v); }},
        {"garbage", [](Misbehaviour& m, std::string_view v) { return m.garbage = v, true; }},
        {"onlyPipe", [](Misbehaviour& m, std::string_view v) { return m.onlyPipe = v, true; }},
    };
    const auto setter = setters.find(name);
    return setter != setters.end() && setter->second(wrong, value);
}

} // namespace

const std::vector<Conversation::Command>& Conversation::commands() {
    static const std::vector<Command> table{
        {"open", 3, &Conversation::open},           {"write", 2, &Conversation::write},
        {"read", 1, &Conversation::read},           {"close", 0, &Conversation::close},
        {"mount", 3, &Conversation::mount},         {"accounts", 0, &Conversation::accounts},
        {"misbehave", 2, &Conversation::misbehave}, {"behave", 0, &Conversation::behave},
        {"quit", 0, &Conversation::quit},
    };
    return table;
}

std::size_t Conversation::payloadSize(std::string_view line) {
    const Arguments words = split(line, '\t');
    return words.size() == 3 && words[0] == "write" ? number<std::size_t>(words[2]).value_or(0) : 0;
}

std::string Conversation::format(const ProtocolAnswer& answer) {
    if (answer.error != 0)
        return "error " + std::to_string(answer.error) + "\n";
    return "ok " + std::to_string(answer.payload.size()) + "\n" + answer.payload;
}

ProtocolAnswer Conversation::handle(std::string_view line, std::string_view payload) {
    Arguments words = split(line, '\t');
    const std::string_view name = words.front();
    words.erase(words.begin());
    const std::lock_guard lock(host_.mutex);
    for (const Command& command : commands()) {
        if (command.name == name && command.arguments == words.size())
            return (this->*command.run)(words, payload);
    }
    return runModelCommand(host_.server, name, words).value_or(failure(EINVAL));
}

// Pipe files

ProtocolAnswer Conversation::open(const Arguments& arguments, std::string_view) {
    const PipeFile* file = findPipeFile(arguments[1], arguments[2]);
    if (host_.server.findAccount(arguments[0]) == nullptr)
        return failure(EACCES);
    if (file == nullptr)
        return failure(ENOENT);
    if (const int error = host_.server.checkOpen(file->file); error != 0)
        return failure(error);
    session_.emplace(host_.server, file->file, std::string(arguments[0]));
    return success();
}

ProtocolAnswer Conversation::write(const Arguments& arguments, std::string_view payload) {
    const auto offset = number<std::uint64_t>(arguments[0]);
    if (!offset || number<std::size_t>(arguments[1]) != payload.size())
        return failure(EINVAL);
    if (!session_)
        return failure(EBADF);
    session_->write(*offset, payload);
    return success();
}

ProtocolAnswer Conversation::read(const Arguments& arguments, std::string_view) {
    const auto size = number<std::size_t>(arguments[0]);
    if (!size)
        return failure(EINVAL);
    if (!session_)
        return failure(EBADF);
    if (const auto delay = session_->delay(); delay.count() > 0) {
        host_.mutex.unlock(); // a slow reply holds up its own reader only
        std::this_thread::sleep_for(delay);
        host_.mutex.lock();
    }
    const PipeSession::Piece piece = session_->read(*size);
    switch (piece.outcome) {
    case PipeSession::Read::passingError:
        return failure(EINTR);
    case PipeSession::Read::dropped:
        return {0, {}, true};
    case PipeSession::Read::piece:
        break;
    }
    return success(std::string(piece.bytes));
}

ProtocolAnswer Conversation::close(const Arguments&, std::string_view) {
    if (!session_)
        return failure(EBADF);
    session_.reset();
    return success();
}

ProtocolAnswer Conversation::mount(const Arguments& arguments, std::string_view) {
    return failure(host_.server.checkMount({arguments[0], arguments[1]}, arguments[2]));
}

ProtocolAnswer Conversation::accounts(const Arguments&, std::string_view) {
    std::string text;
    for (const auto& [user, account] : host_.server.accounts()) {
        const bool inTree = account.identity->kind == IdentityKind::morvane;
        text += user + "\t" + account.password + "\t" + (inTree ? "Morvane" : "ActiveDirectory") + "\n";
    }
    return success(text);
}

// The server as a whole

ProtocolAnswer Conversation::misbehave(const Arguments& arguments, std::string_view) {
    return failure(setMisbehaviour(host_.server.misbehaviour, arguments[0], arguments[1]) ? 0 : EINVAL);
}

ProtocolAnswer Conversation::behave(const Arguments&, std::string_view) {
    host_.server.misbehaviour = {};
    return success();
}

ProtocolAnswer Conversation::quit(const Arguments&, std::string_view) {
    host_.quit();
    return success();
}

} // namespace quorvan::simulator
