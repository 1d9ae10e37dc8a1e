// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "Common/ServerDetails.h"
#include "Quorvan/ViewModal/XMLReadWrite.h"
#include "Tests/Support/Fakes.h"
#include "Tests/Support/LogRecorder.h"
#include "Tests/Support/Table.h"

#include <gmock/gmock.h>

namespace quorvan::test {

/// A reply that holds a status wherever an operation looks for its own.
inline std::string replyWith(const std::string& status) {
    const std::string result = "<result value=\"" + status + "\"/>";
    return "<r>" + result + "<fileInfo><getFileInfo>" + result +
           "<rightsInfo><effectiveRights/></rightsInfo></getFileInfo><getAllEffectiveRights>" + result +
           "</getAllEffectiveRights></fileInfo><trustees><addTrustee>" + result +
           "</addTrustee><removeTrustee>" + result +
           "</removeTrustee></trustees><userQuota><browse><userList/>" + result + "</browse><set>" + result +
           "</set></userQuota></r>";
}

using Texts = std::vector<std::string>;

/// A selection on server "srv1" (10.1.2.3), a controller with an open pipe, and nothing in the log yet.
class Session : public testing::Test {
protected:
    Session() {
        ServerDetails::forget();
        DictionaryForMountedPIPE::mountDict().PipeMapDict.clear();
        world.defaults->values = {
            {"serverIP", "srv1"}, {"selectedPath", "/Volumes/VOL1/a"}, {"mappedPath", "VOL1:\\"}};
        world.keychain->items["srv1"] = {"bob", "secret"};
        world.network->addresses["srv1"] = "10.1.2.3";
        ServerDetails::serverInfo();
        XMLReadWriteController::fileDes = 7;
        log.take();
    }
    ~Session() override {
        XMLReadWriteController::closePipe();
        ServerDetails::forget();
    }

    /// What the operation wrote to the pipe, once.
    std::string written() const {
        std::string text;
        for (const std::string& call : world.network->calls) {
            if (call.starts_with("write "))
                text += call.substr(6);
        }
        return text;
    }
    void reply(const std::string& text) { world.network->pieces = {text}; }

    FakeWorld world;
    LogRecorder log;
    XMLReadWriteController controller;
};

} // namespace quorvan::test
