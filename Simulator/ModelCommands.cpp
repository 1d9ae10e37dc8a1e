// SPDX-License-Identifier: GPL-3.0-or-later
#include "Simulator/ModelCommands.h"

#include "Simulator/DemoData.h"
#include "Simulator/Text.h"

#include <cerrno>

namespace quorvan::simulator {

namespace {

constexpr std::size_t mostManyTrustees = 1000000;

/// Thrown by a command: it fails with this errno value.
struct CommandError {
    int error;
};

Node& existing(KelpServer& server, std::string_view path) {
    Node* const node = server.volumes().find(path);
    if (node == nullptr)
        throw CommandError{ENOENT};
    return *node;
}

Node& made(KelpServer& server, std::string_view path) {
    Node* const node = server.volumes().make(path);
    if (node == nullptr)
        throw CommandError{EINVAL};
    return *node;
}

const Identity& identity(KelpServer& server, std::string_view id) {
    const Identity* const found = server.identities().findById(id);
    if (found == nullptr)
        throw CommandError{ENOENT};
    return *found;
}

UserQuotas& userQuotas(KelpServer& server, std::string_view volume) {
    UserQuotas* const quotas = server.volumes().userQuotas(volume);
    if (quotas == nullptr)
        throw CommandError{ENOENT};
    return *quotas;
}

template <class Number>
Number numberIn(std::string_view text) {
    const auto value = number<Number>(text);
    if (!value)
        throw CommandError{EINVAL};
    return *value;
}

std::string maskText(Mask mask) {
    constexpr const char* digits = "0123456789ABCDEF";
    std::string text = "0x";
    for (int shift = 12; shift >= 0; shift -= 4)
        text += digits[(mask >> shift) & 0xF];
    return text;
}

std::string withNames(Mask mask) {
    return maskText(mask) + " " + rightNames(mask);
}

// Commands. Each returns its payload.

std::string trustees(KelpServer& server, const Arguments& arguments) {
    std::string text;
    for (const TrusteeEntry& entry : existing(server, arguments[0]).trustees.entries())
        text += entry.identity->id + "\t" + maskText(entry.rights) + "\t" + entry.identity->name + "\n";
    return text;
}

std::string rights(KelpServer& server, const Arguments& arguments) {
    return withNames(effectiveRights(existing(server, arguments[0]), identity(server, arguments[1])));
}

std::string filter(KelpServer& server, const Arguments& arguments) {
    return withNames(existing(server, arguments[0]).filter);
}

std::string setTrustee(KelpServer& server, const Arguments& arguments) {
    const Mask mask = numberIn<Mask>(arguments[2]);
    Node& node = made(server, arguments[0]);
    node.trustees.set(identity(server, arguments[1]), mask);
    return {};
}

/// An identity of the domain with an ID of a real directory, in a group that is there already, or in none.
std::string addIdentity(KelpServer& server, const Arguments& arguments) {
    Identity& added =
        server.identities().addDomainGroup(std::string(arguments[1]), std::string(arguments[0]));
    if (!arguments[2].empty())
        added.groups.push_back(&identity(server, arguments[2]));
    return {};
}

std::string removeTrustee(KelpServer& server, const Arguments& arguments) {
    if (!existing(server, arguments[0]).trustees.remove(identity(server, arguments[1])))
        throw CommandError{ENOENT};
    return {};
}

std::string setFilter(KelpServer& server, const Arguments& arguments) {
    const Mask mask = numberIn<Mask>(arguments[1]);
    made(server, arguments[0]).filter = mask;
    return {};
}

std::string addMany(KelpServer& server, const Arguments& arguments) {
    const auto count = numberIn<std::size_t>(arguments[1]);
    if (count > mostManyTrustees)
        throw CommandError{EINVAL};
    made(server, arguments[0]);
    addManyTrustees(server, arguments[0], count);
    return {};
}

std::string owner(KelpServer& server, const Arguments& arguments) {
    return ownerOf(existing(server, arguments[0]));
}

std::string setOwner(KelpServer& server, const Arguments& arguments) {
    made(server, arguments[0]).owner = arguments[1];
    return {};
}

std::string attributes(KelpServer& server, const Arguments& arguments) {
    const Node& node = existing(server, arguments[0]);
    std::string names;
    for (const AttributeTag& tag : attributeTags) {
        if ((node.attributes & tag.bit) != 0)
            names.append(names.empty() ? "" : " ").append(tag.name);
    }
    return names;
}

AttributeSet attributeNamed(std::string_view name) {
    for (const AttributeTag& tag : attributeTags) {
        if (tag.name == name)
            return tag.bit;
    }
    throw CommandError{EINVAL};
}

std::string setAttributes(KelpServer& server, const Arguments& arguments) {
    AttributeSet set = 0;
    for (const std::string_view name : split(arguments[1], ' '))
        set |= name.empty() ? AttributeSet{0} : attributeNamed(name);
    made(server, arguments[0]).attributes = set;
    return {};
}

std::string quota(KelpServer& server, const Arguments& arguments) {
    const DirectoryQuota& set = existing(server, arguments[0]).quota;
    return std::to_string(set.limit) + " " + std::to_string(set.used);
}

std::string setQuota(KelpServer& server, const Arguments& arguments) {
    const DirectoryQuota set{numberIn<std::int64_t>(arguments[1]), numberIn<std::int64_t>(arguments[2])};
    made(server, arguments[0]).quota = set;
    return {};
}

std::string allUserQuotas(KelpServer& server, const Arguments& arguments) {
    std::string text;
    for (const UserQuota& each : userQuotas(server, arguments[0]).entries()) {
        text += each.user->id + "\t" + std::to_string(each.limit) + "\t" + std::to_string(each.used) + "\t" +
                each.user->name + "\n";
    }
    return text;
}

std::string setUserQuota(KelpServer& server, const Arguments& arguments) {
    UserQuotas& quotas = userQuotas(server, arguments[0]);
    const Identity& user = identity(server, arguments[1]);
    quotas.of(user) = {&user, numberIn<std::int64_t>(arguments[2]), numberIn<std::int64_t>(arguments[3])};
    return {};
}

std::string setLink(KelpServer& server, const Arguments& arguments) {
    made(server, arguments[0]).link =
        Link{std::string(arguments[1]), std::string(arguments[2]), std::string(arguments[3])};
    return {};
}

std::string requests(KelpServer& server, const Arguments&) {
    return std::to_string(server.requestCount());
}

std::string lastRequest(KelpServer& server, const Arguments&) {
    return server.lastRequest();
}

struct Command {
    std::string_view name;
    std::size_t arguments;
    std::string (*run)(KelpServer&, const Arguments&);
};

constexpr Command commands[] = {
    {"trustees", 1, trustees},
    {"rights", 2, rights},
    {"filter", 1, filter},
    {"add-identity", 3, addIdentity},
    {"set-trustee", 3, setTrustee},
    {"remove-trustee", 2, removeTrustee},
    {"set-filter", 2, setFilter},
    {"add-many", 2, addMany},
    {"owner", 1, owner},
    {"set-owner", 2, setOwner},
    {"attributes", 1, attributes},
    {"set-attributes", 2, setAttributes},
    {"quota", 1, quota},
    {"set-quota", 3, setQuota},
    {"user-quotas", 1, allUserQuotas},
    {"set-user-quota", 4, setUserQuota},
    {"set-link", 4, setLink},
    {"requests", 0, requests},
    {"last-request", 0, lastRequest},
};

} // namespace

std::optional<ProtocolAnswer> runModelCommand(KelpServer& server, std::string_view name,
                                              const Arguments& arguments) {
    for (const Command& command : commands) {
        if (command.name != name || command.arguments != arguments.size())
            continue;
        ProtocolAnswer answer;
        try {
            answer.payload = command.run(server, arguments);
        } catch (const CommandError& failed) {
            answer.error = failed.error;
        }
        return answer;
    }
    return std::nullopt;
}

} // namespace quorvan::simulator
