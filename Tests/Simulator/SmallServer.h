// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "Quorvan/Modal/Constants.h"
#include "Quorvan/ViewModal/XMLReadWrite.h"
#include "Simulator/KelpServer.h"

#include <algorithm>
#include <string>
#include <vector>

namespace quorvan::simulator {

inline constexpr const char* domain = "ActiveDirectory";
inline constexpr const char* tree = "Morvane";
inline constexpr const char* filesPipe = "/FilesCmdPipe";
inline constexpr const char* rightsPipe = "/RightsCmdPipe";
inline constexpr const char* smbPipe = "/ZelSmbPipe";
inline constexpr const char* treePipe = "/Manage_KELP/TRELL.cmd";
inline constexpr const char* quotaPipe = "/Manage_KELP/user.cmd";

/// A server with one folder and a handful of identities.
struct SmallServer {
    KelpServer server;
    const Identity& boss = server.identities().addDomainUser("boss", "S-1-5-21-1");
    const Identity& clerk = server.identities().addDomainUser("Zoë", "S-1-5-21-2");
    const Identity& guest = server.identities().addDomainUser("guest", "S-1-5-21-3");
    const Identity& warden = server.identities().addTreeUser("Käthe", "Haus", "guid-4");
    static constexpr const char* folder = "VOL1:\\Dir\\Sub";

    SmallServer() {
        for (const auto& [user, identity] : {std::pair("boss", &boss), {"clerk", &clerk}, {"guest", &guest}})
            server.addAccount(user, "", *identity);
        server.setTrustee("VOL1:\\", boss, right::supervisor);
        server.setTrustee(folder, clerk, right::read | right::accessControl);
        server.setTrustee(folder, warden, right::read | right::write | right::fileScan);
        server.setFilter(folder, right::fileScan);
    }

    std::string ask(const char* user, const std::string& request, const char* pipe = filesPipe) {
        return server.handle(pipe, user, request);
    }
    Node& node() { return *server.volumes().find(folder); }
    Mask rightsAt(const Identity& identity) { return node().trustees.rightsOf(identity).value_or(0xFFFF); }

    /// What a request could have changed.
    std::string state() {
        std::string text = node().owner + " " + std::to_string(node().attributes) + " " +
                           std::to_string(node().quota.limit) + " " + std::to_string(node().filter);
        for (const TrusteeEntry& each : node().trustees.entries())
            text += " " + each.identity->id + "=" + std::to_string(each.rights);
        return text + " " + std::to_string(server.volumes().userQuotas("VOL1")->entries().size());
    }
};

/// The value of the last "result" element of a reply.
inline std::string codeIn(const std::string& reply) {
    const std::string start = "<result value=\"";
    const std::size_t at = reply.rfind(start);
    return at == std::string::npos ? "none" : std::to_string(std::stoi(reply.substr(at + start.size())));
}

// The client's own texts: what it writes, the server must take.

using Texts = XMLReadWriteController;

inline std::shared_ptr<Trustees> add(const char* id, Mask rights, const char* type = domain) {
    return std::make_shared<Trustees>("", id, rights, "ADD", "", type);
}

inline std::shared_ptr<Trustees> remove(const char* id) {
    return std::make_shared<Trustees>("", id, Mask{0}, "REMOVE", "", domain);
}

inline std::string changes(const quorvan::TrusteeList& list, const std::string& path = SmallServer::folder) {
    return Texts::createAddRemoveTrusteeRequest(list, path, domain);
}

/// Switches on these of the eight attributes: announced in front of all.
inline std::string setAttributes(const std::vector<std::string>& on) {
    std::string announced;
    std::string all;
    for (const std::string_view each : FileAttributes::FILE_ATTRIBUTES) {
        const bool isOn = std::find(on.begin(), on.end(), each) != on.end();
        const std::string_view enabled = FileAttributes::FILE_ATTRIBUTES_TAG_ENABLED.at(each);
        announced += isOn ? enabled : "";
        all += isOn ? enabled : FileAttributes::FILE_ATTRIBUTES_TAG_DISABLED.at(each);
    }
    return Texts::createSetAttributesRequest(SmallServer::folder, announced + all);
}

inline std::shared_ptr<UserQuotaData> quota(const char* id, std::int64_t limit, const char* type = domain) {
    auto user = std::make_shared<UserQuotaData>("", id, "Users", limit, 0, "");
    user->action = "MODIFY";
    user->domainIdentity = type;
    return user;
}

inline std::string setQuotas(const UserQuotaList& users, const std::string& volume = "VOL1") {
    return Texts::createSetUserQuotaRequest(volume, users, domain);
}

inline const std::string commandStream = R"(<virtualIO><datastream name="command"/></virtualIO>)";

inline std::string searchTree(const std::string& base) {
    return commandStream + "<trellRequest><trellObject><trellSearch><trellBaseDN>" + base +
           "</trellBaseDN></trellSearch></trellObject></trellRequest>";
}

inline std::string readLink(const std::string& path) {
    return "<zelSmbGetInfo><readLink><pathName>" + path + "</pathName></readLink></zelSmbGetInfo>";
}

inline const std::string userTypeRequest = "<zelSmbGetInfo><userType/></zelSmbGetInfo>";

} // namespace quorvan::simulator
