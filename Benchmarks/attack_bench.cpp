// SPDX-License-Identifier: GPL-3.0-or-later
//
// What hostile replies cost: the whole operation, from the exchange to the records, against a bare event pass
// over a harmless reply of the same size. "time" is in bare passes, "memory" in sizes of the reply, and
// "growth" is the exponent with which the time grows over three sizes: 1 is linear, 2 the square. "log"
// counts the lines that are logged. What is above its bound has a "!".
#include "Benchmarks/BareEventPass.h"
#include "Benchmarks/Measure.h"
#include "Benchmarks/MemoryPipe.h"
#include "Benchmarks/PeakMemory.h"
#include "Common/Log.h"
#include "Quorvan/Modal/Constants.h"
#include "Quorvan/Toolkit/ShownText.h"
#include "Quorvan/ViewModal/XMLReadWrite.h"
#include "Tests/Support/Fakes.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <cstdio>
#include <functional>

namespace quorvan {
namespace {

std::string repeated(std::string_view text, std::size_t times) {
    std::string result;
    result.reserve(text.size() * times);
    for (std::size_t time = 0; time < times; ++time)
        result += text;
    return result;
}

/// "<BEFORE 0 AFTER><BEFORE 1 AFTER>…"
std::string numbered(std::string_view before, std::size_t count, std::string_view after) {
    std::string result;
    for (std::size_t number = 0; number < count; ++number)
        (result += before).append(std::to_string(number)).append(after);
    return result;
}

/// A list of trustees as a server writes it, of about a number of bytes.
std::string harmlessReply(std::size_t bytes) {
    constexpr std::string_view trustee =
        "<trusteeInfo><name "
        "objectClass=\"Users\">user.department.company</name><id>S-1-5-21-1004336348-1177238915"
        "</id><rights><read/><write/><create/><erase/><modify/></rights></trusteeInfo>";
    return "<r>" + repeated(trustee, bytes / trustee.size() + 1) + "</r>";
}

std::string inFiles(const std::string& trustees, const std::string& path) {
    return R"(<r><result value="0"/><file><rightsInfo><trusteeList>)" + trustees +
           "</trusteeList></rightsInfo><path>" + path + "</path></file></r>";
}

std::string inUserList(const std::string& rows) {
    return R"(<r><userQuota><browse><result value="0"/><userList>)" + rows +
           "</userList></browse></userQuota></r>";
}

void listDirectories(const std::string&) {
    XMLReadWriteController controller;
    std::vector<DirectoryRights> rows;
    controller.getIRRequest("VOL1:\\a", rows, std::string(identityMorvane));
    benchmark::DoNotOptimize(rows);
}

void listPaths(const std::string&) {
    XMLReadWriteController controller;
    std::vector<IdentityFileRights> rows;
    controller.getFSRights("VOL1:\\a", {"1"}, rows, std::string(identityMorvane));
    benchmark::DoNotOptimize(rows);
}

template <const auto& identityType>
void listQuotas(const std::string&) {
    XMLReadWriteController controller;
    UserQuotaList rows;
    controller.getUserQuotaInfo("VOL1:\\a", rows, std::string(identityType));
    benchmark::DoNotOptimize(rows);
}

/// What a list, a field or a tip shows of a text of the server.
void show(const std::string& text) {
    benchmark::DoNotOptimize(shownText(text));
}

struct Attack {
    const char* name;
    std::size_t size; ///< the largest of three, each half of the next
    std::string (*reply)(std::size_t size);
    void (*operation)(const std::string& reply); ///< from a pipe that answers it
    double mostMemory;                           ///< the bound, in sizes of the reply
};

const std::string longText(100'000, 'x');

const Attack attacks[] = {
    {"one path of 100 kB, many trustees", 20'000,
     [](std::size_t size) {
         return inFiles("<trusteeInfo><name>n</name><id>0</id><rights/></trusteeInfo>" +
                            numbered("<trusteeInfo><id>", size, "</id></trusteeInfo>"),
                        longText);
     },
     listDirectories, 8},
    {"one path of 100 kB, rights of one identity", 20'000,
     [](std::size_t size) { return inFiles(repeated("<t><id>1</id><rights/></t>", size), longText); },
     listPaths, 8},
    {"one name of 100 kB, many later entries", 20'000,
     [](std::size_t size) {
         return inFiles("<trusteeInfo><name>" + longText + "</name><id>0</id><rights/></trusteeInfo>" +
                            numbered("<trusteeInfo><id>", size, "</id></trusteeInfo>"),
                        "p");
     },
     listDirectories, 8},
    {"one element with 100,000 attributes", 100'000,
     [](std::size_t size) { return "<r" + numbered(" a", size, "=\"1\"") + "/>"; }, listDirectories, 20},
    {"3,000,000 different names of elements", 3'000'000,
     [](std::size_t size) { return "<r>" + numbered("<n", size, "/>") + "</r>"; }, listDirectories, 20},
    {"a document type with 1,000,000 entities", 1'000'000,
     [](std::size_t size) { return "<!DOCTYPE r [" + numbered("<!ENTITY e", size, " \"x\">") + "]><r/>"; },
     listDirectories, 20},
    {"a document type with an enumeration", 200'000,
     [](std::size_t size) {
         return "<!DOCTYPE r [<!ATTLIST r a (" + numbered("v", size, "|") + "w) #IMPLIED>]><r/>";
     },
     listDirectories, 20},
    {"10,000,000 quota rows of nothing", 10'000'000,
     [](std::size_t size) { return inUserList(repeated("<a/>", size)); }, listQuotas<identityMorvane>, 20},
    {"2,000,000 quota rows of one letter", 2'000'000,
     [](std::size_t size) { return inUserList(repeated("<a><id>1</id></a>", size)); },
     listQuotas<identityMorvane>, 20},
    {"2,000,000 entries of nothing", 2'000'000,
     [](std::size_t size) { return R"(<r><result value="0"/>)" + repeated("<file/>", size) + "</r>"; },
     listDirectories, 20},
    {"1,000,000 elements in each other", 1'000'000,
     [](std::size_t size) {
         return "<r>" + repeated("<a>", size) + repeated("</a>", size) + "<result value=\"0\"/></r>";
     },
     listDirectories, 20},
    {"1,000,000 groups of nothing", 1'000'000,
     [](std::size_t size) {
         return R"(<r><result value="0"/><trellObject><getAttribute><result value="0"/><trellAttribute>)" +
                repeated("<a/>", size) + "</trellAttribute></getAttribute></trellObject></r>";
     },
     [](const std::string&) {
         XMLReadWriteController controller;
         std::vector<Group> groups;
         controller.getGroupMemberShip_Morvane("", groups, "O=a", "CN=b");
         benchmark::DoNotOptimize(groups);
     },
     20},
    {"100,000 quota rows on a machine that is not bound", 100'000,
     [](std::size_t size) { return inUserList(numbered("<u><id>S-1-", size, "</id></u>")); },
     listQuotas<identityActiveDirectory>, 20},
    {"shown: a name of 1 MB", 1'000'000, [](std::size_t size) { return std::string(size, 'n'); }, show, 20},
    {"shown: one letter under 500,000 accents", 500'000,
     [](std::size_t size) { return std::string("e").append(repeated("\xCC\x81", size)); }, show, 20},
    {"shown: a tip of 10 MB of controls", 10'000'000,
     [](std::size_t size) { return std::string(size, '\x01'); }, show, 20},
};

double seconds(const std::function<void()>& what) {
    const double begin = benchmarks::threadSeconds();
    what();
    return benchmarks::threadSeconds() - begin;
}

/// The exponent of a power law through three points, by least squares over the logarithms. The sizes double,
/// so that the one in the middle weighs nothing.
double growth(const std::array<double, 3>& times) {
    return std::log2(times[2] / times[0]) / 2;
}

void run(const Attack& attack) {
    std::array<double, 3> times{};
    double bare = 0;
    double memory = 0;
    std::size_t bytes = 0;
    std::size_t lines = 0;
    for (std::size_t step = 0; step < times.size(); ++step) {
        const std::string reply = attack.reply(attack.size >> (times.size() - 1 - step));
        const benchmarks::MemoryPipe pipe(reply);
        const auto operation = [&] { attack.operation(reply); };
        times[step] = std::min({seconds(operation), seconds(operation)});
        if (step + 1 < times.size())
            continue;
        bytes = reply.size();
        memory = static_cast<double>(benchmarks::peakGrowth(operation)) / static_cast<double>(bytes);
        const std::string harmless = harmlessReply(bytes);
        bare = seconds([&] { benchmarks::bareEventPass(harmless); });
        const LogSink before = setLogSink([&lines](std::string_view) { ++lines; });
        operation();
        setLogSink(before);
    }
    std::printf("%-50s %8.2f MB %9.1f ms %7.2f %8.2f %6.0f %s %7.2f %6zu\n", attack.name,
                1e-6 * static_cast<double>(bytes), 1e3 * times.back(), times.back() / bare, memory,
                attack.mostMemory, memory <= attack.mostMemory ? "  " : "! ", growth(times), lines);
    std::fflush(stdout);
}

} // namespace
} // namespace quorvan

int main() {
    const quorvan::test::FakeWorld world;
    world.directory->state.reset(); // a machine that belongs to no directory
    std::printf("%-50s %11s %12s %7s %8s %6s %10s %6s\n", "attack", "reply", "took", "time", "memory",
                "bound", "growth", "log");
    for (const quorvan::Attack& attack : quorvan::attacks)
        quorvan::run(attack);
}
