// SPDX-License-Identifier: GPL-3.0-or-later
//
// What the large replies and requests cost: reading the rights of all paths and the quotas of all users, and
// writing quota changes. Each is the whole operation, from the exchange to the records, and is compared with
// one bare event pass over the same bytes. "memory" is the most that the reply and everything made of it take
// at once, in sizes of the reply.
#include "Benchmarks/BareEventPass.h"
#include "Benchmarks/Measure.h"
#include "Benchmarks/MemoryPipe.h"
#include "Benchmarks/PeakMemory.h"
#include "Quorvan/Modal/Constants.h"
#include "Quorvan/ViewModal/XMLReadWrite.h"
#include "Tests/Support/Fakes.h"

#include <bit>
#include <cstdint>
#include <functional>

namespace quorvan {
namespace {

using Texts = std::vector<std::string>;

std::string sid(std::int64_t number) {
    return "S-1-5-21-1794301120-902745313-2650418877-" + std::to_string(100'000 + number);
}

/// Compares `work` on a reply with a bare pass over it, and measures the memory of one more run.
template <class Work>
void compareOn(benchmark::State& state, const std::string& reply, Work&& work) {
    benchmarks::compare(
        state, reply.size(), [&] { benchmarks::bareEventPass(reply); }, work);
    const auto size = static_cast<double>(reply.size());
    state.counters["memory"] = static_cast<double>(benchmarks::peakGrowth(work)) / size;
    state.SetComplexityN(state.range(0));
}

/// Files with five trustees each, out of a thousand identities.
std::string allPathsReply(std::int64_t files) {
    std::string reply = R"(<adminReply><result value="0"><description>success</description></result>)";
    for (std::int64_t file = 0; file < files; ++file) {
        reply += "<file><rightsInfo><trusteeList>";
        for (std::int64_t trustee = 0; trustee < 5; ++trustee) {
            const std::int64_t identity = (file * 7 + trustee * 211) % 1000;
            reply += "<trusteeInfo><name>user" + std::to_string(identity) + "</name><id>" + sid(identity) +
                     "</id><rights><read/><write/><fileScan/></rights></trusteeInfo>";
        }
        reply += "</trusteeList></rightsInfo><standardInfo><attributes></attributes></standardInfo>"
                 "<path>VOL1:\\Projects\\Aurora\\Drawings\\file" +
                 std::to_string(file) + "</path></file>";
    }
    return reply + "</adminReply>";
}

Texts identities(std::int64_t count) {
    Texts ids;
    for (std::int64_t number = 0; number < count; ++number)
        ids.push_back(sid(number * 1000 / count));
    return ids;
}

/// Arguments: files, identities.
void FindPathsOfIdentities(benchmark::State& state) {
    const std::string reply = allPathsReply(state.range(0));
    const Texts wanted = identities(state.range(1));
    const test::FakeWorld world;
    const benchmarks::MemoryPipe pipe(reply);
    compareOn(state, reply, [&] {
        XMLReadWriteController controller;
        std::vector<IdentityFileRights> rows;
        controller.getFSRights("VOL1:\\a", wanted, rows, "Morvane");
        if (rows.empty())
            std::abort();
        return rows;
    });
}
BENCHMARK(FindPathsOfIdentities)
    ->Args({10'000, 1})
    ->Args({50'000, 1})
    ->Args({10'000, 50})
    ->Args({50'000, 50})
    ->Unit(benchmark::kMillisecond)
    ->UseManualTime();

/// The same reply for a view that shows every trustee: status, entries and records.
void ListDirectoryTrustees(benchmark::State& state) {
    const test::FakeWorld world;
    const std::string reply = allPathsReply(state.range(0));
    const benchmarks::MemoryPipe pipe(reply);
    compareOn(state, reply, [&] {
        XMLReadWriteController controller;
        std::vector<DirectoryRights> rows;
        if (controller.getIRRequest("VOL1:\\a", rows, "Morvane") != "0")
            std::abort();
        return rows;
    });
}
BENCHMARK(ListDirectoryTrustees)->Arg(10'000)->Arg(50'000)->Unit(benchmark::kMillisecond)->UseManualTime();

/// One path and one name of a hundred thousand characters that a hostile reply gives once, for all its
/// trustees.
void ListTrusteesOfOneLongPath(benchmark::State& state) {
    const std::string longText(100'000, 'x');
    std::string reply =
        R"(<adminReply><result value="0"/><file><rightsInfo><trusteeList><trusteeInfo><name>)" + longText +
        "</name><id>0</id><rights/></trusteeInfo>";
    for (std::int64_t trustee = 1; trustee < state.range(0); ++trustee)
        reply += "<trusteeInfo><id>" + std::to_string(trustee) + "</id></trusteeInfo>";
    reply += "</trusteeList></rightsInfo><path>" + longText + "</path></file></adminReply>";
    const test::FakeWorld world;
    const benchmarks::MemoryPipe pipe(reply);
    compareOn(state, reply, [&] {
        XMLReadWriteController controller;
        std::vector<DirectoryRights> rows;
        if (controller.getIRRequest("VOL1:\\a", rows, "Morvane") != "0")
            std::abort();
        return rows;
    });
}
BENCHMARK(ListTrusteesOfOneLongPath)
    ->Arg(1'000)
    ->Arg(10'000)
    ->Arg(100'000)
    ->Unit(benchmark::kMillisecond)
    ->UseManualTime();

/// A directory in memory: records one after the other, and a table of their places by the hashes of their
/// SIDs.
class MemoryDirectory final : public platform::DirectoryServices, public platform::DirectoryNode {
public:
    explicit MemoryDirectory(std::int64_t users)
        : places_(std::bit_ceil(2 * static_cast<std::size_t>(users))) {
        records_->reserve(static_cast<std::size_t>(users));
        for (std::int64_t user = 0; user < users; ++user) {
            records_->emplace_back(sid(user), "user" + std::to_string(user));
            placeOf(records_->back().sid_) = static_cast<std::uint32_t>(records_->size());
        }
    }
    std::optional<std::map<std::string, std::string>> activeDirectoryState() override {
        return std::map<std::string, std::string>{{"NodeName", "/Active Directory/KELP"}};
    }
    std::optional<Texts> nodeNames() override { return Texts{}; }
    std::shared_ptr<DirectoryNode> openNode(const std::string&) override { return openNetworkNode(); }
    std::shared_ptr<DirectoryNode> openNetworkNode() override {
        return std::shared_ptr<DirectoryNode>(std::shared_ptr<void>(), this);
    }
    std::optional<std::vector<platform::ManagedIdentity>>
    managedIdentities(platform::IdentityClass) override {
        return std::nullopt;
    }
    void prefetch(const Texts&) override {}
    std::optional<platform::DirectoryRecords> query(const platform::DirectoryQuery& query) override {
        platform::DirectoryRecords found;
        if (const std::uint32_t number = placeOf(query.values.front()); number != 0)
            found.emplace_back(records_, &(*records_)[number - 1]);
        return found;
    }

private:
    struct Record final : platform::DirectoryRecord {
        Record(std::string sid, std::string name)
            : sid_(std::move(sid))
            , name_(std::move(name)) {}
        std::optional<Texts> values(const std::string& attribute) override {
            return Texts{*first(attribute)};
        }
        std::optional<std::string> first(const std::string& attribute) override {
            return attribute == "dsAttrTypeStandard:PrimaryNTDomain" ? "KELP" : name_;
        }
        std::string sid_;
        std::string name_;
    };
    /// Where the number of a record, from 1, stands or would stand; 0 where there is none.
    std::uint32_t& placeOf(std::string_view wanted) {
        std::size_t place = std::hash<std::string_view>()(wanted) % places_.size();
        while (places_[place] != 0 && (*records_)[places_[place] - 1].sid_ != wanted)
            place = (place + 1) % places_.size();
        return places_[place];
    }
    std::shared_ptr<std::vector<Record>> records_ = std::make_shared<std::vector<Record>>();
    std::vector<std::uint32_t> places_;
};

std::string quotaReply(std::int64_t users, bool named) {
    std::string reply =
        R"(<adminReply><userQuota><browse><result value="0"><description>success</description>)"
        "</result><userList>";
    for (std::int64_t user = 0; user < users; ++user) {
        reply += "<user>";
        if (named)
            reply += "<userName>CN=user" + std::to_string(user) + ".OU=unit.O=org</userName>";
        reply += "<id>" + sid(user) + "</id><quota>53687091200</quota><spaceUsed>" +
                 std::to_string(9'000'000'000 + user * 4096) + "</spaceUsed></user>";
    }
    return reply + "</userList></browse></userQuota></adminReply>";
}

void listQuotas(benchmark::State& state, const char* identityType) {
    const std::string reply = quotaReply(state.range(0), identityType == identityMorvane);
    const benchmarks::MemoryPipe pipe(reply);
    compareOn(state, reply, [&] {
        XMLReadWriteController controller;
        UserQuotaList rows;
        controller.getUserQuotaInfo("VOL1:\\a", rows, identityType);
        if (rows.size() != static_cast<std::size_t>(state.range(0)))
            std::abort();
        return rows;
    });
}

void ListQuotas(benchmark::State& state) {
    const test::FakeWorld world;
    listQuotas(state, "Morvane");
}
BENCHMARK(ListQuotas)->Arg(10'000)->Arg(100'000)->Unit(benchmark::kMillisecond)->UseManualTime();

/// The same with names from Active Directory. "directory" is what the directory alone takes to answer for
/// every user, in bare event passes.
void ListQuotasNamedByDirectory(benchmark::State& state) {
    const test::FakeWorld world;
    platform::Services services = platform::services();
    const auto directory = std::make_shared<MemoryDirectory>(state.range(0));
    services.directory = directory;
    const platform::ScopedServices installed(services);
    listQuotas(state, "ActiveDirectory");

    const double begin = benchmarks::threadSeconds();
    platform::DirectoryQuery query;
    for (std::int64_t user = 0; user < state.range(0); ++user) {
        query.values = {sid(user)};
        const auto records = directory->query(query);
        for (const char* attribute : {"dsAttrTypeStandard:PrimaryNTDomain", "dsAttrTypeStandard:RecordName"})
            benchmark::DoNotOptimize(records->front()->first(attribute));
    }
    state.counters["directory"] = 1e3 * (benchmarks::threadSeconds() - begin) / state.counters["baseline_ms"];
}
BENCHMARK(ListQuotasNamedByDirectory)
    ->Arg(10'000)
    ->Arg(100'000)
    ->Unit(benchmark::kMillisecond)
    ->UseManualTime();

/// Writing the requests for changed quotas, against a bare pass over them.
void BuildQuotaChanges(benchmark::State& state) {
    UserQuotaList rows;
    for (std::int64_t user = 0; user < state.range(0); ++user) {
        rows.push_back(
            std::make_shared<UserQuotaData>("", sid(user), "Users", user * 4096, 0, "ActiveDirectory"));
        rows.back()->action = "MODIFY";
    }
    const std::string text = XMLReadWriteController::createSetUserQuotaRequest("VOL1", rows, "");
    compareOn(state, text, [&] {
        for (std::size_t begin = 0; begin < rows.size(); begin += 300) {
            const auto batch =
                std::span(rows).subspan(begin, std::min<std::size_t>(300, rows.size() - begin));
            benchmark::DoNotOptimize(XMLReadWriteController::createSetUserQuotaRequest("VOL1", batch, ""));
        }
    });
}
BENCHMARK(BuildQuotaChanges)->Arg(10'000)->Arg(100'000)->Unit(benchmark::kMillisecond)->UseManualTime();

} // namespace
} // namespace quorvan

BENCHMARK_MAIN();
