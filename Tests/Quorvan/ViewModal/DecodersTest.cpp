// SPDX-License-Identifier: GPL-3.0-or-later
#include "Tests/Quorvan/ViewModal/Session.h"

#include <iterator>
#include <regex>

namespace quorvan::test {
namespace {

std::string row(const std::vector<std::optional<std::string>>& fields) {
    std::string all;
    for (const auto& field : fields)
        all += "," + field.value_or("none");
    return all.substr(1);
}

// What operations read, as the table below writes it.

std::string print(const Rights& rights) {
    return std::to_string(rights.uright);
}
std::string print(const Texts& texts) {
    return joined(texts, " ");
}
std::string print(const std::shared_ptr<Trustees>& t) {
    const std::string rights = std::to_string(t->rights);
    return row({t->trusteeName, t->trusteeID, t->trusteeType, rights, t->status, t->domainType});
}
std::string print(const DirectoryRights& r) {
    return print(r.trustee) + "," + r.path.str();
}
std::string print(const IdentityFileRights& r) {
    return row({r.id, r.rights.fpath, std::to_string(r.rights.frights)});
}
std::string print(const OwnerInfo& info) {
    return row({info.name, info.id, info.result});
}
std::string print(const AttributesInfo& info) {
    return row({print(info.attributes.value_or(Texts{"none"})), info.result});
}
std::string print(const DirectoryQuotaInfo& info) {
    return row({info.quotaAmount, info.usedAmount, info.result});
}
std::string print(const std::shared_ptr<UserQuotaData>& q) {
    return row({q->displayName, q->SID, q->userType, q->action, std::to_string(*q->quotaLimit),
                std::to_string(*q->quotaUsed), std::to_string(*q->quotaAvailable), q->domainIdentity});
}
std::string print(const User& user) {
    return row({user.trusteeName, user.trusteeType, user.trusteeID});
}
std::string print(const Group& group) {
    return row({group.groupName, group.id, group.DN});
}

/// A list that operations append to: it begins with an entry that must stay where it is.
template <class Entry>
struct List : std::vector<Entry> {
    List()
        : std::vector<Entry>(1) {}
};
template <class Entry>
std::string print(const List<Entry>& list) {
    EXPECT_FALSE(list.empty());
    Texts entries;
    for (std::size_t index = 1; index < list.size(); ++index)
        entries.push_back(print(list[index]));
    return joined(entries);
}

/// A status, and what was read on the way to it.
template <class What>
std::string came(const std::string& status, const What& what) {
    const std::string text = print(what);
    return (status.empty() ? "none" : status) + (text.empty() ? "" : " > " + text);
}

class Decoders : public Session {
protected:
    Decoders() {
        know("2", {{"dsAttrTypeStandard:RecordType", {"dsRecTypeStandard:Groups"}}});
        know("S-1", {{"dsAttrTypeStandard:PrimaryNTDomain", {"KELP"}},
                     {"dsAttrTypeStandard:RecordName", {"bob:x"}}});
    }
    void know(const char* sid, const std::map<std::string, Texts>& attributes) {
        world.directory->records[sid] = {std::make_shared<FakeRecord>(attributes)};
    }
    /// What an operation comes to and what it logs about the reply. It is named in the table, together with
    /// its identity type or the identities it looks for.
    std::string run(const std::string& name, const std::string& type) {
        XMLReadWriteController& c = controller;
        List<std::shared_ptr<Trustees>> trustees;
        List<DirectoryRights> directories;
        List<IdentityFileRights> paths;
        List<std::shared_ptr<UserQuotaData>> quotas;
        List<User> users;
        List<Group> groups;
        Rights filter{0xFFFF}, effective{0xFFFF};
        OwnerInfo owner;
        AttributesInfo attributes;
        DirectoryQuotaInfo quota;
        Texts names = {"before"}, target(2, "before");
        std::istringstream words(type);
        const Texts ids{std::istream_iterator<std::string>(words), {}};
        const std::map<std::string, std::function<std::string()>> operations = {
            {"trustees",
             [&] { return came(c.initializeTrustees("V:", type, trustees, filter, effective), trustees); }},
            {"masks", [&] { return c.initializeTrustees("V:", type, trustees, filter, effective); }},
            {"all effective",
             [&] { return came(c.getEffectiveRightsforPath("V:", trustees, type), trustees); }},
            {"effective",
             [&] { return came(c.getEffectiveRightsforUserOnPath("V:", "A", effective, type), effective); }},
            {"named", [&] { return came(c.getEffectiveRightsForMappedUser("V:", names, type), names); }},
            {"all paths", [&] { return came(c.getIRRequest("V:", directories, type), directories); }},
            {"paths", [&] { return came(c.getFSRights("V:", ids, paths, "Morvane"), paths); }},
            {"owner", [&] { return came(c.getFileInfoOwner("V:", owner, type), owner); }},
            {"attributes", [&] { return came(c.getAttributes("V:", attributes, type), attributes); }},
            {"quota", [&] { return came(c.getDirectoryQuota("V:", quota, type), quota); }},
            {"quotas", [&] { return came(c.getUserQuotaInfo("V:", quotas, type), quotas); }},
            {"browse", [&] { return came(c.getMorvaneBrowse("", users), users); }},
            {"guid", [&] { return came(c.getGuid_Morvane("", ""), Texts()); }},
            {"groups", [&] { return came(c.getGroupMemberShip_Morvane("", groups, "", ""), groups); }},
            {"link", [&] { return came(c.getDFSPathInfo("V:", target[0], target[1]), target); }},
        };
        log.take();
        std::string outcome = operations.at(name)();
        if (name == "masks")
            outcome += " > " + print(filter) + " " + print(effective);
        for (std::size_t line = 3; line < log.lines.size(); ++line)
            outcome += " > " + std::regex_replace(log.lines[line], std::regex("line [0-9]+: .*"), "…");
        return outcome;
    }
};

const std::string trusteeList =
    R"(<trusteeInfo><name objectClass="User">a</name><id>1</id><rights><read/></rights></trusteeInfo>)"
    "<trusteeInfo><name>b</name><id>2</id></trusteeInfo>" // has the rights and the type of the one before
    "<trusteeInfo><id>S-1-1-0</id><rights><supervisor/></rights></trusteeInfo>" // … and the name
    R"(<trusteeInfo><name objectClass="X">c</name><rights><write/></rights></trusteeInfo>)"
    "<trusteeInfo><id>3</id></trusteeInfo><inheritedRightsFilter><read/></inheritedRightsFilter>"
    "<inheritedRightsFilter><write/></inheritedRightsFilter><effectiveRights><modify/></effectiveRights>";

const std::string allPaths =
    R"(<file><path>V:\a</path><rightsInfo><trusteeList>)"
    R"(<trusteeInfo><name objectClass="U">x</name><id>A</id><rights><read/></rights></trusteeInfo>)"
    "<trusteeInfo><name>y</name><id>G1</id><rights><read/><fileScan/><unknown/></rights></trusteeInfo>"
    R"(<trusteeInfo/></trusteeList></rightsInfo></file><other><path>V:\o</path></other>)"
    R"(<file><rightsInfo><trusteeList/></rightsInfo><path>V:\b</path></file>)"
    R"(<file><path>V:\c</path><rightsInfo><trusteeList>)"
    "<trusteeInfo><rights><write/></rights><id>A</id></trusteeInfo><trusteeInfo><id>B</id><id>A</id>"
    "<name>x</name><rights><create/><write/></rights></trusteeInfo></trusteeList></rightsInfo></file>"
    "<trusteeInfo><name>z</name><id>Z</id></trusteeInfo>";

const std::string quotaUsers =
    "<userList><user><id>S-1</id><userName>.bob.</userName><quota>9223372036854775807</quota><spaceUsed>-5</"
    "spaceUsed>"
    "</user><user><quota>9223372036854775808</quota><spaceUsed>12x</spaceUsed></user>"
    "</userList>";

/// Each reply is the elements of the path, the innermost beginning with the result, around the rest. One
/// without path stands as it is, and "*" stands for the lists above.
TEST_F(Decoders, ReadReplies) {
    const std::string ok = "<result value=\"0\"/>"; // of the reply as a whole
    const std::map<std::string, const std::string*> lists = {
        {"trustees", &trusteeList}, {"masks", &trusteeList}, {"all effective", &trusteeList},
        {"all paths", &allPaths},   {"paths", &allPaths},    {"quotas", &quotaUsers}};
    for (const auto& [name, type, path, result, inner, outcome] : table<6>(R"(
trustees | Morvane | r fileInfo getFileInfo | 0 | * | 0 > a,1,User,1,,Morvane > b,2,User,1,,Morvane >
    b,S-1-1-0,User,256,,Morvane > c,3,X,2,,Morvane
trustees | ActiveDirectory | r fileInfo getFileInfo | 0 | * | 0 > a,1,User,1,,ActiveDirectory >
    b,2,Groups,1,,ActiveDirectory > b,S-1-1-0,User,256,,ActiveDirectory > c,3,X,2,,ActiveDirectory
trustees | | r fileInfo getFileInfo | 20008 | * | 20008
trustees | Morvane | | | no XML | 0 > Error parsing KELP Reply - …
trustees | Morvane | r fileInfo getFileInfo | 0 | <trusteeInfo><id>1</id><rights/></trusteeInfo> | fatal no name or no rights
trustees | Morvane | r fileInfo getFileInfo | 0 | <trusteeInfo><name/><id>1</id></trusteeInfo> | fatal no name or no rights
masks | Morvane | r fileInfo getFileInfo | 0 | * | 0 > 2 128
masks | Morvane | r fileInfo getFileInfo | 0 | | 0 > 65535 65535
masks | Morvane | r fileInfo getFileInfo | 7 | * | 7 > 65535 65535
all effective | Morvane | r fileInfo getAllEffectiveRights | 0
    | <accessRights><trustee>x</trustee><id>A</id><rights><modify/></rights></accessRights> | 0 > x,A,,128,,Morvane
all effective | Morvane | r fileInfo getAllEffectiveRights | 7 | * | 7
effective | Morvane | r | 7 | | 0 > 65535
effective | Morvane | r | 7 | <effectiveRights><read/></effectiveRights> | 0 > 1
named | Morvane | r fileInfo getFileInfo | 20429
    | <rightsInfo><effectiveRights><supervisor/><x/></effectiveRights></rightsInfo> | 20429 > supervisor x
named | Morvane | r fileInfo getFileInfo | 0 | | -1 > before > Error parsing ownerInfo : error 0
named | Morvane | | | <r><fileInfo><getFileInfo><result/><rightsInfo><effectiveRights/></rightsInfo></getFileInfo>
    </fileInfo></r> | none
named | Morvane | | | | -1 > before > Error parsing ownerInfo : error 4
named | Morvane | | | <r><fileInfo><getFileInfo><rightsInfo/></getFileInfo></fileInfo></r> | fatal "result"
named | Morvane | r fileInfo getFileInfo | 0 | <rightsInfo><effectiveRights>t</effectiveRights></rightsInfo> | fatal text
all paths | Morvane | r | 0 | * | 0 > x,A,U,1,,Morvane,V:\a > y,G1,U,65,,Morvane,V:\a > y,A,U,2,,Morvane,V:\c >
    x,B,U,10,,Morvane,V:\c
all paths | Morvane | r | 3 | * | 3
all paths | Morvane | r | 0 | <trusteeInfo><id>A</id></trusteeInfo> | fatal no name or no rights
paths | A G1 | r | 9 | * | 0 > A,V:\a,1 > G1,V:\a,65 > A,V:\c,10
paths | G1 a | r | 0 | * | 0 > G1,V:\a,65
paths | | r | 0 | * | 0
paths | A | | | <r><file><rightsInfo><trusteeList><t><id>A</id><rights/></t></trusteeList></rightsInfo><path/></file>
    <file/></q> | 0 > Error parsing FSR Response : error …
paths | A | r | 0 | <file><path>p</path></file> | fatal no path or no list
paths | A | r | 0 | <file><rightsInfo><trusteeList/></rightsInfo></file> | fatal no path or no list
paths | A | r | 0 | <file><path>p</path><rightsInfo/><rightsInfo><trusteeList/></rightsInfo></file> | fatal no path or no list
owner | Morvane | r fileInfo getFileInfo | 0 | <idInfo><creator><name>K\b</name></creator></idInfo> | 0 > K\b,,done
owner | Morvane | r fileInfo getFileInfo | 20407 | <idInfo><creator><name>K\b</name></creator></idInfo> | 20407 > none,none,none
owner | Morvane | | | no XML | 0 > none,none,none > Error parsing KELP Reply - … > Error parsing ownerInfo - …
owner | Morvane | r fileInfo getFileInfo | 0 | <idInfo/> | fatal "creator"
attributes | Morvane | r fileInfo getFileInfo | 0 | <standardInfo><attributes><readOnly enabled="no"/><other/><archive/>
    <ReadOnly/></attributes></standardInfo> | 0 > readOnly archive,done
attributes | Morvane | | | no XML | 0 > none,none > Error parsing KELP Reply - … > Error parsing ownerInfo - …
attributes | Morvane | r fileInfo getFileInfo | 0 | <standardInfo><attributes>t</attributes></standardInfo> | fatal text among
quota | Morvane | r fileInfo getFileInfo | 0 | <quotaInfo><quotaAmount>-1</quotaAmount></quotaInfo> | 0 > -1,,done
quota | Morvane | r fileInfo getFileInfo | 0 | <quotaInfo><usedAmount>5</usedAmount></quotaInfo> | 0 > ,5,done
quota | Morvane | | | no XML | 0 > none,none,none > Error parsing KELP Reply - … > Error parsing Directory Quota Response - …
quotas | Morvane | r userQuota browse | 7 | * | 7 > .bob.,S-1,Users,NONE,9223372036854775807,-5,0,Morvane >
    ,,Users,NONE,0,0,0,Morvane
quotas | ActiveDirectory | r userQuota browse | 0 | * | 0 > KELP\bob,S-1,Users,NONE,9223372036854775807,-5,0,ActiveDirectory >
    Unknown\Unknown,,Users,NONE,0,0,0,ActiveDirectory
quotas | | r userQuota browse | 0 | * | 0
quotas | Morvane | | | <r><userQuota><browse><userList><user><id>1</id></user></userList> | 0 >
    Error parsing UserQuota Response : error … > Error parsing KELP Reply - …
quotas | Morvane | r userQuota browse | 0 | | fatal "userList"
browse | | r trellObject trellSearch | 0 | <e><dn>a</dn><dn>b</dn><objectClass>user</objectClass><userID>1</userID></e>
    <e><dn>c</dn><objectClass/></e>text<e/><x><y/></x> | 0 > b,user,1 > c,, > ,,
browse | | r trellObject trellSearch | 9 | <e><dn>a</dn></e> | 9
browse | | r | 5 | | 5
browse | | | | no XML | none > Error parsing KELP Reply - … > Error parsing TRELL Response : error …
browse | | r | 0 | | fatal "result"
guid | | r trellObject getAttribute | 0 | <trellAttribute><value>a</value><x>c</x></trellAttribute> | a
guid | | r trellObject getAttribute | 0 | <trellAttribute><x/><value>b</value></trellAttribute> | 0
guid | | r trellObject getAttribute | 0 | <trellAttribute><value/></trellAttribute> | none
guid | | r trellObject getAttribute | 0 | <trellAttribute/> | 0
guid | | r trellObject getAttribute | 9 | <trellAttribute><value>a</value></trellAttribute> | 9
guid | | r | 5 | | 5
guid | | | | no XML | 0 > Error parsing KELP Reply - … > Error parsing TRELL Morvane Guid Response : error …
groups | | r trellObject getAttribute | 0 | <trellAttribute><value>a</value><value>b</value><x>c</x></trellAttribute>
    | 0 > a,, > b,, > ,,
groups | | r trellObject getAttribute | 0 | <trellAttribute/> | 0
groups | | r trellObject getAttribute | 9 | <trellAttribute><value>a</value></trellAttribute> | 9
groups | | r | 5 | | 5
groups | | | | no XML | 0 > Error parsing KELP Reply - … > Error parsing TRELL Morvane Groups Response : error …
link | | r | 0 | <readLink><junction><server>a.b.c</server><volumeName>D</volumeName><pathName>s\t</pathName></junction></readLink>
    | 0 > a D:\s\t > targetServer : a, targetPath : D:\s\t
link | | r | 0 | <readLink><junction/></readLink> | 0 > : > targetServer : , targetPath : :
link | | r | 30005 | <readLink><junction><server>a</server></junction></readLink> | 30005 > before before
link | | | | no XML | -1 > before before > Error parsing KELP Reply - …
link | | | | <r/> | fatal "result"
link | | | | <r><result/></r> | fatal no attributes
link | | r | 0 | <readLink/> | fatal "junction"
)")) {
        SCOPED_TRACE(name + " " + type + " " + path + " " + inner);
        std::string text = inner == "*" ? *lists.at(name) : inner;
        std::istringstream elements(path);
        const Texts around{std::istream_iterator<std::string>(elements), {}};
        const std::string value = "<result value=\"" + result + "\">";
        if (!around.empty())
            text = value + (around.back() == "getFileInfo" ? "<description>done</description>" : "") +
                   "</result>" + text;
        for (std::size_t depth = around.size(); depth > 0; --depth)
            text = "<" + around[depth - 1] + ">" + (depth == 1 && around.size() > 1 ? ok : "") + text + "</" +
                   around[depth - 1] + ">";
        reply(text);
        if (outcome.starts_with("fatal "))
            EXPECT_DEATH(run(name, type), outcome.substr(6));
        else
            EXPECT_EQ(run(name, type), outcome);
    }
}

TEST_F(Decoders, AnnounceAListToTheDirectoryAndAskOnceForWhatIsTheSame) {
    const std::string result = "<result value=\"0\"/>";
    for (const char* type : {"Morvane", "ActiveDirectory"}) {
        reply("<r><fileInfo><getFileInfo>" + result + trusteeList + "</getFileInfo></fileInfo></r>");
        run("trustees", type);
        reply("<r><userQuota><browse>" + result + quotaUsers + "</browse></userQuota></r>");
        run("quotas", type);
        const bool asked = *type == 'A';
        EXPECT_EQ(world.directory->stateReads, asked ? 2 : 0);
        EXPECT_EQ(world.bundle->featureReads, asked ? 2 : 0);
        EXPECT_EQ(world.directory->queries.size(), asked ? 4U + 3U : 0U); // known: once for both of its names
        const std::vector<Texts> lists = {{"1", "2", "S-1-1-0", "3"}, {"S-1", ""}};
        EXPECT_EQ(world.directory->prefetches, asked ? lists : std::vector<Texts>());
    }
}

} // namespace
} // namespace quorvan::test
