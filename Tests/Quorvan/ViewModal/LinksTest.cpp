// SPDX-License-Identifier: GPL-3.0-or-later
#include "Tests/Quorvan/ViewModal/Session.h"

#include <regex>

namespace quorvan::test {
namespace {

/// Servers whose pipes answer by a script: with a status that every operation finds where it looks for its
/// own, "SERVER VOLUME PATH" for where a link leads, a reply as it stands, or "lost" in the middle of one.
struct ScriptedNetwork : FakeNetwork {
    Texts wire; ///< "context SERVER", and "SERVER/PIPE PATH …" for a pipe and the paths that were asked for
    std::deque<std::string> replies;
    std::string request; ///< the last one
    std::string closed;  ///< the pipe that cannot be opened
    int opened = 0;

    platform::MountResult mount(const std::string& url, const std::string&, const platform::Secret&,
                                const platform::MountOptions&) override {
        return {0, {"/Volumes/" + url.substr(6, url.find('/', 6) - 6)}};
    }
    int createContext(const std::string& server) override {
        wire.push_back("context " + server);
        return contextError;
    }
    int open(const std::string& path) override {
        wire.push_back(path.substr(9));
        opened += wire.back() == closed ? 0 : 1;
        return wire.back() == closed ? -1 : 7;
    }
    ssize_t write(int, const void* data, std::size_t size) override {
        request.assign(static_cast<const char*>(data), size);
        const std::size_t path = std::min(request.find("V:"), request.find("D:"));
        wire.back() += " " + request.substr(path, request.find('<', path) - path);
        loss = replies.front() == "lost" ? 104 : 0;
        pieces = {replyFor(loss != 0 ? "0" : replies.front())};
        replies.pop_front();
        return static_cast<ssize_t>(size);
    }
    static std::string replyFor(const std::string& text) {
        std::istringstream words(text);
        std::string server, volume, path;
        words >> server >> volume >> path;
        if (text.find('<') != std::string::npos)
            return text;
        if (volume.empty())
            return replyWith(text);
        return "<r><result value=\"0\"/><readLink><junction><server>" + server + "</server><volumeName>" +
               volume + "</volumeName><pathName>" + path + "</pathName></junction></readLink></r>";
    }
};

class Links : public Session {
protected:
    Links() {
        platform::Services changed = platform::services();
        changed.network = network;
        installed.emplace(changed);
    }
    void start(const std::string& replies) {
        at = "a";
        path = R"(V:\d\l\f)";
        trustees = {std::make_shared<Trustees>()};
        network->wire.clear();
        network->opened = 0;
        std::istringstream stream(replies);
        for (std::string reply; std::getline(stream, reply, ',');)
            network->replies.push_back(reply);
    }
    std::int32_t readTrustees() {
        return controller.initializeTrusteesHandleDFS(at, trustees, path, rights, rights, mapped, "Morvane");
    }
    /// The log's lines that match.
    std::string lines(const char* expression) {
        const std::regex wanted(expression);
        Texts all = log.take();
        std::erase_if(all, [&](const std::string& line) { return !std::regex_match(line, wanted); });
        return joined(all);
    }

