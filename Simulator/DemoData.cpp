// SPDX-License-Identifier: GPL-3.0-or-later
#include "Simulator/DemoData.h"

#include "Simulator/DemoIdentities.h"

namespace quorvan::simulator {

namespace {

constexpr Mask reader = right::read | right::fileScan;
constexpr Mask dropBox = right::create | right::write;
constexpr Mask author = reader | right::write | right::create;
constexpr Mask editor = author | right::modify | right::erase;
constexpr Mask keeper = editor | right::accessControl;

struct DemoTrustee {
    const char* path;
    const char* name;
    Mask rights;
};

constexpr DemoTrustee demoTrustees[] = {
    {"VOL1:\\Projects", "Festival Team", reader},
    {"VOL1:\\Projects", "Redaktion", reader},
    {demo::selection, "Festival Team", editor},
    {demo::selection, "Stage & Lighting", author},
    {demo::selection, "Ticketing", reader},
    {demo::selection, "Finance", reader},
    {demo::selection, "Auditors", right::read | right::fileScan | right::accessControl},
    {demo::selection, "External Partners", dropBox},
    {demo::selection, demoEveryone, right::fileScan},
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
    {"VOL1:\\Public", demoEveryone, reader},
    {"VOL1:\\Public", "Förderverein", reader},
    {"VOL1:\\Public\\Briefkasten", demoEveryone, dropBox},
    {"VOL1:\\Public\\Briefkasten", "Hausmeister", editor},
};

constexpr DemoTrustee secondTrustees[] = {
    {demo::linkTarget, "External Partners", author},
    {demo::linkTarget, "Festival Team", reader},
    {demo::linkTarget, "çağla.demirsoy", editor},
    {demo::linkTarget, "noémie.valcourt", keeper},
    {demo::linkTarget, "Förderverein", reader},
    {demo::linkTarget, "Ana Lúcia Teixeira", right::supervisor},
    {"DATA:\\Festival Partners\\Contracts", "Finance", editor},
    {"DATA:\\Festival Partners\\Contracts", "External Partners", right::fileScan},
    {"DATA:\\Festival Partners\\Plakatentwürfe", "Print Production", editor},
    {"DATA:\\Backup", "Auditors", reader},
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

/// The accounts have the same rights on the root of every volume.
DemoNames addIdentitiesAndAccounts(KelpServer& server, const char* root = "VOL1:\\") {
    DemoNames known = addDemoIdentities(server.identities());
    const auto logIn = [&](const char* user, const char* name, Mask rights) {
        server.addAccount(user, demo::password, *known.at(name));
        server.setTrustee(root, *known.at(name), rights);
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
    const DemoNames known = addIdentitiesAndAccounts(server);
    for (const DemoTrustee& each : demoTrustees)
        server.setTrustee(each.path, *known.at(each.name), each.rights);
    for (const DemoFilter& each : demoFilters)
        server.setFilter(each.path, each.filter);
    for (const char* path : demoPaths)
        server.addPath(path);
    addManyTrustees(server, demo::crowded, 200, IdentityKind::activeDirectory);
    addManyTrustees(server, demo::crowded, 200, IdentityKind::morvane);
    addDemoProperties(server, known);
}

void addSecondDemoData(KelpServer& server) {
    const DemoNames known = addIdentitiesAndAccounts(server, "DATA:\\");
    for (const DemoTrustee& each : secondTrustees)
        server.setTrustee(each.path, *known.at(each.name), each.rights);
    addSecondDemoProperties(server, known);
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
        const Identity& identity = inDomain ? (isGroup ? store.addDomainGroup(name, demoSid(number))
                                                       : store.addDomainUser(name, demoSid(number)))
                                            : (isGroup ? store.addTreeGroup(name, "Gäste", demoGuid(number))
                                                       : store.addTreeUser(name, "Gäste", demoGuid(number)));
        node->trustees.set(identity, manyRights[i % std::size(manyRights)]);
    }
}

} // namespace quorvan::simulator
