// SPDX-License-Identifier: GPL-3.0-or-later
#include "Simulator/DemoData.h"

#include <map>

namespace quorvan::simulator {

namespace {

constexpr Mask reader = right::read | right::fileScan;
constexpr Mask dropBox = right::create | right::write;
constexpr Mask author = reader | right::write | right::create;
constexpr Mask editor = author | right::modify | right::erase;
constexpr Mask keeper = editor | right::accessControl;

struct DemoIdentity {
    const char* name;
    const char* unit;   ///< container in the tree; null in Active Directory
    const char* groups; ///< names separated by ", "; "" for none
};

constexpr DemoIdentity demoGroups[] = {
    {"Festival Team", nullptr, ""},
    {"Stage & Lighting", nullptr, "Festival Team"},
    {"Ticketing", nullptr, "Festival Team"},
    {"Finance", nullptr, ""},
    {"Auditors", nullptr, ""},
    {"Print Production", nullptr, ""},
    {"Works Council", nullptr, ""},
    {"External Partners", nullptr, ""},
    {"Redaktion", "Verlag", ""},
    {"Lektorat", "Verlag", "Redaktion"},
    {"Archivare", "Archiv", ""},
    {"Förderverein", "Gäste", ""},
    {"Praktikanten", "Verlag", ""},
    {"Hausmeister", "Gebäude", ""},
};

constexpr DemoIdentity demoUsers[] = {
    {demo::supervisor, nullptr, ""},
    {demo::accessControl, nullptr, "Festival Team"},
    {demo::readOnly, nullptr, ""},
    {"jürgen.weißmann", nullptr, "Stage & Lighting"},
    {"anaïs.delorme", nullptr, "Ticketing"},
    {"søren.kjærholt", nullptr, "Stage & Lighting, Works Council"},
    {"maría.quintanar", nullptr, "Finance"},
    {"łukasz.wronka", nullptr, "Print Production"},
    {"oliver.pembrook", nullptr, "Finance, Auditors"},
    {"priya.ramanath", nullptr, "Ticketing, Works Council"},
    {"noémie.valcourt", nullptr, "Print Production"},
    {"björn.åkesund", nullptr, "Auditors"},
    {"çağla.demirsoy", nullptr, "External Partners"},
    {"eoghan.ó-murchú", nullptr, "Stage & Lighting"},
    {"hana.dvořáčková", nullptr, "Finance"},
    {"Renate Vogt", "Leitung", ""},
    {"Pavel Novák", "Leitung", "Redaktion"},
    {"Zoë Marchetti", "Archiv", "Archivare"},
    {"Käthe Brüning", "Verlag", "Lektorat"},
    {"Étienne Marchand", "Verlag", "Redaktion"},
    {"Ingeborg Ødemark", "Archiv", "Archivare"},
    {"Jörg Süßkind", "Gebäude", "Hausmeister"},
    {"Ana Lúcia Teixeira", "Verlag", "Lektorat, Förderverein"},
    {"Mikołaj Żuraw", "Verlag", "Praktikanten"},
    {"Ümit Yıldız", "Gebäude", "Hausmeister"},
    {"Françoise d'Aubigny", "Gäste", "Förderverein"},
    {"Tōru Shirakawa", "Archiv", "Archivare, Praktikanten"},
};

struct DemoTrustee {
    const char* path;
    const char* name;
    Mask rights;
};

constexpr const char* everyone = "Everyone";

constexpr DemoTrustee demoTrustees[] = {
    {"VOL1:\\Projects", "Festival Team", reader},
    {"VOL1:\\Projects", "Redaktion", reader},
    {demo::selection, "Festival Team", editor},
    {demo::selection, "Stage & Lighting", author},
    {demo::selection, "Ticketing", reader},
    {demo::selection, "Finance", reader},
    {demo::selection, "Auditors", right::read | right::fileScan | right::accessControl},
    {demo::selection, "External Partners", dropBox},
    {demo::selection, everyone, right::fileScan},
    {demo::selection, "jürgen.weißmann", keeper},
    {demo::selection, "søren.kjærholt", right::supervisor},
    {demo::selection, "anaïs.delorme", author},
    {demo::selection, "łukasz.wronka", right::read | right::write},
    {demo::selection, "çağla.demirsoy", reader},
    {demo::selection, "eoghan.ó-murchú", 0},
    {demo::selection, "Redaktion", editor},
    {demo::selection, "Lektorat", author},
    {demo::selection, "Praktikanten", reader},
    {demo::selection, "Étienne Marchand", keeper},
    {demo::selection, "Käthe Brüning", right::read | right::modify | right::fileScan},
    {demo::selection, "Mikołaj Żuraw", right::create},
    {demo::selection, "Tōru Shirakawa", right::supervisor},
    {demo::selection, "Ümit Yıldız", right::fileScan},
    {"VOL1:\\Projects\\Aurora\\Budget", "Finance", editor},
    {"VOL1:\\Projects\\Aurora\\Budget", "hana.dvořáčková", keeper},
    {"VOL1:\\Projects\\Aurora\\Budget", "Festival Team", 0},
    {"VOL1:\\Projects\\Aurora\\Drawings", "Stage & Lighting", editor},
    {"VOL1:\\Projects\\Aurora\\Texte", "Lektorat", editor},
    {"VOL1:\\Projects\\Aurora\\Texte\\Grußwort.odt", "Françoise d'Aubigny", reader | right::write},
    {"VOL1:\\Finance", "Finance", editor},
    {"VOL1:\\Finance", "Auditors", reader},
    {"VOL1:\\Finance", "maría.quintanar", right::supervisor},
    {"VOL1:\\Personnel", "Works Council", reader},
    {"VOL1:\\Personnel", "Renate Vogt", right::supervisor},
    {"VOL1:\\Archiv", "Archivare", editor},
    {"VOL1:\\Archiv", "Ingeborg Ødemark", keeper},
    {"VOL1:\\Public", everyone, reader},
    {"VOL1:\\Public", "Förderverein", reader},
    {"VOL1:\\Public\\Briefkasten", everyone, dropBox},
    {"VOL1:\\Public\\Briefkasten", "Hausmeister", editor},
};

struct DemoFilter {
    const char* path;
    Mask filter;
};

constexpr DemoFilter demoFilters[] = {
    {"VOL1:\\Projects\\Aurora\\Budget", reader},
    {"VOL1:\\Projects\\Aurora\\Drawings", static_cast<Mask>(right::all & ~right::erase)},
    {"VOL1:\\Finance", right::fileScan},
    {"VOL1:\\Personnel", 0},
    {"VOL1:\\Public\\Briefkasten", dropBox},
};

constexpr const char* demoPaths[] = {
    "VOL1:\\Projects\\Aurora\\Budget\\Q1 Kostenplan.ods",
    "VOL1:\\Projects\\Aurora\\Budget\\Q2 Kostenplan.ods",
    "VOL1:\\Projects\\Aurora\\Drawings\\Stage plan A0.pdf",
    "VOL1:\\Projects\\Aurora\\Drawings\\Lumière sud.pdf",
    "VOL1:\\Projects\\Aurora\\Concept.odt",
    "VOL1:\\Projects\\Tideline\\Storyboard.pdf",
    "VOL1:\\Personnel\\Contracts",
    "VOL1:\\Archiv\\Größere Formate\\1931",
    "VOL1:\\Home\\jürgen.weißmann",
};

std::string sid(std::size_t relative) {
    return "S-1-5-21-1794301120-902745313-2650418877-" + std::to_string(relative);
}

/// A GUID that ends in a number.
std::string guid(std::size_t number) {
    const std::string digits = std::to_string(number);
    return "7c1e5a40-93d2-4b6f-8e21-" + std::string(12 - digits.size(), '0') + digits;
}

using ByName = std::map<std::string, Identity*>;

void addMembership(Identity& member, std::string names, const ByName& known) {
    while (!names.empty()) {
        const std::size_t comma = names.find(", ");
        member.groups.push_back(known.at(names.substr(0, comma)));
        names.erase(0, comma == std::string::npos ? comma : comma + 2);
    }
}

ByName addDemoIdentities(Identities& store) {
    ByName known;
    std::size_t number = 1100;
    for (const DemoIdentity& each : demoGroups) {
        ++number;
        known[each.name] = each.unit == nullptr ? &store.addDomainGroup(each.name, sid(number))
                                                : &store.addTreeGroup(each.name, each.unit, guid(number));
        addMembership(*known[each.name], each.groups, known);
    }
    known[everyone] = &store.addDomainGroup(everyone, "S-1-1-0");
    for (const DemoIdentity& each : demoUsers) {
        ++number;
        known[each.name] = each.unit == nullptr ? &store.addDomainUser(each.name, sid(number))
                                                : &store.addTreeUser(each.name, each.unit, guid(number));
        addMembership(*known[each.name], each.groups, known);
        if (each.unit == nullptr)
            known[each.name]->groups.push_back(known[everyone]);
    }
    return known;
}

ByName addIdentitiesAndAccounts(KelpServer& server) {
    ByName known = addDemoIdentities(server.identities());
    const auto logIn = [&](const char* user, const char* name, Mask rights) {
        server.addAccount(user, demo::password, *known.at(name));
        server.setTrustee("VOL1:\\", *known.at(name), rights);
    };
    logIn(demo::supervisor, demo::supervisor, right::supervisor);
    logIn(demo::accessControl, demo::accessControl, keeper);
    logIn(demo::readOnly, demo::readOnly, reader);
    logIn(demo::supervisorTree, "Renate Vogt", right::supervisor);
    logIn(demo::accessControlTree, "Pavel Novák", keeper);
    logIn(demo::readOnlyTree, "Zoë Marchetti", reader);
    return known;
}

constexpr const char* givenNames[] = {
    "Amélie", "Björn",   "Chloë", "Dörte", "Émile",  "Frances", "Göran",   "Hana",    "Ílhan",
    "Jürgen", "Kaija",   "Lucía", "Marek", "Nadège", "Øystein", "Paulína", "Quentin", "Róisín",
    "Şebnem", "Thérèse", "Uwe",   "Věra",  "Wiebke", "Xenia",   "Yvonne",  "Zdeněk"};
constexpr const char* familyNames[] = {
    "Achterberg", "Bäumler",  "Castellón", "Drăgulin",  "Ekström", "Förstner", "Grünwald", "Håkonsen",
    "Iżycki",     "Jørstad",  "Křížek",    "Löwenthal", "Mørkved", "Núñez",    "Oñate",    "Příhoda",
    "Rößler",     "Sjöquist", "Țepelea",   "Übelacker", "Vašíček", "Wyżga",    "Zöllner"};
constexpr Mask manyRights[] = {reader,          editor, author,  reader,           keeper,
                               right::fileScan, 0,      dropBox, right::supervisor};

template <std::size_t Count>
const char* pick(const char* const (&from)[Count], std::size_t index) {
    return from[index % Count];
}

} // namespace

void addDemoAccounts(KelpServer& server) {
    addIdentitiesAndAccounts(server);
}

void addDemoData(KelpServer& server) {
    const ByName known = addIdentitiesAndAccounts(server);
    for (const DemoTrustee& each : demoTrustees)
        server.setTrustee(each.path, *known.at(each.name), each.rights);
    for (const DemoFilter& each : demoFilters)
        server.setFilter(each.path, each.filter);
    for (const char* path : demoPaths)
        server.addPath(path);
    addManyTrustees(server, demo::crowded, 200, IdentityKind::activeDirectory);
    addManyTrustees(server, demo::crowded, 200, IdentityKind::morvane);
}

void addManyTrustees(KelpServer& server, std::string_view path, std::size_t count, IdentityKind kind) {
    Node* const node = server.volumes().make(path);
    if (node == nullptr)
        return;
    Identities& store = server.identities();
    const std::size_t first = store.all().size();
    for (std::size_t i = first; i < first + count; ++i) {
        const bool inDomain = kind == IdentityKind::activeDirectory;
        const bool isGroup = i % 10 == 9;
        std::string name = isGroup ? "Team" : pick(givenNames, i);
        name.append(inDomain && !isGroup ? "." : " ").append(pick(familyNames, i)).append(" ");
        name += std::to_string(i);
        const std::size_t number = 100000 + i;
        const Identity& identity = inDomain ? (isGroup ? store.addDomainGroup(name, sid(number))
                                                       : store.addDomainUser(name, sid(number)))
                                            : (isGroup ? store.addTreeGroup(name, "Gäste", guid(number))
                                                       : store.addTreeUser(name, "Gäste", guid(number)));
        node->trustees.set(identity, manyRights[i % std::size(manyRights)]);
    }
}

} // namespace quorvan::simulator
