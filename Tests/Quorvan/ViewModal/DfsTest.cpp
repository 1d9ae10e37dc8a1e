// SPDX-License-Identifier: GPL-3.0-or-later
#include "Tests/Quorvan/ViewModal/Session.h"

#include <algorithm>

namespace quorvan::test {
namespace {

using Texts = std::vector<std::string>;

/// A status that every operation finds where it looks for its own, where "SERVER VOLUME PATH" leads, or
/// a reply as it stands.
std::string replyFor(const std::string& text) {
    const std::size_t space = text.find(' ');
    if (text.find('<') != std::string::npos || text.empty())
        return text;
    if (space == std::string::npos)
        return replyWith(text);
    const std::size_t second = text.find(' ', space + 1);
    return "<r><result value=\"0\"/><readLink><junction><server>" + text.substr(0, space) +
           "</server><volumeName>" + text.substr(space + 1, second - space - 1) + "</volumeName><pathName>" +
           text.substr(second + 1) + "</pathName></junction></readLink></r>";
}

/// Servers whose pipes answer by a script. What happens to the pipes goes among the lines of the log: "open
/// srv1/FilesCmdPipe", "ask PATH", "close" and "context srv2".
struct ScriptedNetwork : FakeNetwork {
    explicit ScriptedNetwork(Texts& log)
        : story(log) {}
    Texts& story;
    std::deque<std::string> replies;
    std::string closed; ///< the pipe that cannot be opened

    platform::MountResult mount(const std::string& url, const std::string&, const platform::Secret&,
                                const platform::MountOptions&) override {
        const std::string host = url.substr(6);
        return {0, {"/Volumes/" + host.substr(0, host.find('/'))}};
    }
    std::string resolve(const std::string& host) override { return "ip-of-" + host; }
    int createContext(const std::string& server) override {
        story.push_back("context " + server);
        return contextError;
    }
    int open(const std::string& path) override {
        story.push_back("open " + path.substr(9));
        errno = EACCES;
        return path.substr(9) == closed ? -1 : 7;
    }
    ssize_t write(int, const void* data, std::size_t size) override {
        const std::string request(static_cast<const char*>(data), size);
        const std::size_t path = std::min(request.find("VOL1:"), request.find("DATA:"));
        story.push_back("ask " + request.substr(path, request.find('<', path) - path));
        pieces = {replyFor(replies.empty() ? "" : replies.front())};
        if (!replies.empty())
            replies.pop_front();
        return static_cast<ssize_t>(size);
    }
    int close(int) override {
        EXPECT_EQ(story.back(), "pipe closed");
        story.back() = "close";
        return 0;
    }
};

class Links : public Session {
protected:
    Links() {
        platform::Services changed = platform::services();
        changed.network = network;
        installed.emplace(changed);
    }

    /// What happened, without what mounting, opening and exchanging write.
    Texts story() {
        Texts lines = log.take();
        std::erase_if(lines, [](const std::string& line) {
            const auto plumbing = {"Getting ip", "Resolved ip",    "Resolved srv",    "Checking",
                                   "Mounting",   "Adding",         "Mounted",         "Opened pipe",
                                   "Registered", "Could not open", "Unable to mount", "Get ",
                                   "response.",  "ip-of-"};
            return line.find(" is mounted at ") != std::string::npos ||
                   std::any_of(plumbing.begin(), plumbing.end(),
                               [&](const char* start) { return line.starts_with(start); });
        });
        return lines;
    }
    std::int32_t readTrustees(std::string& at, std::string& path) {
        return controller.initializeTrusteesHandleDFS(at, trustees, path, filter, effective, mapped,
                                                      "Morvane");
    }

