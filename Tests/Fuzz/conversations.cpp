// SPDX-License-Identifier: GPL-3.0-or-later
//
// Any bytes as what comes out of the pipes in the course of a whole operation, which may lead over links to
// other servers. The first byte says which operation, as for the decoders; with its bit 5 unset for a user of
// the directory tree. In the rest \1 ends a piece, \2 is a read that fails and passes, \3 the end of a reply
// and \4 the loss of the connection, with which every input ends.
#include "Quorvan/Modal/Constants.h"
#include "Quorvan/ViewModal/Replies/XMLElement.h"
#include "Quorvan/ViewModal/RightsWay.h"
#include "Quorvan/ViewModal/ScopedPipe.h"
#include "Tests/Fuzz/Harness.h"

#include <algorithm>
#include <iterator>

using namespace quorvan;

namespace {

struct ScriptedNetwork : test::FakeNetwork {
    bool isLost = false;
    ssize_t read(int descriptor, void* buffer, std::size_t size) override {
        isLost = pieces.empty();
        return FakeNetwork::read(descriptor, buffer, size);
    }
    int lossOn(int) const override { return isLost ? ECONNRESET : 0; }

    void play(std::string_view script) {
        calls.clear();
        pieces.clear();
        isLost = false;
        std::string piece;
        const auto endPiece = [&] {
            if (!piece.empty())
                pieces.emplace_back(std::exchange(piece, {}));
        };
        for (const char character : script.substr(0, script.find('\4'))) {
            if (character > '\3' || character < '\1')
                piece += character;
            if (character == '\1' || piece.size() == XMLReadWriteController::MEM_SIZE)
                endPiece();
            if (character == '\2' || character == '\3') {
                endPiece();
                pieces.push_back(character == '\2' ? std::nullopt : std::optional<std::string>(""));
            }
        }
        endPiece();
    }
    /// What was written to the pipes.
    std::vector<std::string> requests() const {
        std::vector<std::string> texts;
        for (const std::string& call : calls)
            if (call.starts_with("write "))
                texts.push_back(call.substr(std::size("write ") - 1));
        return texts;
    }
};

/// What an operation works on.
struct Selection {
    XMLReadWriteController& controller;
    ScriptedNetwork& network;
    std::string type;
    std::string server = "srv1";
    std::string path = "VOL1:\\a\\b\\c";
    std::string mapped = "VOL1:\\a\\b";
    TrusteeList trustees{};
    Rights rights{};

    /// Runs something over one open pipe; 0, or what kept the pipe from opening.
    template <class Work>
    std::int32_t over(const ManagementPipe& pipe, Work&& work) {
        const ScopedPipe open(controller, server, pipe);
        if (open.isOpen())
            work();
        return open.isOpen() ? controller.loss() : open.status();
    }
};

/// An exchange gives back what was sent, or nothing.
std::int32_t exchange(Selection& on) {
    std::string whole;
    bool isWhole = false;
    for (const auto& piece : on.network.pieces) {
        isWhole = piece && piece->empty();
        if (isWhole)
            break;
        appendRepairedUtf8(whole,
                           std::string_view(piece.value_or("")).substr(0, piece.value_or("").find('\0')));
    }
    return on.over(pipes::files, [&] {
        const std::string reply = on.controller.exchangeRequest("<x/>", {"%@", "", "%@"});
        test::expect(reply == (isWhole ? whole : "") && (on.controller.loss() == 0) == isWhole);
    });
}

using Operation = std::int32_t (*)(Selection&);
constexpr std::size_t linkOperations = 10; ///< so many of these may lead elsewhere, the first ones
const Operation operations[] = {
    exchange,
    [](Selection& on) {
        return on.controller.initializeTrusteesHandleDFS(on.server, on.trustees, on.path, on.rights,
                                                         on.rights, on.mapped, on.type);
    },
    [](Selection& on) {
        return on.controller.getEffectiveRightsforPathHandleDFS(on.server, on.trustees, on.path, on.mapped,
                                                                on.type);
    },
    [](Selection& on) {
        std::vector<std::string> names;
        return on.controller.getEffectiveRightsForMappedUserForPathHandleDFS(on.path, names, on.server,
                                                                             on.mapped, on.type);
    },
    [](Selection& on) {
        std::vector<DirectoryRights> rights;
        return on.controller.getIRRequestHandleDFS(on.server, rights, on.mapped, on.path, on.type);
    },
    [](Selection& on) {
        return on.controller.setInheritedRightsforPathHandleDFS(on.server, 1, on.path, on.mapped);
    },
    [](Selection& on) {
        Trustees trustee;
        trustee.trusteeID = "S-1-1-0";
        trustee.status = on.type == "Morvane" ? TrusteeInfo::REMOVE : TrusteeInfo::ADD;
        return on.controller.setTrusteeHandleDFS(on.server, on.mapped, on.path, trustee, on.type);
    },
    [](Selection& on) {
        OwnerInfo owner;
        return on.controller.getFileInfoOwnerHandleDFS(on.server, on.path, owner, on.mapped, on.type);
    },
    [](Selection& on) {
        AttributesInfo attributes;
        return on.controller.getAttributesHandleDFS(on.server, on.path, attributes, on.mapped, on.type);
    },
    [](Selection& on) {
        DirectoryQuotaInfo quota;
        return on.controller.getDirectoryQuotaHandleDFS(on.server, on.path, quota, on.mapped, on.type);
    },
    [](Selection& on) {
        return on.over(pipes::files, [&] { readRightsWay(on.controller, on.path, on.type); });
    },
    [](Selection& on) {
        return on.over(pipes::directoryTree, [&] {
            test::expect(holdersOfTheTree(on.controller, {"", "O=org\\OU=a\\CN=b"}).size() <= 1000);
        });
    },
    [](Selection& on) {
        return on.over(pipes::files, [&] {
            on.controller.setFileInfoOwner(on.path, "S-1-1-0", on.type);
            on.controller.setAttributes(on.path, "<hidden/>");
            on.controller.setDirectoryQuota(on.path, "1");
            on.controller.setTrusteeforDir({}, on.type);
        });
    },
    [](Selection& on) {
        return on.over(pipes::userQuotas, [&] {
            UserQuotaList users;
            on.controller.getUserQuotaInfo(on.path, users, on.type);
            for (const auto& user : users)
                user->action = on.rights.uright++ % 2 == 0 ? "ADD" : "REMOVE";
            on.controller.setUserQuotaInfo(on.path, users, on.type);
        });
    },
};

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    static test::FuzzWorld world;
    static const auto network = std::make_shared<ScriptedNetwork>();
    platform::Services services = platform::services();
    services.network = network;
    const platform::ScopedServices installed(services);
    if (size == 0)
        return 0;
    DictionaryForMountedPIPE::mountDict().PipeMapDict.clear();
    network->play(test::textOf(data + 1, size - 1));
    Selection on{*world.controller, *network, data[0] >= 'a' ? "ActiveDirectory" : "Morvane"};
    const Operation& operation = operations[(data[0] - 'A') % 32U % std::size(operations)];
    test::survive([&] {
        const std::int32_t outcome = operation(on);
        test::expect(outcome != 0 || world.controller->loss() == 0);
        test::expect(on.server.find_first_of("/\\@\n<") == std::string::npos);
    });
    // Where a link leads adds nothing to what another server is asked.
    if (&operation < operations + linkOperations)
        for (const std::string& request : network->requests())
            test::expect(!XMLDocument(request).error());
    return 0;
}
