// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "Simulator/KelpServer.h"

#include <algorithm>
#include <string>
#include <vector>

namespace quorvan::simulator {

/// A server with one folder and a handful of identities, and the requests about it.
struct SmallServer {
    KelpServer server;
    const Identity& boss = server.identities().addDomainUser("boss", "S-1-5-21-1");
    const Identity& clerk = server.identities().addDomainUser("Zoë", "S-1-5-21-2");
    const Identity& guest = server.identities().addDomainUser("guest", "S-1-5-21-3");
    const Identity& warden = server.identities().addTreeUser("Käthe", "Haus", "guid-4");
    static constexpr const char* folder = "VOL1:\\Dir\\Sub";

    SmallServer() {
        server.addAccount("boss", "b", boss);
        server.addAccount("clerk", "c", clerk);
        server.addAccount("guest", "g", guest);
        server.addAccount("warden", "w", warden);
        server.setTrustee("VOL1:\\", boss, right::supervisor);
        server.setTrustee(folder, clerk, right::read | right::accessControl);
        server.setTrustee(folder, warden, right::read | right::write | right::fileScan);
        server.setFilter(folder, right::fileScan);
    }

    std::string ask(const std::string& user, const std::string& request, const char* pipe = "/FilesCmdPipe") {
        return server.handle(pipe, user, request);
    }