    std::shared_ptr<ScriptedNetwork> network = std::make_shared<ScriptedNetwork>();
    std::optional<platform::ScopedServices> installed;
    TrusteeList trustees;
    Rights rights;
    std::string at;
    std::string path;
    std::string mapped = R"(V:\d\l)";
};

/// The first request is left out of the table: it is the same for all.
TEST_F(Links, AreFollowedStepByStep) {
    for (const auto& [why, replies, outcome, wire, complaints, closed, contextError] : table<7>(R"(
success | 0 | 0 a V:\d\l\f
counts as success | 20407 | 0 a V:\d\l\f
another failure | 5 | 1 a V:\d\l\f | | Unable to get trustees : error returned: 5
a link | 20429,b D s,0 | 0 b D:\s\f | a/ZelSmbPipe V:\d\l > context b > b/FilesCmdPipe D:\s\f
to a whole volume by a full host name | 20008,b.kelp.example D,20407 | 0 b D:\f
    | a/ZelSmbPipe V:\d\l > context b > b/FilesCmdPipe D:\f
asked for again with the selected path | 20429,20156,b D s,0 | 0 b D:\s\f
    | a/ZelSmbPipe V:\d\l V:\d\l\f > context b > b/FilesCmdPipe D:\s\f
walk | 20429,20156,30006,30005,b D s,0 | 0 b D:\s\f | a/ZelSmbPipe V:\d\l V:\d\l\f > a/ZelSmbPipe V:\d >
    a/ZelSmbPipe V:\d\l > context b > b/FilesCmdPipe D:\s\f | Resolved path V:\d\l\f with error: 30005
walk over two links | 20429,30006,b D x,c D y,0 | 0 c D:\y\f | a/ZelSmbPipe V:\d\l > a/ZelSmbPipe V:\d >
    context b > b/ZelSmbPipe D:\x\l > context c > c/FilesCmdPipe D:\y\f
walk that ends on what is no link | 20429,30006,b D x,30005 | 0 b D:\x\l\f
    | a/ZelSmbPipe V:\d\l > a/ZelSmbPipe V:\d > context b > b/ZelSmbPipe D:\x\l
    | Resolved path D:\x\l\f with error: 30005 > Unable to get DFS Path Info : error returned: 30005
walk that meets another failure | 20429,30006,9 | 0 a V:\d\l\f | a/ZelSmbPipe V:\d\l > a/ZelSmbPipe V:\d
    | Resolved path V:\d\l\f with error: 9 > Unable to get DFS Path Info : error returned: 9
walk whose next server has no link pipe | 20429,30006,b D x,0 | 0 b D:\x\l\f
    | a/ZelSmbPipe V:\d\l > a/ZelSmbPipe V:\d > context b > b/ZelSmbPipe > b/FilesCmdPipe D:\x\l\f
    | Unable to open pipe b - /ZelSmbPipe | b/ZelSmbPipe
walk to a server that is refused | 20429,30006,b D x,0 | 77 b D:\x\l\f
    | a/ZelSmbPipe V:\d\l > a/ZelSmbPipe V:\d > context b > b/FilesCmdPipe D:\x\l\f
    | Unable to create context for DFS target server, error returned: 77 >
    Unable to get DFS Path Info : error returned: 0 | | 77
the same server needs no context | 20429,a D s,0 | 0 a D:\s\f | a/ZelSmbPipe V:\d\l > a/FilesCmdPipe D:\s\f
    | | | 77
no link pipe | 20429 | 0 a V:\d\l\f | a/ZelSmbPipe | | a/ZelSmbPipe
no XML | 20429,x< | 0 a V:\d\l\f | a/ZelSmbPipe V:\d\l | Error parsing KELP Reply - line 1: Start tag expected,
    '<' not found > Unable to get DFS Path Info : error returned: -1
no status | 20429,<r><result x=""/></r> | 0 a V:\d\l\f | a/ZelSmbPipe V:\d\l
    | Unable to get DFS Path Info : error returned: -1
the target server is refused | 20429,b D s | 77 b D:\s\f | a/ZelSmbPipe V:\d\l > context b
    | Unable to create context for DFS target server, error returned: 77 | | 77
no pipe on the target at | 20429,b D s | 0 b D:\s\f
    | a/ZelSmbPipe V:\d\l > context b > b/FilesCmdPipe | openPipe failed. | b/FilesCmdPipe
the code of a link there | 20429,b D s,20429 | 0 b D:\s\f | a/ZelSmbPipe V:\d\l > context b >
    b/FilesCmdPipe D:\s\f | Unable to get trustees on DFS path : error returned: 20429
lost | lost | 104 a V:\d\l\f | | Unable to get trustees : error returned: 104
lost on the way | 20429,lost | 104 a V:\d\l\f | a/ZelSmbPipe V:\d\l | Unable to get DFS Path Info : error returned: 104
lost in the walk | 20429,30006,lost | 104 a V:\d\l\f | a/ZelSmbPipe V:\d\l > a/ZelSmbPipe V:\d
    | Resolved path V:\d\l\f with error: 104 > Unable to get DFS Path Info : error returned: 104
lost there | 20429,b D s,lost | 104 b D:\s\f | a/ZelSmbPipe V:\d\l > context b > b/FilesCmdPipe D:\s\f
    | Unable to get trustees on DFS path : error returned: 104
to a request | 20429,b D s&lt;/fileName&gt; | 0 a V:\d\l\f | a/ZelSmbPipe V:\d\l | Error parsing KELP Reply - the link
    leads to no server or path > Unable to get DFS Path Info : error returned: -1
to an entity | 20429,b D&amp;amp; | 0 a V:\d\l\f | a/ZelSmbPipe V:\d\l | Error parsing KELP Reply - the link
    leads to no server or path > Unable to get DFS Path Info : error returned: -1
to another line | 20429,b D s&#10;f | 0 a V:\d\l\f | a/ZelSmbPipe V:\d\l | Error parsing KELP Reply - the link
    leads to no server or path > Unable to get DFS Path Info : error returned: -1
to no server | 20429,b@c/x D | 0 a V:\d\l\f | a/ZelSmbPipe V:\d\l | Error parsing KELP Reply - the link
    leads to no server or path > Unable to get DFS Path Info : error returned: -1
)")) {
        SCOPED_TRACE(why);
        start(replies);
        network->closed = closed;
        network->contextError = std::atoi(contextError.c_str());
        const std::string result = std::to_string(readTrustees());
        EXPECT_EQ(result + " " + at + " " + path, outcome);
        EXPECT_EQ(joined(network->wire), R"(a/FilesCmdPipe V:\d\l\f)" + (wire.empty() ? "" : " > " + wire));
        EXPECT_EQ(network->replies.size(), 0U);
        EXPECT_EQ(trustees.size(), 0U);
        EXPECT_EQ(std::count(log.lines.begin(), log.lines.end(), "pipe closed"), network->opened + 1);
        EXPECT_EQ(log.lines.back(), "pipe closed");
        EXPECT_EQ(lines("Unable to [^m].*|Resolved path.*|openPipe.*|Error parsing.*"), complaints);
    }
}

TEST_F(Links, AreLoggedOnTheirWay) {
    start("20429,20156,30006,30005,b D s,0");
    readTrustees();
    EXPECT_EQ(
        lines("pipe closed|Resolv.*|targetServer.*|getDFP.*"),
        R"(pipe closed > getDFPathInfo returned: 20156 > getDFPathInfo returned: 30006 > pipe closed > )"
        R"(Resolving DFS path V:\d > getDFPathInfo returned: 30005 > pipe closed > )"
        R"(Resolved path V:\d\l\f with error: 30005 > Resolving DFS path V:\d\l > )"
        R"(targetServer : b, targetPath : D:\s > getDFPathInfo returned: 0 > pipe closed > )"
        "pipe closed > pipe closed");
}

TEST_F(Links, AreNotAskedForWhereTheFirstPipeDoesNotOpen) {
    start("");
    network->closed = "a/FilesCmdPipe";
    EXPECT_EQ(readTrustees(), -1);
    DictionaryForMountedPIPE::mountDict().PipeMapDict.clear();
    ServerDetails::serverInfo().keychainStatus = -25300;
    EXPECT_EQ(readTrustees(), -25300);
    EXPECT_EQ(joined(network->wire), "a/FilesCmdPipe");
    EXPECT_EQ(lines("pipe closed|Unable to [^m].*"), "");
    EXPECT_EQ(trustees.size(), 1U);
}

TEST_F(Links, AreFollowedByEveryOperationOnTheSelection) {
    using C = XMLReadWriteController;
    Texts names;
    std::vector<DirectoryRights> rows;
    OwnerInfo owner;
    AttributesInfo attributes;
    DirectoryQuotaInfo quota;
    const auto change = std::make_shared<Trustees>("", "1", std::uint16_t{1}, "ADD", "", "");
    const std::string there = "D:\\s\\f";
    const std::string type = "ActiveDirectory";
    C& c = controller;
    const auto setTrustee = [&] { return c.setTrusteeHandleDFS(at, mapped, path, *change, type); };
    const struct {
        std::function<std::int32_t()> run;
        std::string request; ///< behind the link
        std::string subject; ///< of the message about a failure
        std::string subjectThere = subject;
        std::string pipe = "/FilesCmdPipe ";
    } cases[] = {
        {[&] { return readTrustees(); }, C::createGetTrusteesListRequestMorvane(there), "get trustees"},
        {[&] { return c.getEffectiveRightsforPathHandleDFS(at, trustees, path, mapped, type); },
         C::createGetERRequests(there, type), "get trustees"},
        {[&] { return c.getEffectiveRightsForMappedUserForPathHandleDFS(path, names, at, mapped, type); },
         C::createGetTrusteesListRequestAD(there), "get effective rights"},
        {[&] { return c.getIRRequestHandleDFS(at, rows, mapped, path, type); },
         C::createGetIRRequest(there, type), "get trustees", "get trustees", "/RightsCmdPipe "},
        {[&] { return c.setInheritedRightsforPathHandleDFS(at, 1, path, mapped); },
         C::createSetIRFRequest(there, 1), "set trustees", "set inherited rights"},
        {setTrustee, C::createAddRemoveTrusteeRequest({change}, there, type), "set trustees"},
        {[&] { return c.getFileInfoOwnerHandleDFS(at, path, owner, mapped, type); },
         C::createGetOwnerRequest(there, type), "get effective rights"},
        {[&] { return c.getAttributesHandleDFS(at, path, attributes, mapped, type); },
         C::createGetAttributesRequest(there, type), "get effective rights"},
        {[&] { return c.getDirectoryQuotaHandleDFS(at, path, quota, mapped, type); },
         C::createGetDirQuotaRequest(there, type), "get effective rights"},
    };
    for (const auto& [run, request, subject, subjectThere, pipe] : cases) {
        start("5,20429,b D s,6");
        EXPECT_EQ(run(), 1);
        EXPECT_EQ(run(), 0);
        EXPECT_EQ(at + " " + path, "b " + there);
        EXPECT_EQ(network->request, request);
        const std::string first = "a" + pipe + R"(V:\d\l\f > )";
        EXPECT_EQ(joined(network->wire),
                  first + first + R"(a/ZelSmbPipe V:\d\l > context b > b)" + pipe + there);
        EXPECT_EQ(lines("Unable to [^m].*"), "Unable to " + subject + " : error returned: 5 > Unable to " +
                                                 subjectThere + " on DFS path : error returned: 6");
    }
    start("0");
    change->status = "REMOVE";
    EXPECT_EQ(setTrustee(), 0);
    EXPECT_EQ(network->request, C::createAddRemoveTrusteeRequest({change}, path, type));
    change->status = "";
    EXPECT_EQ(setTrustee(), 1);
    EXPECT_EQ(lines("skip.*|Unable to [^m].*"),
              "skipping user:  > Unable to set trustees : error returned: -1");
}

TEST_F(Links, ReplaceAsManyBytesAsTheMappedPathHas) {
    std::int32_t status = 0;
    std::int32_t err = 0;
    for (const auto& [from, to] : table<2>(R"(
V:\d\l    | D:
V:        | D:
V:\d\lÉ\a | D:É\a
)")) {
        path = from;
        controller.buildDFSPath(path, "D:", mapped, "a", at, status, err);
        EXPECT_EQ(path, to);
    }
    std::string server, target, value;
    EXPECT_DEATH(controller.resolveMultipleDFSPath(at, "V:\\", path, server, target, value, status),
                 "no component");
}

} // namespace
} // namespace quorvan::test
