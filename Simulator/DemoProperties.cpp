// SPDX-License-Identifier: GPL-3.0-or-later
#include "Simulator/DemoData.h"
#include "Simulator/DemoIdentities.h"

namespace quorvan::simulator {

namespace {

constexpr std::int64_t mebibyte = std::int64_t{1} << 20;
constexpr std::int64_t gibibyte = std::int64_t{1} << 30;

struct DemoOwner {
    const char* path;
    const char* name; ///< null: an identity that is gone
};

constexpr DemoOwner demoOwners[] = {
    {"VOL1:\\", demo::supervisor},
    {demo::selection, "jürgen.weißmann"},
    {"VOL1:\\Projects\\Aurora\\Texte", "Käthe Brüning"},
    {"VOL1:\\Projects\\Aurora\\Texte\\Grußwort.odt", "Françoise d'Aubigny"},
    {demo::fileOfNobody, nullptr},
    {"VOL1:\\Finance", "maría.quintanar"},
    {"VOL1:\\Personnel", "Renate Vogt"},
    {"VOL1:\\Archiv", "Ingeborg Ødemark"},
    {"VOL1:\\Home\\jürgen.weißmann", "jürgen.weißmann"},
};

struct DemoAttributes {
    const char* path;
    AttributeSet attributes;
};

constexpr AttributeSet keptReadOnly =
    attribute::readOnly | attribute::renameInhibit | attribute::deleteInhibit;

constexpr DemoAttributes demoAttributes[] = {
    {"VOL1:\\Projects\\Aurora\\Budget\\Q1 Kostenplan.ods", keptReadOnly | attribute::archive},
    {"VOL1:\\Projects\\Aurora\\Budget\\Q2 Kostenplan.ods", attribute::archive},
    {demo::compressedFile, attribute::compressImmediate | attribute::archive | attribute::compressed},
    {"VOL1:\\Projects\\Aurora\\Drawings\\Lumière sud.pdf", attribute::doNotCompress},
    {demo::selection, attribute::renameInhibit | attribute::deleteInhibit},
    {"VOL1:\\Personnel", attribute::hidden | attribute::immediatePurge},
    {"VOL1:\\Archiv", attribute::compressImmediate | attribute::deleteInhibit},
    {"VOL1:\\Public\\Briefkasten", attribute::immediatePurge},
};

struct DemoQuota {
    const char* path;
    DirectoryQuota quota;
};

constexpr DemoQuota demoQuotas[] = {
    {demo::limitedFolder, {20 * gibibyte, 13 * gibibyte + 512 * mebibyte}},
    {demo::unlimitedFolder, {unlimited, 740 * gibibyte}},
    {"VOL1:\\Public\\Briefkasten", {512 * mebibyte, 530 * mebibyte}},
    {"VOL1:\\Home\\jürgen.weißmann", {5 * gibibyte, 0}},
};

void addOwners(KelpServer& server, const DemoNames& known) {
    for (const DemoOwner& each : demoOwners)
        server.volumes().make(each.path)->owner =
            each.name == nullptr ? demoSid(1999) : known.at(each.name)->id;
}

/// Gives `count` users of one directory a limit each; one in nine has taken up more than that.
void addUserQuotas(KelpServer& server, IdentityKind kind, std::size_t count) {
    constexpr std::int64_t limits[] = {gibibyte, 2 * gibibyte, 512 * mebibyte, 10 * gibibyte, 50 * gibibyte};
    UserQuotas& quotas = *server.volumes().userQuotas("VOL1");
    std::size_t number = 0;
    for (const Identity& each : server.identities().all()) {
        if (each.kind != kind || !each.isUser() || number == count)
            continue;
        UserQuota& quota = quotas.of(each);
        quota.limit = limits[number % std::size(limits)];
        const auto percent =
            static_cast<std::int64_t>(number % 9 == 4 ? 104 + number % 7 : number * 37 % 100);
        quota.used = quota.limit / 100 * percent;
        ++number;
    }
}

} // namespace

void addDemoProperties(KelpServer& server, const DemoNames& known) {
    addOwners(server, known);
    for (const DemoAttributes& each : demoAttributes)
        server.volumes().make(each.path)->attributes = each.attributes;
    for (const DemoQuota& each : demoQuotas)
        server.volumes().make(each.path)->quota = each.quota;
    addUserQuotas(server, IdentityKind::activeDirectory, demo::usersWithQuota / 2);
    addUserQuotas(server, IdentityKind::morvane, demo::usersWithQuota / 2);
    server.volumes().make(demo::link)->link = Link{demo::secondHost, "DATA", "Festival Partners"};
    server.volumes().make(demo::linkOnSameServer)->link = Link{demo::host, "VOL1", "Projects\\Aurora"};
}

void addSecondDemoProperties(KelpServer& server, const DemoNames& known) {
    Node& target = *server.volumes().make(demo::linkTarget);
    target.owner = known.at("noémie.valcourt")->id;
    target.quota = {2 * gibibyte, 1800 * mebibyte};
    server.volumes().make("DATA:\\Festival Partners\\Contracts")->attributes = keptReadOnly;
    server.volumes().make(demo::linkOnLink)->link = Link{demo::host, "VOL1", "Archiv"};
}

} // namespace quorvan::simulator
