// SPDX-License-Identifier: GPL-3.0-or-later
#include "Simulator/DemoData.h"

#include <vector>

namespace quorvan::simulator {

namespace {

constexpr Mask reader = right::read | right::fileScan;
constexpr Mask author = reader | right::write | right::create | right::modify;
constexpr Mask editor = author | right::erase;
constexpr Mask keeper = editor | right::accessControl;

std::string sid(std::size_t relative) {
    return "S-1-5-21-1794301120-902745313-2650418877-" + std::to_string(relative);
}

/// A GUID that ends in a number.
std::string guid(std::size_t number) {
    const std::string digits = std::to_string(number);
    return "7c1e5a40-93d2-4b6f-8e21-" + std::string(12 - digits.size(), '0') + digits;
}

} // namespace

void addDemoData(KelpServer& server) {
    Identities& store = server.identities();
    const auto logIn = [&](const char* user, const Identity& identity, Mask rights) {
        server.addAccount(user, demo::password, identity);
        server.setTrustee("VOL1:\\", identity, rights);
    };
    logIn(demo::supervisor, store.addDomainUser(demo::supervisor, sid(1101)), right::supervisor);
    logIn(demo::accessControl, store.addDomainUser(demo::accessControl, sid(1102)), keeper);
    logIn(demo::readOnly, store.addDomainUser(demo::readOnly, sid(1103)), reader);
    logIn(demo::supervisorTree, store.addTreeUser("Renate Vogt", "Leitung", guid(1)), right::supervisor);
    logIn(demo::accessControlTree, store.addTreeUser("Pavel Novák", "Leitung", guid(2)), keeper);
    logIn(demo::readOnlyTree, store.addTreeUser("Zoë Marchetti", "Archiv", guid(3)), reader);
    server.addPath(demo::selection);
    addManyTrustees(server, demo::selection, 6);
    addManyTrustees(server, demo::crowded, 100);
    addManyTrustees(server, demo::crowded, 100, IdentityKind::morvane);
}

void addManyTrustees(KelpServer& server, std::string_view path, std::size_t count, IdentityKind kind) {
    static const std::vector<const char*> names{"André", "Björn",   "Chloë", "Dörte",
                                                "Émile", "Frances", "Göran", "Hana"};
    const std::size_t first = server.identities().all().size();
    for (std::size_t i = first; i < first + count; ++i) {
        const std::string name = std::string(names[i % names.size()]) + " " + std::to_string(i);
        Identities& store = server.identities();
        const Identity& identity = kind == IdentityKind::activeDirectory
                                       ? store.addDomainUser(name, sid(100000 + i))
                                       : store.addTreeUser(name, "Personal", guid(100000 + i));
        server.setTrustee(path, identity, rightTags[i % 7].bit | reader);
    }
}

} // namespace quorvan::simulator
