// SPDX-License-Identifier: GPL-3.0-or-later
#include "Simulator/DemoData.h"

namespace quorvan::simulator {

namespace {

constexpr const char* suffix = "DC=nordhavn,DC=example";

constexpr const char* northernGivenNames[] = {"åse",   "birgir",  "dagný", "einar", "fríða",
                                              "gísli", "hjördís", "íris",  "jón",   "kåre",
                                              "lærke", "mårten",  "óðinn", "þórunn"};
constexpr const char* northernFamilyNames[] = {"ågren",   "bjørnsdal", "fjellvær",   "hålogaland",
                                               "nyström", "sæther",    "þrastarson", "ødegård"};
constexpr const char* crews[] = {"Havnevakt", "Lasting & Lossing", "Tollklarering", "Fyrvæsen",
                                 "Regnskap",  "Slepebåter",        "Østkai",        "Nattevakt"};

Identity& add(Identities& store, std::string name, const char* objectClass, std::size_t number) {
    Identity identity;
    identity.distinguishedName = std::string("CN=").append(name).append(",CN=Users,").append(suffix);
    identity.name = std::move(name);
    identity.id = "S-1-5-21-310277445-4071925506-88213697-" + std::to_string(number);
    identity.objectClass = objectClass;
    identity.domain = demo::secondForest;
    return store.add(std::move(identity));
}

} // namespace

void addDemoForest(Identities& store) {
    std::vector<const Identity*> groups;
    for (std::size_t i = 0; i < demo::secondForestGroups - 1; ++i) {
        const std::size_t shift = i / std::size(crews);
        std::string name = crews[i % std::size(crews)];
        if (shift > 0)
            name += " " + std::to_string(shift + 1);
        groups.push_back(&add(store, std::move(name), "group", 2000 + i));
    }
    for (std::size_t i = 0; i < demo::secondForestUsers; ++i) {
        std::string name = northernGivenNames[i % std::size(northernGivenNames)];
        name.append(".").append(
            northernFamilyNames[(i / std::size(northernGivenNames)) % std::size(northernFamilyNames)]);
        add(store, std::move(name), "user", 5000 + i).groups = {groups[i % groups.size()]};
    }
    store.add({IdentityKind::activeDirectory,
               demo::groupWithoutSid,
               "",
               "group",
               std::string("CN=").append(demo::groupWithoutSid).append(",CN=Users,").append(suffix),
               demo::secondForest,
               {}});
}

} // namespace quorvan::simulator
