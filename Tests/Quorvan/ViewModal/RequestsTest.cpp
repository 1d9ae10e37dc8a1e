// SPDX-License-Identifier: GPL-3.0-or-later
#include "Tests/Quorvan/ViewModal/Session.h"

namespace quorvan::test {
namespace {

using C = XMLReadWriteController;

/// A request as the table writes it, in full. Of "[a;b;c]" the alternative is taken whose number is `type`;
/// a request without that alternative is empty.
std::string inFull(std::string text, std::size_t type) {
    for (std::size_t begin; (begin = text.find('[')) != std::string::npos;) {
        const std::size_t end = text.find(']', begin);
        std::istringstream alternatives(text.substr(begin + 1, end - begin - 1) + ";");
        std::string chosen;
        for (std::size_t number = 0; number <= type; ++number)
            if (!std::getline(alternatives, chosen, ';'))
                return "";
        text.replace(begin, end + 1 - begin, chosen);
    }
    for (const auto& [shorthand, meaning] : table<2>(R"(
<add/>       | <rights><read/><fileScan/></rights><file/><nameSpace>LONG</nameSpace><symLink/></addTrustee>
<remove/>    | <symLink/><file/><nameSpace>LONG</nameSpace></removeTrustee>
<info>       | <admin><fileRequest><fileInfo><getFileInfo>
</info>      | </getFileInfo></fileInfo></fileRequest></admin>
<admin>      | <adminRequest><virtualIO/>
</admin>     | </adminRequest>
<virtualIO/> | <virtualIO><datastream name="command"/></virtualIO>
<file/>      | <fileName>VOL1:\Café</fileName>
<how/>       | <symLink/><nameSpace>LONG</nameSpace>
)"))
        for (std::size_t at = 0; (at = text.find(shorthand, at)) != std::string::npos;)
            text.replace(at, shorthand.size(), meaning);
    return text;
}

class Requests : public Session {
protected:
    static std::shared_ptr<Trustees> trustee(const char* id, const char* status, const char* type) {
        return std::make_shared<Trustees>("Name", id, std::uint16_t{0x41}, status, "", type);
    }
    static std::shared_ptr<UserQuotaData> quota(const std::string& id, const char* action,
                                                std::optional<std::string> type) {
        auto row = std::make_shared<UserQuotaData>("", id, "Users", 1048576, 0, "");
        row->action = action;
        row->domainIdentity = std::move(type);
        return row;
    }
    const std::string path = "VOL1:\\Cafe\xCC\x81"; // sent with é as one character
    TrusteeList trustees;
    Rights rights;
    std::vector<DirectoryRights> directories;
    std::vector<IdentityFileRights> files;
    OwnerInfo owner;
    AttributesInfo attributes;
    DirectoryQuotaInfo directoryQuota;
    UserQuotaList quotas;
    std::vector<User> users;
    std::vector<Group> groups;
};

/// Each operation sends its request, frames it in the log with its own words, and reads its own result.
TEST_F(Requests, HaveTheirOwnTextsAndResults) {
    const TrusteeList changes = {trustee("1", "ADD", "Morvane"), trustee("2", "REMOVE", "ActiveDirectory"),
                                 trustee("3", "", "Morvane"), trustee("4", "ADD", ""),
                                 trustee("5", "REMOVE", "other")};
    const UserQuotaList limits = {quota("1", "REMOVE", "Morvane"), quota("2", "MODIFY", "ActiveDirectory"),
                                  quota("3", "ADD", "Morvane"),    quota("4", "MODIFY", {}),
                                  quota("5", "ADD", "other"),      quota("6", "NONE", "Morvane")};
    std::string type;
    C& c = controller;
    const std::map<std::string, std::function<std::string()>> operations = {
        {"trustees", [&] { return c.initializeTrustees(path, type, trustees, rights, rights); }},
        {"all effective", [&] { return c.getEffectiveRightsforPath(path, trustees, type); }},
        {"effective", [&] { return c.getEffectiveRightsforUserOnPath(path, "%@e\xCC\x81", rights, type); }},
        {"all paths", [&] { return c.getIRRequest(path, directories, type); }},
        {"paths", [&] { return c.getFSRights(path, {"1"}, files, type); }},
        {"change", [&] { return std::to_string(c.setTrustee(changes, path, type)); }},
        {"add", [&] { return c.setTrusteeAdd(*trustee("%@", "", "Morvane"), path, type); }},
        {"remove", [&] { return c.setTrusteeRemove(*trustee("1", "", "Morvane"), path, type); }},
        {"change below",
         [&] {
             return std::to_string(c.setTrusteeforDir(
                 {{changes[0], path}, {changes[2], path}, {changes[4], "VOL1:\\x"}}, type));
         }},
        {"filter", [&] { return std::to_string(c.setInheritedRights(0xFE1F, path)); }},
        {"owner", [&] { return c.getFileInfoOwner(path, owner, type); }},
        {"attributes", [&] { return c.getAttributes(path, attributes, type); }},
        {"quota", [&] { return c.getDirectoryQuota(path, directoryQuota, type); }},
        {"set owner", [&] { return c.setFileInfoOwner(path, "S-1", type); }},
        {"set attributes", [&] { return c.setAttributes(path, "<hidden enabled=\"no\"/>"); }},
        {"set quota", [&] { return c.setDirectoryQuota(path, "2048"); }},
        {"quotas", [&] { return c.getUserQuotaInfo(":VOLE\xCC\x81:\\a", quotas, type); }},
        {"set quotas", [&] { return c.setUserQuotaInfo("VOLE\xCC\x81:\\a", limits, type); }},
        {"browse", [&] { return c.getMorvaneBrowse("O=e\xCC\x81", users); }},
        {"guid", [&] { return c.getGuid_Morvane("\\e\xCC\x81", "e\xCC\x81"); }},
        {"groups", [&] { return c.getGroupMemberShip_Morvane("ignored", groups, "\\e\xCC\x81", "%@"); }},
        {"link", [&] { return c.getDFSPath(path).substr(0, 3); }},
        {"kind", [&] { return c.getUserType(); }},
    };
    const std::string failed = replyWith("7");
    for (const auto& [name, status, request, before, completion, after, last, first] : table<8>(R"(
trustees | 7 | <info>[<adOnly/>;;]<file/><how/><typeOfInfo><rightsInfo/>[;<objectClass/>;<objectClass/>]</typeOfInfo></info>
    | Get trustee list Request : | getTrusteeList | Get trustee list Response
all effective | 7 | <admin><fileRequest><fileInfo><getAllEffectiveRights>[<adOnly/>;]<file/><symLink/>
    [;<objectClass/>]</getAllEffectiveRights></fileInfo></fileRequest></admin>
    | Get effective rights Request : | getEffectiveRightsforPath | Get effective rights Response
effective | 0 | <admin><virtualIO/><fileRequest><fileInfo><getEffectiveRightsByID[ type="adID"><adOnly/><idOnly/>;>]
    <userID>%@é</userID><file/><nameSpace>LONG</nameSpace><symLink/></getEffectiveRightsByID></fileInfo></fileRequest></admin>
    | Get effective rights for user on path Request : | getEffectiveRightsforUserOnPath
    | Get effective rights for user on path Response
all paths | 7 | <admin><rightsRequest>[<adOnly/>;]<file/><sharePath>ss</sharePath><shareName>ss</shareName><allPaths/>
    <nameSpace>LONG</nameSpace><typeOfInfo><rightsInfo/><standardInfo/>[;<objectClass/>]</typeOfInfo></rightsRequest></admin>
    | Get IR rights Request : | getIRRequest | Get IR rights Response
paths | 0 | <admin><rightsRequest>[<adOnly/>;]<file/><sharePath>ss</sharePath><shareName>ss</shareName><allPaths/>
    <nameSpace>LONG</nameSpace><typeOfInfo><rightsInfo/><standardInfo/>[;<objectClass/>]</typeOfInfo></rightsRequest></admin>
    | Get FSR Request : | getIRRequest | Get FSR Response
change | 7 | <admin><fileRequest><trustees><addTrustee><userID>1</userID><add/>
    <removeTrustee type="adID"><adUser/><userID>2</userID><remove/>
    [<addTrustee type="adID"><adUser/><userID>4</userID><add/>;<addTrustee><userID>4</userID><add/>;]
    [<removeTrustee type="adID"><adUser/><userID>5</userID><remove/>;<removeTrustee><userID>5</userID><remove/>;]
    </trustees></fileRequest></admin> | Add Remove trustee list Request : | setTrustee
    | Add or Remove trustee Response | Failed to process SetTrustees response 7 | skipping user:
change below | 7 | <admin><virtualIO/><fileRequest><trustees><addTrustee><userID>1</userID><add/>
    [<removeTrustee type="adID"><adUser/>;<removeTrustee>;][<userID>5</userID><symLink/>
    <fileName>VOL1:\x</fileName><nameSpace>LONG</nameSpace></removeTrustee>;<userID>5</userID><symLink/>
    <fileName>VOL1:\x</fileName><nameSpace>LONG</nameSpace></removeTrustee>;]</trustees></fileRequest></admin>
    | Add Remove trustee for directory Request : | setTrusteeforDir | Add or Remove trustee for directory Response
    | Failed to process SetTrustees for directory response 7 | skipping user:
add | 7 | <admin>[<fileRequest><trustees><addTrustee type="adID"><adUser/><userID>%@</userID><add/></trustees></fileRequest>;
    <fileRequest><trustees><addTrustee><userID>%@</userID><add/></trustees></fileRequest>;]</admin>
    | Add trustee Request : | setTrusteeAdd | Add trustee Response | Failed to process SetTrustees response 7
remove | 7 | <admin>[<fileRequest><trustees><removeTrustee type="adID"><adUser/><userID>1</userID><remove/></trustees>
    </fileRequest>;<fileRequest><trustees><removeTrustee><userID>1</userID><remove/></trustees></fileRequest>;]</admin>
    | Remove trustee Request : | setTrusteeRemove | Remove trustee Response | Failed to process SetTrustees response 7
filter | 7 | <admin><fileRequest><trustees><modifyInheritedRightsFilter><file/><symLink/><inheritedRightsFilter><read/>
    <write/><create/><erase/></inheritedRightsFilter></modifyInheritedRightsFilter></trustees></fileRequest></admin>
    | Set inherited rights Request : | setInheritedRights | Set inherited rights Response
owner | 7 | <info>[<adOnly/>;]<idOnly/><file/><how/><typeOfInfo><idInfo/></typeOfInfo></info>
    | Get file info owner Request | get file info owner Reply | Get file info owner Reply
attributes | 7 | <info>[<adOnly/>;]<idOnly/><file/><how/><typeOfInfo><standardInfo/></typeOfInfo></info>
    | Get Attributes Request : | Get File Attributes Request | Get Attributes Request
quota | 7 | <info>[<adOnly/>;]<idOnly/><file/><how/><typeOfInfo><directoryQuotaInfo/></typeOfInfo></info>
    | Get Directory Quota Request | Get Directory Quota Request | Get Directory Quota Request
set owner | 0 | <admin><fileRequest><fileInfo><setFileInfo><nameSpace>LONG</nameSpace><file/><symLink/><idInfo>
    <creatorID[ type = "adID">;>]S-1</creatorID></idInfo></setFileInfo></fileInfo></fileRequest></admin>
    | Set file info owner Request | set file info owner Request | Set file info owner Request
set attributes | 0 | <admin><fileRequest><fileInfo><setFileInfo><nameSpace>LONG</nameSpace><file/><symLink/><attributes>
    <hidden enabled="no"/></attributes></setFileInfo></fileInfo></fileRequest></admin>
    | Set Attributes Request : | Set File Attributes Request | Set Attributes Reply
set quota | 0 | <admin><fileRequest><directoryQuotas><addQuota><file/><quotaAmount>2048</quotaAmount></addQuota></directoryQuotas>
    </fileRequest></admin> | Set Directory Quota Request | Set Directory Quota Request | Set Directory Quota Request
quotas | 7 | <admin><userRequest><userQuota><browse>[<adOnly/><idOnly/>;]<volumeName>VOLÉ</volumeName></browse></userQuota>
    </userRequest></admin> | Get User Quota Request: | Get User Quota Request | Get User Quota Reply
set quotas | 7 | <admin><userRequest><userQuota><set><volumeName>VOLÉ</volumeName><id>1</id>
    <quota>9223372036854775807</quota></set><set type="adID"><volumeName>VOLÉ</volumeName><id>2</id><quota>1048576</quota></set>
    <set><volumeName>VOLÉ</volumeName><id>3</id><quota>1048576</quota></set></userQuota></userRequest></admin>
    | Set User Quota Request: | Set User Quota Request | Set User Quota Reply | | skipping user:
browse | 7 | <virtualIO/><trellRequest><trellObject><trellSearch><trellBaseDN>O=é</trellBaseDN></trellSearch></trellObject>
    </trellRequest> | Get Morvane browse request : | getDFSPath | Get Morvane browse Response
guid | 7 | <admin><trellRequest><trellObject><getAttribute><name>é</name><context>\é</context><attributeName>guid</attributeName>
    </getAttribute></trellObject></trellRequest></admin> | Get Guid Request : | getDFSPath | Get Morvane GUID Response
groups | 7 | <admin><trellRequest><trellObject><getAttribute><name>%@</name><context>\é</context><attributeName>group membership
    </attributeName></getAttribute></trellObject></trellRequest></admin>
    | Get GroupMembership Request : | getDFSPath | Get Morvane Groups Response
link | <r> | <zelSmbGetInfo><readLink><pathName>VOL1:\Café</pathName></readLink></zelSmbGetInfo>
    | Get DFS Path Request : | getDFSPath | Get DFS Path Response
kind | ActiveDirectory | <zelSmbGetInfo><userType/></zelSmbGetInfo> | Get userType Request : | | Get userType Response
)")) {
        const std::array types = {"ActiveDirectory", "Morvane", "morvane"};
        for (std::size_t number = 0; number < types.size(); ++number) {
            SCOPED_TRACE(name + " " + types[number]);
            type = types[number];
            world.network->calls.clear();
            reply(failed);
            EXPECT_EQ(operations.at(name)(), status);
            const std::string sent = inFull(request, number);
            EXPECT_EQ(written(), sent);
            Texts lines = {first + " ", before + (before.ends_with(':') ? " " + sent : ""),
                           "response.deinitialize" + (completion.empty() ? "" : " " + completion),
                           after + ": " + failed, last};
            std::erase_if(lines, [](const std::string& line) { return line.empty() || line == " "; });
            EXPECT_EQ(log.take(), lines);
        }
    }
    world.network->loss = 104;
    for (const auto& [name, run] : operations) {
        reply(replyWith("0"));
        EXPECT_EQ(run(), name == "link" || name == "kind" ? "" : "104") << name;
        EXPECT_EQ(controller.loss(), 104);
        EXPECT_THAT(log.take(), testing::Contains("The connection to the server was lost: 104"));
    }
    EXPECT_TRUE(trustees.empty() && directories.empty() && !owner.result && !attributes.result &&
                !directoryQuota.result && users.empty() && groups.empty());
}

/// A failure is logged when the status says so or one of the counters.
TEST_F(Requests, TellOfTrusteesThatCouldNotBeChanged) {
    const auto change = trustee("1", "ADD", "Morvane");
    const std::pair<std::function<std::string()>, bool> operations[] = {
        {[&] { return std::to_string(controller.setTrustee({change}, path, "")); }, true},
        {[&] {
             return std::to_string(controller.setTrusteeforDir({{change, path}}, ""));
         },
         true},
        {[&] { return controller.setTrusteeAdd(*change, path, "Morvane"); }, false},
        {[&] { return controller.setTrusteeRemove(*change, path, "Morvane"); }, false}};
    for (const auto& [run, returnsNumber] : operations) {
        for (const auto& [first, number, complaint] : table<3>(R"(
<x/>                  | 0  | no
<result value="-5"/>  | -5 | no
<result value="9"/>   | 9  | yes
<addTrustee/>         | 0  | yes
<removeTrustee/>      | 0  | yes
)")) {
            const std::string ok = "<result value=\"0\"/>";
            reply("<r>" + first + "<trustees><addTrustee>" + ok + "</addTrustee><removeTrustee>" + ok +
                  "</removeTrustee></trustees></r>");
            log.take();
            EXPECT_EQ(run(), returnsNumber ? number : "0");
            const bool told = log.lines.size() == 4 && log.lines[3].starts_with("Failed to process SetTr") &&
                              log.lines[3].ends_with(" response " + number);
            EXPECT_EQ(told, complaint == "yes") << first;
        }
    }
}

TEST_F(Requests, NameEachRightByItsBit) {
    const std::array tags = {"read",          "write",    "",       "create",    "erase",
                             "accessControl", "fileScan", "modify", "supervisor"};
    for (std::size_t number = 0; number < 16; ++number) {
        const auto bit = static_cast<std::uint16_t>(1U << number);
        const std::string name = number < tags.size() ? tags[number] : "";
        const std::string tag = name.empty() ? "" : "<" + name + "/>";
        EXPECT_EQ(C::createRightsForXML(bit), tag);
        const auto read = name.empty() ? std::uint16_t{0} : bit;
        XMLResponseParser parser;
        parser.getdictionaryfromXMLData("<r><effectiveRights>" + tag + "</effectiveRights></r>");
        EXPECT_EQ(parser.arrStack.at(0)->effectiveRights, read);
        C::decodeFSRInfo("<r><file><path/><rightsInfo><trusteeList><t><id>1</id><rights>" + tag +
                             "</rights></t></trusteeList></rightsInfo></file></r>",
                         {"1"}, files);
        EXPECT_EQ(files.back().rights.frights, read);
    }
    EXPECT_EQ(C::createRightsForXML(0xFFFF),
              "<read/><write/><create/><modify/><erase/><fileScan/><accessControl/><supervisor/>");
    EXPECT_EQ(C::createAddTrusteeRequest("S-1", 0x41, path),
              inFull("<addTrustee type=\"adID\"><adUser/><userID>S-1</userID><add/>", 0));
    EXPECT_EQ(C::createAddTrusteeRequestMorvane("%@", 0x41, path),
              inFull("<addTrustee><userID>%@</userID><add/>", 0));
}

TEST_F(Requests, TellTheKindOfUser) {
    for (const auto& [text, kind] : table<2>(R"(
<r>MORVANE</r>         | Morvane
not XML, é, eMorvanes  | Morvane
morvan                 | ActiveDirectory
)")) {
        reply(text);
        EXPECT_EQ(controller.getUserType(), kind) << text;
    }
}

TEST_F(Requests, SendQuotasInBatchesUntilOneIsNotFull) {
    for (const auto& [count, batches] : table<2>(R"(
0   | none
1   | 0-0
299 | 0-298
300 | 0-299 > none
301 | 0-299 > 300-300
600 | 0-299 > 300-599 > none
601 | 0-299 > 300-599 > 600-600
)")) {
        quotas.clear();
        for (int row = 0; row < std::stoi(count); ++row)
            quotas.push_back(quota(std::to_string(row), "ADD", "Morvane"));
        world.network->calls.clear();
        EXPECT_EQ(controller.setUserQuotaInfo("VOL1:\\", quotas, ""), "0");
        Texts sent;
        std::size_t next = 0;
        for (const std::string& call : world.network->calls) {
            if (!call.starts_with("write "))
                continue;
            const std::size_t first = next;
            while (call.find("<id>" + std::to_string(next) + "</id>") != std::string::npos)
                ++next;
            sent.push_back(next == first ? "none" : std::to_string(first) + "-" + std::to_string(next - 1));
        }
        EXPECT_EQ(joined(sent), batches);
    }
    const std::string ok = replyWith("0");
    world.network->pieces = {ok, "", replyWith("20008"), "", "<r/>", ""}; // the last would be fatal
    EXPECT_EQ(controller.setUserQuotaInfo("VOL1:\\", {quotas.begin(), quotas.end()}, ""), "20008");
    EXPECT_TRUE(world.network->pieces.empty()) << "the batches behind a failure are sent all the same";
    reply("<r/>");
    EXPECT_DEATH(controller.setUserQuotaInfo("VOL1:\\", {}, ""), "\"result\"");
    EXPECT_DEATH(controller.setUserQuotaInfo("::", {}, ""), "names no volume");
    quotas[1]->action.reset();
    EXPECT_EQ(C::createXMLforUsers("V", std::span(quotas).subspan(1, 1), ""), "");
    quotas[0]->SID.reset();
    EXPECT_DEATH(C::createXMLforUsers("V", std::span(quotas).first(1), ""), "has no user");
}

} // namespace
} // namespace quorvan::test