    Mask rightsAt(const Identity& identity) {
        return server.volumes().find(folder)->trustees.rightsOf(identity).value_or(0xFFFF);
    }
};

inline const std::string commandStream = R"(<virtualIO><datastream name="command"/></virtualIO>)";

inline std::string admin(const std::string& inner) {
    return "<adminRequest>" + commandStream + inner + "</adminRequest>";
}

inline std::string changes(const std::string& elements) {
    return admin("<fileRequest><trustees>" + elements + "</trustees></fileRequest>");
}

inline std::string add(const std::string& sid, const std::string& rights,
                       const std::string& path = SmallServer::folder) {
    return R"(<addTrustee type="adID"><adUser/><userID>)" + sid + "</userID><rights>" + rights +
           "</rights><fileName>" + path + "</fileName><nameSpace>LONG</nameSpace><symLink/></addTrustee>";
}

inline std::string addInTree(const std::string& id, const std::string& rights) {
    return "<addTrustee><userID>" + id + "</userID><rights>" + rights + "</rights><fileName>" +
           SmallServer::folder + "</fileName><nameSpace>LONG</nameSpace><symLink/></addTrustee>";
}

inline std::string remove(const std::string& sid, const std::string& path = SmallServer::folder) {
    return R"(<removeTrustee type="adID"><adUser/><userID>)" + sid + "</userID><symLink/><fileName>" + path +
           "</fileName><nameSpace>LONG</nameSpace></removeTrustee>";
}

inline std::string filterRequest(const std::string& rights) {
    return changes(std::string("<modifyInheritedRightsFilter><fileName>") + SmallServer::folder +
                   "</fileName><symLink/><inheritedRightsFilter>" + rights +
                   "</inheritedRightsFilter></modifyInheritedRightsFilter>");
}

inline std::string listInDomain(const std::string& path = SmallServer::folder) {
    return admin("<fileRequest><fileInfo><getFileInfo><adOnly/><fileName>" + path +
                 "</fileName><symLink/><nameSpace>LONG</nameSpace><typeOfInfo><rightsInfo/></typeOfInfo>"
                 "</getFileInfo></fileInfo></fileRequest>");
}

inline std::string listInTree() {
    return admin(
        std::string("<fileRequest><fileInfo><getFileInfo><fileName>") + SmallServer::folder +
        "</fileName><symLink/><nameSpace>LONG</nameSpace><typeOfInfo><rightsInfo/><objectClass/></typeOfInfo>"
        "</getFileInfo></fileInfo></fileRequest>");
}

inline std::string fileInfo(const std::string& operation) {
    return admin("<fileRequest><fileInfo>" + operation + "</fileInfo></fileRequest>");
}

/// Owner ("idInfo"), attributes ("standardInfo") or quota ("directoryQuotaInfo") of a path.
inline std::string getInfo(const std::string& type, bool inDomain = true,
                           const std::string& path = SmallServer::folder) {
    return fileInfo(std::string("<getFileInfo>") + (inDomain ? "<adOnly/>" : "") + "<idOnly/><fileName>" +
                    path + "</fileName><symLink/><nameSpace>LONG</nameSpace><typeOfInfo><" + type +
                    "/></typeOfInfo></getFileInfo>");
}

inline std::string setInfo(const std::string& change) {
    return fileInfo(std::string("<setFileInfo><nameSpace>LONG</nameSpace><fileName>") + SmallServer::folder +
                    "</fileName><symLink/>" + change + "</setFileInfo>");
}

inline std::string setOwner(const std::string& id, bool inDomain = true) {
    return setInfo(std::string("<idInfo><creatorID") + (inDomain ? " type = \"adID\"" : "") + ">" + id +
                   "</creatorID></idInfo>");
}

/// Switches on these of the eight attributes, and announces them in front of all.
inline std::string setAttributes(const std::vector<std::string>& on) {
    std::string tags;
    for (const std::string& name : on)
        tags += "<" + name + " enabled=\"yes\"/>";
    for (const char* name : {"readOnly", "hidden", "archive", "immediatePurge", "renameInhibit",
                             "deleteInhibit", "compressImmediate", "doNotCompress"}) {
        const bool isOn = std::find(on.begin(), on.end(), name) != on.end();
        tags.append("<").append(name).append(isOn ? " enabled=\"yes\"/>" : " enabled=\"no\"/>");
    }
    return setInfo("<attributes>" + tags + "</attributes>");
}

inline std::string setDirectoryQuota(const std::string& amount) {
    return admin(std::string("<fileRequest><directoryQuotas><addQuota><fileName>") + SmallServer::folder +
                 "</fileName><quotaAmount>" + amount +
                 "</quotaAmount></addQuota></directoryQuotas></fileRequest>");
}

inline std::string allEffectiveRights(bool inDomain) {
    return fileInfo(std::string("<getAllEffectiveRights>") + (inDomain ? "<adOnly/>" : "") + "<fileName>" +
                    SmallServer::folder + "</fileName><symLink/>" + (inDomain ? "" : "<objectClass/>") +
                    "</getAllEffectiveRights>");
}

inline std::string effectiveRightsOf(const std::string& id, bool inDomain = true) {
    return admin(commandStream + "<fileRequest><fileInfo><getEffectiveRightsByID" +
                 (inDomain ? " type=\"adID\"><adOnly/><idOnly/>" : ">") + "<userID>" + id +
                 "</userID><fileName>" + SmallServer::folder +
                 "</fileName><nameSpace>LONG</nameSpace><symLink/></getEffectiveRightsByID></fileInfo>"
                 "</fileRequest>");
}

inline std::string rightsOfAllPaths(const std::string& path, bool inDomain = true) {
    return admin(std::string("<rightsRequest>") + (inDomain ? "<adOnly/>" : "") + "<fileName>" + path +
                 "</fileName><sharePath>ss</sharePath><shareName>ss</shareName><allPaths/>"
                 "<nameSpace>LONG</nameSpace><typeOfInfo><rightsInfo/><standardInfo/>" +
                 (inDomain ? "" : "<objectClass/>") + "</typeOfInfo></rightsRequest>");
}

inline std::string userQuotaRequest(const std::string& inner) {
    return admin("<userRequest><userQuota>" + inner + "</userQuota></userRequest>");
}

inline std::string browseQuotas(bool inDomain, const std::string& volume = "VOL1") {
    return userQuotaRequest(std::string("<browse>") + (inDomain ? "<adOnly/><idOnly/>" : "") +
                            "<volumeName>" + volume + "</volumeName></browse>");
}

inline std::string setQuota(const std::string& id, const std::string& amount, bool inDomain = true,
                            const std::string& volume = "VOL1") {
    return std::string("<set") + (inDomain ? " type=\"adID\"" : "") + "><volumeName>" + volume +
           "</volumeName><id>" + id + "</id><quota>" + amount + "</quota></set>";
}

inline std::string searchTree(const std::string& base) {
    return commandStream + "<trellRequest><trellObject><trellSearch><trellBaseDN>" + base +
           "</trellBaseDN></trellSearch></trellObject></trellRequest>";
}

inline std::string getAttribute(const std::string& name, const std::string& context,
                                const std::string& attribute) {
    return admin("<trellRequest><trellObject><getAttribute><name>" + name + "</name><context>" + context +
                 "</context><attributeName>" + attribute +
                 "</attributeName></getAttribute></trellObject></trellRequest>");
}

inline std::string readLink(const std::string& path) {
    return "<zelSmbGetInfo><readLink><pathName>" + path + "</pathName></readLink></zelSmbGetInfo>";
}

inline constexpr const char* treePipe = "/Manage_KELP/TRELL.cmd";
inline constexpr const char* quotaPipe = "/Manage_KELP/user.cmd";

inline const std::string userTypeRequest = "<zelSmbGetInfo><userType/></zelSmbGetInfo>";

} // namespace quorvan::simulator
