// SPDX-License-Identifier: GPL-3.0-or-later
#include "Tests/Quorvan/ViewModal/Session.h"

#include <algorithm>

namespace quorvan::test {
namespace {

using testing::ElementsAre;

using Texts = std::vector<std::string>;

/// Servers whose pipes answer by a script. The trace tells what happened to the pipes: "open
/// srv1/FilesCmdPipe", "ask PATH", "close", and "context srv2".
struct ScriptedNetwork : FakeNetwork {
    std::map<std::string, std::deque<std::string>> script; ///< the replies of a pipe, by "server/pipe"
    std::vector<std::string> closed;                       ///< pipes that cannot be opened
    Texts trace;

    platform::MountResult mount(const std::string& url, const std::string&, const std::string&,
                                const platform::MountOptions&) override {
        const std::string host = url.substr(6);
        return {0, {"/Volumes/" + host.substr(0, host.find('/'))}};
    }
    std::string resolve(const std::string& host) override { return "ip-of-" + host; }
    int createContext(const std::string& server) override {
        trace.push_back("context " + server);
        return contextError;
    }
    int open(const std::string& path) override {
        pipe = path.substr(9);
        trace.push_back("open " + pipe);
        errno = EACCES;
        return std::find(closed.begin(), closed.end(), pipe) == closed.end() ? 7 : -1;
    }
    ssize_t write(int, const void* data, std::size_t size) override {
        const std::string request(static_cast<const char*>(data), size);
        const std::size_t path = std::min(request.find("VOL1:"), request.find("DATA:"));
        trace.push_back("ask " + request.substr(path, request.find('<', path) - path));
        pieces = {script[pipe].empty() ? "" : script[pipe].front()};
        if (!script[pipe].empty())
            script[pipe].pop_front();
        return static_cast<ssize_t>(size);
    }
    int close(int) override {
        trace.emplace_back("close");
        return 0;
    }

private:
    std::string pipe;
};

class Links : public Session {
protected:
    Links() {
        platform::Services changed = platform::services();
        changed.network = network;
        installed.emplace(changed);
    }

    /// The log without what mounting, opening and exchanging write, in the order of events.
    Texts story() {
        Texts lines;
        for (const std::string& line : log.take()) {
            const auto plumbing = {"Getting ip", "Resolved ip",    "Resolved srv",    "Checking",
                                   "Mounting",   "Adding",         "Mounted",         "Opened pipe",
                                   "Registered", "Could not open", "Unable to mount", "Get ",
                                   "response.",  "ip-of-"};
            const bool told = std::none_of(plumbing.begin(), plumbing.end(),
                                           [&](const char* start) { return line.starts_with(start); });
            if (told && line.find(" is mounted at ") == std::string::npos)
                lines.push_back(line);
        }
        return lines;
    }

