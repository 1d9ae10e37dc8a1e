// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "Common/Fatal.h"
#include "Common/ServerDetails.h"
#include "Common/Utf8.h"
#include "Quorvan/ViewModal/XMLReadWrite.h"
#include "Tests/Support/Fakes.h"

#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>

namespace quorvan::test {

/// Stops the fuzzer when something does not hold that must hold for every input.
inline void expect(bool holds) {
    if (!holds)
        __builtin_trap();
}

/// Runs something that may come to one of this program's own fatal ends, which are no finding.
template <class Work>
void survive(Work&& work) {
    try {
        work();
    } catch (const FatalExit&) { // NOLINT(bugprone-empty-catch)
    }
}

inline std::string_view textOf(const std::uint8_t* data, std::size_t size) {
    return {reinterpret_cast<const char*>(data), size};
}

/// A selection on a server with an open pipe, and nothing in the log. Static: one for all inputs.
class FuzzWorld {
public:
    FuzzWorld() {
        setLogSink([](std::string_view) {});
        world.defaults->values = {
            {"serverIP", "srv1"}, {"selectedPath", "/Volumes/VOL1/a"}, {"mappedPath", "VOL1:\\a"}};
        world.keychain->items["srv1"] = {"bob", "secret"};
        ServerDetails::serverInfo();
        controller = std::make_unique<XMLReadWriteController>();
    }

    /// Has the pipe answer with this, in pieces as the server cuts them, and forgets what was asked before.
    void reply(std::string_view text) {
        world.network->calls.clear();
        world.network->pieces.clear();
        for (std::size_t at = 0; at < text.size(); at += XMLReadWriteController::MEM_SIZE)
            world.network->pieces.emplace_back(text.substr(at, XMLReadWriteController::MEM_SIZE));
        world.directory->openedNodes.clear();
        world.directory->queries.clear();
        world.directory->prefetches.clear();
        world.directory->records = {{"S-1-1-0", {everyone}}};
        XMLReadWriteController::fileDes = 7;
    }

    FakeWorld world;
    std::unique_ptr<XMLReadWriteController> controller;

private:
    std::shared_ptr<FakeRecord> everyone =
        std::make_shared<FakeRecord>(std::map<std::string, std::vector<std::string>>{
            {"dsAttrTypeStandard:RecordName", {"everyone"}},
            {"dsAttrTypeStandard:PrimaryNTDomain", {"KELP"}},
            {"dsAttrTypeStandard:RecordType", {"dsRecTypeStandard:Groups"}}});
};

} // namespace quorvan::test
