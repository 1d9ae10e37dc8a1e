// SPDX-License-Identifier: GPL-3.0-or-later
#include "Simulator/DemoIdentities.h"

#include "Simulator/DemoData.h"

namespace quorvan::simulator {

namespace {

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

void setGroups(Identity& member, std::string names, const DemoNames& known) {
    member.groups.clear();
    while (!names.empty()) {
        const std::size_t comma = names.find(", ");
        member.groups.push_back(known.at(names.substr(0, comma)));
        names.erase(0, comma == std::string::npos ? comma : comma + 2);
    }
}

} // namespace

std::string demoSid(std::size_t relative) {
    return "S-1-5-21-1794301120-902745313-2650418877-" + std::to_string(relative);
}

std::string demoGuid(std::size_t number) {
    const std::string digits = std::to_string(number);
    return "7c1e5a40-93d2-4b6f-8e21-" + std::string(12 - digits.size(), '0') + digits;
}

DemoNames addDemoIdentities(Identities& store) {
    DemoNames known;
    std::size_t number = 1100;
    for (const DemoIdentity& each : demoGroups) {
        ++number;
        known[each.name] = each.unit == nullptr ? &store.addDomainGroup(each.name, demoSid(number))
                                                : &store.addTreeGroup(each.name, each.unit, demoGuid(number));
        setGroups(*known[each.name], each.groups, known);
    }
    known[demoEveryone] = &store.addDomainGroup(demoEveryone, "S-1-1-0");
    for (const DemoIdentity& each : demoUsers) {
        ++number;
        known[each.name] = each.unit == nullptr ? &store.addDomainUser(each.name, demoSid(number))
                                                : &store.addTreeUser(each.name, each.unit, demoGuid(number));
        setGroups(*known[each.name], each.groups, known);
        if (each.unit == nullptr)
            known[each.name]->groups.push_back(known[demoEveryone]);
    }
    return known;
}

} // namespace quorvan::simulator