    std::shared_ptr<ScriptedNetwork> network = std::make_shared<ScriptedNetwork>();
    std::optional<platform::ScopedServices> installed;
    std::string server = "srv1";
    std::string selected = "VOL1:\\dfs\\link\\a\\b";
    std::string mapped = "VOL1:\\dfs\\link";
};

std::string answer(const char* status) {
    return "<r><fileInfo><getFileInfo><result value=\"" + std::string(status) +
           "\"/></getFileInfo></fileInfo></r>";
}

std::string linkTo(const char* host, const char* path, const char* volume = "DATA") {
    return "<r><result value=\"0\"/><readLink><junction><server>" + std::string(host) +
           "</server><volumeName>" + volume + "</volumeName><pathName>" + path +
           "</pathName></junction></readLink></r>";
}

std::string noLink(const char* status) {
    return "<r><result value=\"" + std::string(status) + "\"/></r>";
}

const char* const files = "srv1/FilesCmdPipe";
const char* const links = "srv1/ZelSmbPipe";
const char* const targetFiles = "srv2/FilesCmdPipe";
const char* const targetLinks = "srv2/ZelSmbPipe";
const char* const wholePath = "ask VOL1:\\dfs\\link\\a\\b";
const char* const linkPath = "ask VOL1:\\dfs\\link";
const char* const targetPath = "ask DATA:\\share\\a\\b";

TEST_F(Links, AreFollowedStepByStep) {
    const struct Case {
        const char* why;
        std::map<std::string, std::deque<std::string>> script;
        Texts closed;
        int contextError;
        std::pair<int, std::string> outcome; ///< the result, and where the selection is then
        Texts trace;                         ///< between the first request and the last closing
        Texts log;                           ///< the same
    } cases[] = {
        {"success at once", {{files, {answer("0")}}}, {}, 0, {0, "srv1 VOL1:\\dfs\\link\\a\\b"}, {}, {}},
        {"20407 is success", {{files, {answer("20407")}}}, {}, 0, {0, "srv1 VOL1:\\dfs\\link\\a\\b"}, {}, {}},
        {"another failure",
         {{files, {answer("5")}}},
         {},
         0,
         {1, "srv1 VOL1:\\dfs\\link\\a\\b"},
         {},
         {"Unable to get trustees : error returned: 5"}},
        {"20429",
         {{files, {answer("20429")}}, {links, {linkTo("srv2", "share")}}, {targetFiles, {answer("0")}}},
         {},
         0,
         {0, "srv2 DATA:\\share\\a\\b"},
         {"open srv1/ZelSmbPipe", linkPath, "close", "context srv2", "open srv2/FilesCmdPipe", targetPath,
          "close"},
         {"targetServer : srv2, targetPath : DATA:\\share", "getDFPathInfo returned: 0", "pipe closed",
          "pipe closed"}},
        {"20008, a full host name and a link to a whole volume; 20407 there",
         {{files, {answer("20008")}},
          {links, {linkTo("srv2.kelp.example", "")}},
          {targetFiles, {answer("20407")}}},
         {},
         0,
         {0, "srv2 DATA:\\a\\b"},
         {"open srv1/ZelSmbPipe", linkPath, "close", "context srv2", "open srv2/FilesCmdPipe",
          "ask DATA:\\a\\b", "close"},
         {"targetServer : srv2, targetPath : DATA:", "getDFPathInfo returned: 0", "pipe closed",
          "pipe closed"}},
        {"20156 asks again with the selected path, still cutting off the mapped one",
         {{files, {answer("20429")}},
          {links, {noLink("20156"), linkTo("srv2", "share")}},
          {targetFiles, {answer("0")}}},
         {},
         0,
         {0, "srv2 DATA:\\share\\a\\b"},
         {"open srv1/ZelSmbPipe", linkPath, wholePath, "close", "context srv2", "open srv2/FilesCmdPipe",
          targetPath, "close"},
         {"getDFPathInfo returned: 20156", "targetServer : srv2, targetPath : DATA:\\share",
          "getDFPathInfo returned: 0", "pipe closed", "pipe closed"}},
        {"30006 walks the mapped path, 30005 goes on",
         {{files, {answer("20429")}},
          {links, {noLink("20156"), noLink("30006"), noLink("30005"), linkTo("srv2", "share")}},
          {targetFiles, {answer("0")}}},
         {},
         0,
         {0, "srv2 DATA:\\share\\a\\b"},
         {"open srv1/ZelSmbPipe", linkPath, wholePath, "close", "open srv1/ZelSmbPipe", "ask VOL1:\\dfs",
          "close", "open srv1/ZelSmbPipe", linkPath, "close", "context srv2", "open srv2/FilesCmdPipe",
          targetPath, "close"},
         {"getDFPathInfo returned: 20156", "getDFPathInfo returned: 30006", "pipe closed",
          "Resolving DFS path VOL1:\\dfs", "getDFPathInfo returned: 30005", "pipe closed",
          "Resolved path VOL1:\\dfs\\link\\a\\b with error: 30005", "Resolving DFS path VOL1:\\dfs\\link",
          "targetServer : srv2, targetPath : DATA:\\share", "getDFPathInfo returned: 0", "pipe closed",
          "pipe closed"}},
        {"a link on a link: the walk goes on below the target of the first",
         {{files, {answer("20429")}},
          {links, {noLink("30006"), linkTo("srv2", "x")}},
          {targetLinks, {linkTo("srv3", "y")}},
          {"srv3/FilesCmdPipe", {answer("0")}}},
         {},
         0,
         {0, "srv3 DATA:\\y\\a\\b"},
         {"open srv1/ZelSmbPipe", linkPath, "close", "open srv1/ZelSmbPipe", "ask VOL1:\\dfs", "close",
          "context srv2", "open srv2/ZelSmbPipe", "ask DATA:\\x\\link", "close", "context srv3",
          "open srv3/FilesCmdPipe", "ask DATA:\\y\\a\\b", "close"},
         {"getDFPathInfo returned: 30006", "pipe closed", "Resolving DFS path VOL1:\\dfs",
          "targetServer : srv2, targetPath : DATA:\\x", "getDFPathInfo returned: 0", "pipe closed",
          "Resolving DFS path DATA:\\x\\link", "targetServer : srv3, targetPath : DATA:\\y",
          "getDFPathInfo returned: 0", "pipe closed", "pipe closed"}},
        {"a walk that ends on what is no link",
         {{files, {answer("20429")}},
          {links, {noLink("30006"), linkTo("srv2", "x")}},
          {targetLinks, {noLink("30005")}}},
         {},
         0,
         {0, "srv2 DATA:\\x\\link\\a\\b"},
         {"open srv1/ZelSmbPipe", linkPath, "close", "open srv1/ZelSmbPipe", "ask VOL1:\\dfs", "close",
          "context srv2", "open srv2/ZelSmbPipe", "ask DATA:\\x\\link", "close"},
         {"getDFPathInfo returned: 30006", "pipe closed", "Resolving DFS path VOL1:\\dfs",
          "targetServer : srv2, targetPath : DATA:\\x", "getDFPathInfo returned: 0", "pipe closed",
          "Resolving DFS path DATA:\\x\\link", "getDFPathInfo returned: 30005", "pipe closed",
          "Resolved path DATA:\\x\\link\\a\\b with error: 30005",
          "Unable to get DFS Path Info : error returned: 30005"}},
        {"a walk that meets another failure",
         {{files, {answer("20429")}}, {links, {noLink("30006"), noLink("9")}}},
         {},
         0,
         {0, "srv1 VOL1:\\dfs\\link\\a\\b"},
         {"open srv1/ZelSmbPipe", linkPath, "close", "open srv1/ZelSmbPipe", "ask VOL1:\\dfs", "close"},
         {"getDFPathInfo returned: 30006", "pipe closed", "Resolving DFS path VOL1:\\dfs",
          "getDFPathInfo returned: 9", "pipe closed", "Resolved path VOL1:\\dfs\\link\\a\\b with error: 9",
          "Unable to get DFS Path Info : error returned: 9"}},
        {"a walk whose next server does not open its pipe, behind a link that was resolved",
         {{files, {answer("20429")}},
          {links, {noLink("30006"), linkTo("srv2", "x")}},
          {targetFiles, {answer("0")}}},
         {targetLinks},
         0,
         {0, "srv2 DATA:\\x\\link\\a\\b"},
         {"open srv1/ZelSmbPipe", linkPath, "close", "open srv1/ZelSmbPipe", "ask VOL1:\\dfs", "close",
          "context srv2", "open srv2/ZelSmbPipe", "open srv2/FilesCmdPipe", "ask DATA:\\x\\link\\a\\b",
          "close"},
         {"getDFPathInfo returned: 30006", "pipe closed", "Resolving DFS path VOL1:\\dfs",
          "targetServer : srv2, targetPath : DATA:\\x", "getDFPathInfo returned: 0", "pipe closed",
          "Resolving DFS path DATA:\\x\\link", "Unable to open pipe srv2 - /ZelSmbPipe", "pipe closed"}},
        {"a walk whose target server is refused asks there all the same, and reports the refusal",
         {{files, {answer("20429")}},
          {links, {noLink("30006"), linkTo("srv2", "x")}},
          {targetFiles, {answer("0")}}},
         {},
         77,
         {77, "srv2 DATA:\\x\\link\\a\\b"},
         {"open srv1/ZelSmbPipe", linkPath, "close", "open srv1/ZelSmbPipe", "ask VOL1:\\dfs", "close",
          "context srv2", "open srv2/FilesCmdPipe", "ask DATA:\\x\\link\\a\\b", "close"},
         {"getDFPathInfo returned: 30006", "pipe closed", "Resolving DFS path VOL1:\\dfs",
          "targetServer : srv2, targetPath : DATA:\\x", "getDFPathInfo returned: 0", "pipe closed",
          "Unable to create context for DFS target server, error returned: 77",
          "Unable to get DFS Path Info : error returned: 0", "pipe closed"}},
        {"a link to the same server",
         {{files, {answer("20429"), answer("0")}}, {links, {linkTo("srv1", "share")}}},
         {},
         77,
         {0, "srv1 DATA:\\share\\a\\b"},
         {"open srv1/ZelSmbPipe", linkPath, "close", "open srv1/FilesCmdPipe", targetPath, "close"},
         {"targetServer : srv1, targetPath : DATA:\\share", "getDFPathInfo returned: 0", "pipe closed",
          "pipe closed"}},
        {"the link pipe does not open",
         {{files, {answer("20429")}}},
         {links},
         0,
         {0, "srv1 VOL1:\\dfs\\link\\a\\b"},
         {"open srv1/ZelSmbPipe"},
         {}},
        {"the link reply is no XML",
         {{files, {answer("20429")}}, {links, {""}}},
         {},
         0,
         {0, "srv1 VOL1:\\dfs\\link\\a\\b"},
         {"open srv1/ZelSmbPipe", linkPath, "close"},
         {"Error parsing KELP Reply - the document is empty", "getDFPathInfo returned: -1", "pipe closed",
          "Unable to get DFS Path Info : error returned: -1"}},
        {"the link reply has no status",
         {{files, {answer("20429")}}, {links, {"<r><result x=\"\"/></r>"}}},
         {},
         0,
         {0, "srv1 VOL1:\\dfs\\link\\a\\b"},
         {"open srv1/ZelSmbPipe", linkPath, "close"},
         {"getDFPathInfo returned: -1", "pipe closed", "Unable to get DFS Path Info : error returned: -1"}},
        {"the target server is refused",
         {{files, {answer("20429")}}, {links, {linkTo("srv2", "share")}}},
         {},
         77,
         {77, "srv2 DATA:\\share\\a\\b"},
         {"open srv1/ZelSmbPipe", linkPath, "close", "context srv2"},
         {"targetServer : srv2, targetPath : DATA:\\share", "getDFPathInfo returned: 0", "pipe closed",
          "Unable to create context for DFS target server, error returned: 77"}},
        {"the target pipe does not open",
         {{files, {answer("20429")}}, {links, {linkTo("srv2", "share")}}},
         {targetFiles},
         0,
         {0, "srv2 DATA:\\share\\a\\b"},
         {"open srv1/ZelSmbPipe", linkPath, "close", "context srv2", "open srv2/FilesCmdPipe"},
         {"targetServer : srv2, targetPath : DATA:\\share", "getDFPathInfo returned: 0", "pipe closed",
          "openPipe failed."}},
        {"the second request fails, be it with the code of a link",
         {{files, {answer("20429")}}, {links, {linkTo("srv2", "share")}}, {targetFiles, {answer("20429")}}},
         {},
         0,
         {0, "srv2 DATA:\\share\\a\\b"},
         {"open srv1/ZelSmbPipe", linkPath, "close", "context srv2", "open srv2/FilesCmdPipe", targetPath,
          "close"},
         {"targetServer : srv2, targetPath : DATA:\\share", "getDFPathInfo returned: 0", "pipe closed",
          "pipe closed", "Unable to get trustees on DFS path : error returned: 20429"}},
    };
    for (const Case& each : cases) {
        SCOPED_TRACE(each.why);
        DictionaryForMountedPIPE::mountDict().PipeMapDict.clear();
        network->script = each.script;
        network->closed = each.closed;
        network->contextError = each.contextError;
        std::string itsServer = server;
        std::string itsPath = selected;
        TrusteeList trustees = {std::make_shared<Trustees>()};
        Rights filter;
        Rights effective;
        EXPECT_EQ(controller.initializeTrusteesHandleDFS(itsServer, trustees, itsPath, filter, effective,
                                                         mapped, "Morvane"),
                  each.outcome.first);
        EXPECT_EQ(itsServer + " " + itsPath, each.outcome.second);
        Texts trace = {"open srv1/FilesCmdPipe", wholePath, "close"};
        trace.insert(trace.end(), each.trace.begin(), each.trace.end());
        trace.emplace_back("close");
        EXPECT_EQ(std::exchange(network->trace, {}), trace);
        Texts lines = {"pipe closed"};
        lines.insert(lines.end(), each.log.begin(), each.log.end());
        lines.emplace_back("pipe closed");
        EXPECT_EQ(story(), lines);
        EXPECT_TRUE(trustees.empty());
    }
    network->closed = {files};
    DictionaryForMountedPIPE::mountDict().PipeMapDict.clear();
    TrusteeList trustees = {std::make_shared<Trustees>()};
    Rights filter;
    Rights effective;
    EXPECT_EQ(controller.initializeTrusteesHandleDFS(server, trustees, selected, filter, effective, mapped,
                                                     "Morvane"),
              -1);
    EXPECT_EQ(network->trace, Texts{"open srv1/FilesCmdPipe"}) << "nothing to close";
    EXPECT_EQ(trustees.size(), 1U);
}

TEST_F(Links, ReplaceAsManyBytesAsTheMappedPathHas) {
    std::int32_t status = 0;
    std::int32_t err = 0;
    for (const auto& [from, to] : std::map<std::string, std::string>{{"VOL1:\\dfs\\link", "DATA:"},
                                                                     {"VOL1:", "DATA:"},
                                                                     {"", "DATA:"},
                                                                     {"VOL1:\\dfs\\linkÉ\\a", "DATA:É\\a"}}) {
        std::string path = from;
        XMLReadWriteController::buildDFSPath(path, "DATA:", mapped, "srv1", server, status, err);
        EXPECT_EQ(path, to);
    }
}

TEST_F(Links, CannotBeWithoutWhatTheyNeed) {
    std::string targetServer;
    std::string target;
    std::string status;
    network->script[links] = {"<r/>"};
    controller.openPipe("srv1", "/IPC$", "/ZelSmbPipe");
    EXPECT_DEATH(controller.getDFSPathInfo(mapped, targetServer, target), "\"result\"");
    network->script[links] = {"<r><result/></r>"};
    EXPECT_DEATH(controller.getDFSPathInfo(mapped, targetServer, target), "no attributes");
    network->script[links] = {"<r><result value=\"0\"/><readLink/></r>"};
    EXPECT_DEATH(controller.getDFSPathInfo(mapped, targetServer, target), "\"junction\"");
    std::int32_t result = 0;
    EXPECT_DEATH(
        controller.resolveMultipleDFSPath(server, "VOL1:\\", selected, targetServer, target, status, result),
        "no component");
}

TEST_F(Links, AreFollowedByEveryOperationOnTheSelection) {
    TrusteeList trustees;
    Rights filter;
    Rights effective;
    std::vector<std::string> names;
    std::vector<DirectoryRights> directories;
    OwnerInfo owner;
    AttributesInfo attributes;
    DirectoryQuotaInfo quota;
    Trustees change("", "1", 1, "ADD", "", "");
    const std::string type = "Morvane";
    const std::string trusteesFailed = "Unable to get trustees : error returned: ";
    const std::string trusteesFailedThere = "Unable to get trustees on DFS path : error returned: ";
    const std::string rightsFailed = "Unable to get effective rights : error returned: ";
    const std::string rightsFailedThere = "Unable to get effective rights on DFS path : error returned: ";
    const std::string setFailed = "Unable to set trustees : error returned: ";
    const struct {
        std::function<std::int32_t(std::string& server, std::string& path)> run;
        std::string pipe;
        std::vector<std::string> resultPath;
        std::string first;
        std::string second;
    } cases[] = {
        {[&](auto& at, auto& path) {
             return controller.initializeTrusteesHandleDFS(at, trustees, path, filter, effective, mapped,
                                                           type);
         },
         "FilesCmdPipe",
         {"fileInfo", "getFileInfo"},
         trusteesFailed,
         trusteesFailedThere},
        {[&](auto& at, auto& path) {
             return controller.getEffectiveRightsforPathHandleDFS(at, trustees, path, mapped, type);
         },
         "FilesCmdPipe",
         {"fileInfo", "getAllEffectiveRights"},
         trusteesFailed,
         trusteesFailedThere},
        {[&](auto& at, auto& path) {
             return controller.getEffectiveRightsForMappedUserForPathHandleDFS(path, names, at, mapped, type);
         },
         "FilesCmdPipe",
         {"fileInfo", "getFileInfo"},
         rightsFailed,
         rightsFailedThere},
        {[&](auto& at, auto& path) {
             return controller.getIRRequestHandleDFS(at, directories, mapped, path, type);
         },
         "RightsCmdPipe",
         {},
         trusteesFailed,
         trusteesFailedThere},
        {[&](auto& at, auto& path) {
             return controller.setInheritedRightsforPathHandleDFS(at, 1, path, mapped);
         },
         "FilesCmdPipe",
         {},
         setFailed,
         "Unable to set inherited rights on DFS path : error returned: "},
        {[&](auto& at, auto& path) { return controller.setTrusteeHandleDFS(at, mapped, path, change, type); },
         "FilesCmdPipe",
         {"trustees", "addTrustee"},
         setFailed,
         "Unable to set trustees on DFS path : error returned: "},
        {[&](auto& at, auto& path) {
             return controller.getFileInfoOwnerHandleDFS(at, path, owner, mapped, type);
         },
         "FilesCmdPipe",
         {"fileInfo", "getFileInfo"},
         rightsFailed,
         rightsFailedThere},
        {[&](auto& at, auto& path) {
             return controller.getAttributesHandleDFS(at, path, attributes, mapped, type);
         },
         "FilesCmdPipe",
         {"fileInfo", "getFileInfo"},
         rightsFailed,
         rightsFailedThere},
        {[&](auto& at, auto& path) {
             return controller.getDirectoryQuotaHandleDFS(at, path, quota, mapped, type);
         },
         "FilesCmdPipe",
         {"fileInfo", "getFileInfo"},
         rightsFailed,
         rightsFailedThere},
    };
    for (const auto& [run, pipe, resultPath, first, second] : cases) {
        const auto reply = [&path = resultPath](const char* status) {
            std::string text = "<result value=\"" + std::string(status) +
                               "\"/>"
                               "<rightsInfo><effectiveRights/></rightsInfo>";
            for (auto step = path.rbegin(); step != path.rend(); ++step)
                text = "<" + *step + ">" + text + "</" + *step + ">";
            return "<r>" + text + "</r>";
        };
        trustees = {std::make_shared<Trustees>()};
        network->script = {{"srv1/" + pipe, {reply("5"), reply("20429")}},
                           {links, {linkTo("srv2", "share")}},
                           {"srv2/" + pipe, {reply("6")}}};
        std::string at = server;
        std::string path = selected;
        EXPECT_EQ(run(at, path), 1);
        EXPECT_THAT(story(), testing::Contains(first + "5"));
        EXPECT_EQ(run(at, path), 0);
        EXPECT_EQ(at + " " + path, "srv2 DATA:\\share\\a\\b");
        EXPECT_THAT(story(), testing::Contains(second + "6"));
        EXPECT_EQ(std::exchange(network->trace, {}),
                  (Texts{"open srv1/" + pipe, wholePath, "close", "close", "open srv1/" + pipe, wholePath,
                         "close", "open srv1/ZelSmbPipe", linkPath, "close", "context srv2",
                         "open srv2/" + pipe, targetPath, "close", "close"}));
    }
    change.status = "";
    EXPECT_EQ(cases[5].run(server, selected), 1);
    EXPECT_THAT(story(), ElementsAre("skipping user: ", "pipe closed", setFailed + "-1", "pipe closed"));
    change.status = "REMOVE";
    network->script[files] = {
        "<r><trustees><removeTrustee><result value=\"0\"/></removeTrustee></trustees></r>"};
    EXPECT_EQ(cases[5].run(server, selected), 0);
}

} // namespace
} // namespace quorvan::test
