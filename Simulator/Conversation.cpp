// SPDX-License-Identifier: GPL-3.0-or-later
#include "Simulator/Conversation.h"

#include "Simulator/DemoData.h"
#include "Simulator/Text.h"

#include <algorithm>
#include <cerrno>
#include <charconv>
#include <chrono>
#include <map>
#include <thread>

namespace quorvan::simulator {

namespace {

constexpr std::size_t mostManyTrustees = 1000000;

ProtocolAnswer failure(int error) {
    return {error, {}, false};
}
ProtocolAnswer success(std::string payload = {}) {
    return {0, std::move(payload), false};
}

/// A decimal number, or with 0x a hexadecimal one.
template <class Number>
std::optional<Number> number(std::string_view text) {
    const bool hexadecimal = text.substr(0, 2) == "0x";
    if (hexadecimal)
        text.remove_prefix(2);
    Number value = 0;
    const char* const end = text.data() + text.size();
    const auto [stop, error] = std::from_chars(text.data(), end, value, hexadecimal ? 16 : 10);
    return error == std::errc() && stop == end ? std::optional(value) : std::nullopt;
}

std::string maskText(Mask mask) {
    constexpr const char* digits = "0123456789ABCDEF";
    std::string text = "0x";
    for (int shift = 12; shift >= 0; shift -= 4)
        text += digits[(mask >> shift) & 0xF];
    return text;
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
        {"open", 3, &Conversation::open},
        {"write", 2, &Conversation::write},
        {"read", 1, &Conversation::read},
        {"close", 0, &Conversation::close},
        {"mount", 3, &Conversation::mount},
        {"accounts", 0, &Conversation::accounts},
        {"trustees", 1, &Conversation::trustees},
        {"rights", 2, &Conversation::rights},
        {"filter", 1, &Conversation::filter},
        {"set-trustee", 3, &Conversation::setTrustee},
        {"remove-trustee", 2, &Conversation::removeTrustee},
        {"set-filter", 2, &Conversation::setFilter},
        {"add-many", 2, &Conversation::addMany},
        {"requests", 0, &Conversation::requests},
        {"last-request", 0, &Conversation::lastRequest},
        {"misbehave", 2, &Conversation::misbehave},
        {"behave", 0, &Conversation::behave},
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
    for (const Command& command : commands()) {
        if (command.name == name && command.arguments == words.size()) {
            const std::lock_guard lock(host_.mutex);
            return (this->*command.run)(words, payload);
        }
    }
    return failure(EINVAL);
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
    return failure(host_.server.checkMount(arguments[0], arguments[1], arguments[2]));
}

ProtocolAnswer Conversation::accounts(const Arguments&, std::string_view) {
    std::string text;
    for (const auto& [user, account] : host_.server.accounts()) {
        const bool inTree = account.identity->kind == IdentityKind::morvane;
        text += user + "\t" + account.password + "\t" + (inTree ? "Morvane" : "ActiveDirectory") + "\n";
    }
    return success(text);
}

// The model

ProtocolAnswer Conversation::trustees(const Arguments& arguments, std::string_view) {
    if (host_.server.volumes().find(arguments[0]) == nullptr)
        return failure(ENOENT);
    std::string text;
    for (const TrusteeEntry& entry : host_.server.trustees(arguments[0]))
        text += entry.identity->id + "\t" + maskText(entry.rights) + "\t" + entry.identity->name + "\n";
    return success(text);
}

ProtocolAnswer Conversation::rights(const Arguments& arguments, std::string_view) {
    const Identity* identity = host_.server.identities().findById(arguments[1]);
    if (identity == nullptr || host_.server.volumes().find(arguments[0]) == nullptr)
        return failure(ENOENT);
    const Mask mask = host_.server.rightsOf(arguments[0], *identity);
    return success(maskText(mask) + " " + rightNames(mask));
}

ProtocolAnswer Conversation::filter(const Arguments& arguments, std::string_view) {
    if (host_.server.volumes().find(arguments[0]) == nullptr)
        return failure(ENOENT);
    const Mask mask = host_.server.filter(arguments[0]);
    return success(maskText(mask) + " " + rightNames(mask));
}

ProtocolAnswer Conversation::setTrustee(const Arguments& arguments, std::string_view) {
    const Identity* identity = host_.server.identities().findById(arguments[1]);
    const auto mask = number<Mask>(arguments[2]);
    if (!mask || host_.server.volumes().make(arguments[0]) == nullptr)
        return failure(EINVAL);
    if (identity == nullptr)
        return failure(ENOENT);
    host_.server.setTrustee(arguments[0], *identity, *mask);
    return success();
}

ProtocolAnswer Conversation::removeTrustee(const Arguments& arguments, std::string_view) {
    const Identity* identity = host_.server.identities().findById(arguments[1]);
    Node* node = host_.server.volumes().find(arguments[0]);
    if (identity == nullptr || node == nullptr || !node->trustees.remove(*identity))
        return failure(ENOENT);
    return success();
}

ProtocolAnswer Conversation::setFilter(const Arguments& arguments, std::string_view) {
    const auto mask = number<Mask>(arguments[1]);
    if (!mask || host_.server.volumes().make(arguments[0]) == nullptr)
        return failure(EINVAL);
    host_.server.setFilter(arguments[0], *mask);
    return success();
}

ProtocolAnswer Conversation::addMany(const Arguments& arguments, std::string_view) {
    const auto count = number<std::size_t>(arguments[1]);
    if (!count || *count > mostManyTrustees || host_.server.volumes().make(arguments[0]) == nullptr)
        return failure(EINVAL);
    addManyTrustees(host_.server, arguments[0], *count);
    return success();
}

ProtocolAnswer Conversation::requests(const Arguments&, std::string_view) {
    return success(std::to_string(host_.server.requestCount()));
}

ProtocolAnswer Conversation::lastRequest(const Arguments&, std::string_view) {
    return success(host_.server.lastRequest());
}

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