    std::shared_ptr<ScriptedNetwork> network = std::make_shared<ScriptedNetwork>(log.lines);
    std::optional<platform::ScopedServices> installed;
    TrusteeList trustees = {std::make_shared<Trustees>()};
    Rights filter;
    Rights effective;
    std::string server = "srv1";
    std::string selected = "VOL1:\\dfs\\link\\a\\b";
    std::string mapped = "VOL1:\\dfs\\link";
};

/// Joined as the table below writes them.
std::string joined(const Texts& texts) {
    std::string all;
    for (const std::string& text : texts)
        all += (all.empty() ? "" : " | ") + text;
    return all;
}

TEST_F(Links, AreFollowedStepByStep) {
    const struct Case {
        const char* why;
        Texts replies;
        const char* outcome; ///< the result, and where the selection is then
        const char* story;   ///< between the first request and the last closing
        const char* closed = "";
        int contextError = 0;
    } cases[] = {
        {"success at once", {"0"}, R"(0 srv1 VOL1:\dfs\link\a\b)", ""},
        {"20407 is success", {"20407"}, R"(0 srv1 VOL1:\dfs\link\a\b)", ""},
        {"another failure",
         {"5"},
         R"(1 srv1 VOL1:\dfs\link\a\b)",
         "Unable to get trustees : error returned: 5"},
        {"20429",
         {"20429", "srv2 DATA share", "0"},
         R"(0 srv2 DATA:\share\a\b)",
         R"(open srv1/ZelSmbPipe | ask VOL1:\dfs\link | targetServer : srv2, targetPath : DATA:\share | )"
         "getDFPathInfo returned: 0 | close | context srv2 | open srv2/FilesCmdPipe | "
         R"(ask DATA:\share\a\b | close)"},
        {"20008, a full host name and a link to a whole volume; 20407 there",
         {"20008", "srv2.kelp.example DATA ", "20407"},
         R"(0 srv2 DATA:\a\b)",
         R"(open srv1/ZelSmbPipe | ask VOL1:\dfs\link | targetServer : srv2, targetPath : DATA: | )"
         R"(getDFPathInfo returned: 0 | close | context srv2 | open srv2/FilesCmdPipe | ask DATA:\a\b | )"
         "close"},
        {"20156 asks again with the selected path, still cutting off the mapped one",
         {"20429", "20156", "srv2 DATA share", "0"},
         R"(0 srv2 DATA:\share\a\b)",
         R"(open srv1/ZelSmbPipe | ask VOL1:\dfs\link | getDFPathInfo returned: 20156 | )"
         R"(ask VOL1:\dfs\link\a\b | targetServer : srv2, targetPath : DATA:\share | )"
         "getDFPathInfo returned: 0 | close | context srv2 | open srv2/FilesCmdPipe | "
         R"(ask DATA:\share\a\b | close)"},
        {"30006 walks the mapped path, 30005 goes on",
         {"20429", "20156", "30006", "30005", "srv2 DATA share", "0"},
         R"(0 srv2 DATA:\share\a\b)",
         R"(open srv1/ZelSmbPipe | ask VOL1:\dfs\link | getDFPathInfo returned: 20156 | )"
         R"(ask VOL1:\dfs\link\a\b | getDFPathInfo returned: 30006 | close | Resolving DFS path VOL1:\dfs | )"
         R"(open srv1/ZelSmbPipe | ask VOL1:\dfs | getDFPathInfo returned: 30005 | close | )"
         R"(Resolved path VOL1:\dfs\link\a\b with error: 30005 | Resolving DFS path VOL1:\dfs\link | )"
         R"(open srv1/ZelSmbPipe | ask VOL1:\dfs\link | targetServer : srv2, targetPath : DATA:\share | )"
         "getDFPathInfo returned: 0 | close | context srv2 | open srv2/FilesCmdPipe | "
         R"(ask DATA:\share\a\b | close)"},
        {"a link on a link: the walk goes on below the target of the first",
         {"20429", "30006", "srv2 DATA x", "srv3 DATA y", "0"},
         R"(0 srv3 DATA:\y\a\b)",
         R"(open srv1/ZelSmbPipe | ask VOL1:\dfs\link | getDFPathInfo returned: 30006 | close | )"
         R"(Resolving DFS path VOL1:\dfs | open srv1/ZelSmbPipe | ask VOL1:\dfs | )"
         R"(targetServer : srv2, targetPath : DATA:\x | getDFPathInfo returned: 0 | close | context srv2 | )"
         R"(Resolving DFS path DATA:\x\link | open srv2/ZelSmbPipe | ask DATA:\x\link | )"
         R"(targetServer : srv3, targetPath : DATA:\y | getDFPathInfo returned: 0 | close | context srv3 | )"
         R"(open srv3/FilesCmdPipe | ask DATA:\y\a\b | close)"},
        {"a walk that ends on what is no link",
         {"20429", "30006", "srv2 DATA x", "30005"},
         R"(0 srv2 DATA:\x\link\a\b)",
         R"(open srv1/ZelSmbPipe | ask VOL1:\dfs\link | getDFPathInfo returned: 30006 | close | )"
         R"(Resolving DFS path VOL1:\dfs | open srv1/ZelSmbPipe | ask VOL1:\dfs | )"
         R"(targetServer : srv2, targetPath : DATA:\x | getDFPathInfo returned: 0 | close | context srv2 | )"
         R"(Resolving DFS path DATA:\x\link | open srv2/ZelSmbPipe | ask DATA:\x\link | )"
         R"(getDFPathInfo returned: 30005 | close | Resolved path DATA:\x\link\a\b with error: 30005 | )"
         "Unable to get DFS Path Info : error returned: 30005"},
        {"a walk that meets another failure",
         {"20429", "30006", "9"},
         R"(0 srv1 VOL1:\dfs\link\a\b)",
         R"(open srv1/ZelSmbPipe | ask VOL1:\dfs\link | getDFPathInfo returned: 30006 | close | )"
         R"(Resolving DFS path VOL1:\dfs | open srv1/ZelSmbPipe | ask VOL1:\dfs | )"
         R"(getDFPathInfo returned: 9 | close | Resolved path VOL1:\dfs\link\a\b with error: 9 | )"
         "Unable to get DFS Path Info : error returned: 9"},
        {"a walk whose next server does not open its pipe, behind a link that was resolved",
         {"20429", "30006", "srv2 DATA x", "0"},
         R"(0 srv2 DATA:\x\link\a\b)",
         R"(open srv1/ZelSmbPipe | ask VOL1:\dfs\link | getDFPathInfo returned: 30006 | close | )"
         R"(Resolving DFS path VOL1:\dfs | open srv1/ZelSmbPipe | ask VOL1:\dfs | )"
         R"(targetServer : srv2, targetPath : DATA:\x | getDFPathInfo returned: 0 | close | context srv2 | )"
         R"(Resolving DFS path DATA:\x\link | open srv2/ZelSmbPipe | )"
         R"(Unable to open pipe srv2 - /ZelSmbPipe | open srv2/FilesCmdPipe | ask DATA:\x\link\a\b | close)",
         "srv2/ZelSmbPipe"},
        {"a walk whose target server is refused asks there all the same, and reports the refusal",
         {"20429", "30006", "srv2 DATA x", "0"},
         R"(77 srv2 DATA:\x\link\a\b)",
         R"(open srv1/ZelSmbPipe | ask VOL1:\dfs\link | getDFPathInfo returned: 30006 | close | )"
         R"(Resolving DFS path VOL1:\dfs | open srv1/ZelSmbPipe | ask VOL1:\dfs | )"
         R"(targetServer : srv2, targetPath : DATA:\x | getDFPathInfo returned: 0 | close | context srv2 | )"
         "Unable to create context for DFS target server, error returned: 77 | "
         "Unable to get DFS Path Info : error returned: 0 | open srv2/FilesCmdPipe | "
         R"(ask DATA:\x\link\a\b | close)",
         "",
         77},
        {"a link to the same server",
         {"20429", "srv1 DATA share", "0"},
         R"(0 srv1 DATA:\share\a\b)",
         R"(open srv1/ZelSmbPipe | ask VOL1:\dfs\link | targetServer : srv1, targetPath : DATA:\share | )"
         R"(getDFPathInfo returned: 0 | close | open srv1/FilesCmdPipe | ask DATA:\share\a\b | close)",
         "",
         77},
        {"the link pipe does not open",
         {"20429"},
         R"(0 srv1 VOL1:\dfs\link\a\b)",
         "open srv1/ZelSmbPipe",
         "srv1/ZelSmbPipe"},
        {"the link reply is no XML",
         {"20429", ""},
         R"(0 srv1 VOL1:\dfs\link\a\b)",
         R"(open srv1/ZelSmbPipe | ask VOL1:\dfs\link | Error parsing KELP Reply - the document is empty | )"
         "getDFPathInfo returned: -1 | close | Unable to get DFS Path Info : error returned: -1"},
        {"the link reply has no status",
         {"20429", "<r><result x=\"\"/></r>"},
         R"(0 srv1 VOL1:\dfs\link\a\b)",
         R"(open srv1/ZelSmbPipe | ask VOL1:\dfs\link | getDFPathInfo returned: -1 | close | )"
         "Unable to get DFS Path Info : error returned: -1"},
        {"the target server is refused",
         {"20429", "srv2 DATA share"},
         R"(77 srv2 DATA:\share\a\b)",
         R"(open srv1/ZelSmbPipe | ask VOL1:\dfs\link | targetServer : srv2, targetPath : DATA:\share | )"
         "getDFPathInfo returned: 0 | close | context srv2 | "
         "Unable to create context for DFS target server, error returned: 77",
         "",
         77},
        {"the target pipe does not open",
         {"20429", "srv2 DATA share"},
         R"(0 srv2 DATA:\share\a\b)",
         R"(open srv1/ZelSmbPipe | ask VOL1:\dfs\link | targetServer : srv2, targetPath : DATA:\share | )"
         "getDFPathInfo returned: 0 | close | context srv2 | open srv2/FilesCmdPipe | openPipe failed.",
         "srv2/FilesCmdPipe"},
        {"the second request fails, be it with the code of a link",
         {"20429", "srv2 DATA share", "20429"},
         R"(0 srv2 DATA:\share\a\b)",
         R"(open srv1/ZelSmbPipe | ask VOL1:\dfs\link | targetServer : srv2, targetPath : DATA:\share | )"
         "getDFPathInfo returned: 0 | close | context srv2 | open srv2/FilesCmdPipe | "
         R"(ask DATA:\share\a\b | close | Unable to get trustees on DFS path : error returned: 20429)"},
    };
    for (const Case& each : cases) {
        SCOPED_TRACE(each.why);
        DictionaryForMountedPIPE::mountDict().PipeMapDict.clear();
        network->replies.assign(each.replies.begin(), each.replies.end());
        network->closed = each.closed;
        network->contextError = each.contextError;
        trustees = {std::make_shared<Trustees>()};
        std::string at = server;
        std::string path = selected;
        const std::int32_t result = readTrustees(at, path);
        EXPECT_EQ(std::to_string(result) + " " + at + " " + path, each.outcome);
        EXPECT_EQ(joined(story()), R"(open srv1/FilesCmdPipe | ask VOL1:\dfs\link\a\b | close | )" +
                                       std::string(each.story) +
                                       (*each.story == '\0' ? "close" : " | close"));
        EXPECT_TRUE(network->replies.empty());
        EXPECT_TRUE(trustees.empty());
    }
    network->closed = "srv1/FilesCmdPipe";
    trustees = {std::make_shared<Trustees>()};
    EXPECT_EQ(readTrustees(server, selected), -1);
    EXPECT_EQ(story(), Texts{"open srv1/FilesCmdPipe"}) << "nothing to close";
    EXPECT_EQ(trustees.size(), 1U);
    ServerDetails::serverInfo().keychainStatus = -25300;
    DictionaryForMountedPIPE::mountDict().PipeMapDict.clear();
    EXPECT_EQ(readTrustees(server, selected), -25300);
    EXPECT_EQ(trustees.size(), 1U);
}

TEST_F(Links, AreFollowedByEveryOperationOnTheSelection) {
    std::vector<std::string> names;
    std::vector<DirectoryRights> directories;
    OwnerInfo owner;
    AttributesInfo attributes;
    DirectoryQuotaInfo quota;
    Trustees change("", "1", 1, "ADD", "", "");
    const std::string type = "Morvane";
    const struct {
        std::function<std::int32_t(std::string& at, std::string& path)> run;
        const char* subject; ///< of the messages
        const char* subjectThere = subject;
        std::string pipe = "FilesCmdPipe";
    } cases[] = {
        {[&](auto& at, auto& path) { return readTrustees(at, path); }, "get trustees"},
        {[&](auto& at, auto& path) {
             return controller.getEffectiveRightsforPathHandleDFS(at, trustees, path, mapped, type);
         },
         "get trustees"},
        {[&](auto& at, auto& path) {
             return controller.getEffectiveRightsForMappedUserForPathHandleDFS(path, names, at, mapped, type);
         },
         "get effective rights"},
        {[&](auto& at, auto& path) {
             return controller.getIRRequestHandleDFS(at, directories, mapped, path, type);
         },
         "get trustees", "get trustees", "RightsCmdPipe"},
        {[&](auto& at, auto& path) {
             return controller.setInheritedRightsforPathHandleDFS(at, 1, path, mapped);
         },
         "set trustees", "set inherited rights"},
        {[&](auto& at, auto& path) { return controller.setTrusteeHandleDFS(at, mapped, path, change, type); },
         "set trustees"},
        {[&](auto& at, auto& path) {
             return controller.getFileInfoOwnerHandleDFS(at, path, owner, mapped, type);
         },
         "get effective rights"},
        {[&](auto& at, auto& path) {
             return controller.getAttributesHandleDFS(at, path, attributes, mapped, type);
         },
         "get effective rights"},
        {[&](auto& at, auto& path) {
             return controller.getDirectoryQuotaHandleDFS(at, path, quota, mapped, type);
         },
         "get effective rights"},
    };
    for (const auto& [run, subject, subjectThere, pipe] : cases) {
        network->replies = {"5", "20429", "srv2 DATA share", "6"};
        std::string at = server;
        std::string path = selected;
        EXPECT_EQ(run(at, path), 1);
        EXPECT_EQ(run(at, path), 0);
        EXPECT_EQ(at + " " + path, R"(srv2 DATA:\share\a\b)");
        Texts lines = story(); // the requests of changes are logged by names of their own
        std::erase_if(lines, [](const std::string& line) {
            return line.starts_with("Set inherited rights Re") || line.starts_with("Add trustee Re") ||
                   line.starts_with("Failed to process");
        });
        EXPECT_EQ(joined(lines),
                  "open srv1/" + pipe + R"( | ask VOL1:\dfs\link\a\b | close | Unable to )" + subject +
                      " : error returned: 5 | close | open srv1/" + pipe +
                      R"( | ask VOL1:\dfs\link\a\b | close | open srv1/ZelSmbPipe | ask VOL1:\dfs\link)"
                      R"( | targetServer : srv2, targetPath : DATA:\share | getDFPathInfo returned: 0)"
                      " | close | context srv2 | open srv2/" +
                      pipe + R"( | ask DATA:\share\a\b | close | Unable to )" + subjectThere +
                      " on DFS path : error returned: 6 | close");
    }
    change.status = "";
    EXPECT_EQ(cases[5].run(server, selected), 1);
    EXPECT_EQ(story(), (Texts{"open srv1/FilesCmdPipe", "skipping user: ", "close",
                              "Unable to set trustees : error returned: -1", "close"}));
    change.status = "REMOVE";
    network->replies = {"<r><trustees><removeTrustee><result value=\"0\"/></removeTrustee></trustees></r>"};
    EXPECT_EQ(cases[5].run(server, selected), 0);
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
    std::string targetPath;
    std::string status;
    controller.openPipe("srv1", "/IPC$", "/ZelSmbPipe");
    for (const auto& [reply, missing] :
         std::map<std::string, const char*>{{"<r/>", "\"result\""},
                                            {"<r><result/></r>", "no attributes"},
                                            {"<r><result value=\"0\"/><readLink/></r>", "\"junction\""}}) {
        network->replies = {reply};
        EXPECT_DEATH(controller.getDFSPathInfo(mapped, targetServer, targetPath), missing);
    }
    std::int32_t result = 0;
    EXPECT_DEATH(controller.resolveMultipleDFSPath(server, "VOL1:\\", selected, targetServer, targetPath,
                                                   status, result),
                 "no component");
}

} // namespace
} // namespace quorvan::test
