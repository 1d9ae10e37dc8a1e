// SPDX-License-Identifier: GPL-3.0-or-later
//
// How much reading a trustee list adds to what libxml2 itself needs: the whole operation, from the exchange
// to the records, against one bare event pass over the same bytes whose callbacks do nothing. They take turns
// in one run.
#include "Benchmarks/BareEventPass.h"
#include "Benchmarks/MemoryPipe.h"
#include "Quorvan/ViewModal/XMLReadWrite.h"
#include "Tests/Support/Fakes.h"

#include <cstdlib>
#include <malloc.h>

namespace quorvan {
namespace {

/// A reply as a server with both kinds of identities writes it, some 225 bytes for each trustee.
std::string trusteeReply(std::int64_t trustees) {
    std::string reply = "<fileReply><fileInfo><getFileInfo><trusteeList>";
    for (std::int64_t number = 0; number < trustees; ++number) {
        const std::string text = std::to_string(100'000 + number);
        reply += "<trusteeInfo><name objectClass=\"Users\">user" + text +
                 ".department.company</name><id>S-1-5-21-1004336348-1177238915-682003330-" + text +
                 "</id><rights><read/><write/><create/><erase/><accessControl/><fileScan/><modify/></rights>"
                 "</trusteeInfo>";
    }
    return reply +
           "</trusteeList><inheritedRightsFilter><read/></inheritedRightsFilter><effectiveRights><read/>"
           "</effectiveRights><result value=\"0\"/></getFileInfo></fileInfo></fileReply>";
}

void load(XMLReadWriteController& controller, const char* identityType, TrusteeList& trustees) {
    Rights rights;
    if (controller.initializeTrustees("VOL1:\\a", identityType, trustees, rights, rights) != "0")
        std::abort();
}

void compareLoading(benchmark::State& state, const char* identityType) {
    const test::FakeWorld world;
    const std::string reply = trusteeReply(state.range(0));
    const benchmarks::MemoryPipe pipe(reply);
    benchmarks::compare(
        state, reply.size(), [&] { benchmarks::bareEventPass(reply); },
        [&] {
            XMLReadWriteController controller;
            TrusteeList trustees;
            load(controller, identityType, trustees);
            if (trustees.size() != static_cast<std::size_t>(state.range(0)))
                std::abort();
            return trustees;
        });
    state.SetComplexityN(state.range(0));
}

void ParseAndDecode(benchmark::State& state) {
    compareLoading(state, "Morvane");
}
BENCHMARK(ParseAndDecode)
    ->Arg(10'000)
    ->Arg(100'000)
    ->Unit(benchmark::kMillisecond)
    ->UseManualTime()
    ->Complexity();

/// The tree that some decoders walk, against the same pass.
void BuildTree(benchmark::State& state) {
    const std::string reply = trusteeReply(state.range(0));
    benchmarks::compare(
        state, reply.size(), [&] { benchmarks::bareEventPass(reply); },
        [&] {
            const XMLDocument document(reply);
            if (document.error())
                std::abort();
        });
}
BENCHMARK(BuildTree)->Arg(100'000)->Unit(benchmark::kMillisecond)->UseManualTime();

/// What stays allocated, by the records that a view keeps and by the reply's entries in the controller.
void Memory(benchmark::State& state) {
    const test::FakeWorld world;
    const std::string reply = trusteeReply(state.range(0));
    const benchmarks::MemoryPipe pipe(reply);
    XMLReadWriteController controller;
    const auto allocated = [] {
        const struct mallinfo2 info = mallinfo2();
        return static_cast<double>(info.uordblks + info.hblkhd);
    };
    for ([[maybe_unused]] auto _ : state) {
        TrusteeList trustees;
        controller.dictResponse.reset();
        const double before = allocated();
        load(controller, "Morvane", trustees);
        const double with = allocated();
        controller.dictResponse.reset();
        const double after = allocated();
        const auto rows = static_cast<double>(trustees.size());
        state.counters["bytes_per_row"] = (after - before) / rows;
        state.counters["bytes_per_entry"] = (with - after) / rows;
    }
}
BENCHMARK(Memory)->Arg(100'000)->Iterations(1)->Unit(benchmark::kMillisecond);

} // namespace
} // namespace quorvan

BENCHMARK_MAIN();
