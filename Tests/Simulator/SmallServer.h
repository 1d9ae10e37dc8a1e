// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "Simulator/KelpServer.h"

#include <string>

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

inline const std::string userTypeRequest = "<zelSmbGetInfo><userType/></zelSmbGetInfo>";

} // namespace quorvan::simulator
