// SPDX-License-Identifier: GPL-3.0-or-later
#include "Simulator/KelpServer.h"

#include "Simulator/Requests.h"
#include "Simulator/Text.h"

#include <algorithm>
#include <cerrno>
#include <utility>

namespace quorvan::simulator {

namespace {

constexpr std::size_t keptRequests = 1000;

constexpr std::pair<std::string_view, std::string (*)(const Request&)> answers[] = {
    {"/FilesCmdPipe", answerFileRequest},
    {"/RightsCmdPipe", answerRightsRequest},
    {"/ZelSmbPipe", answerSmbRequest},
    {"/Manage_KELP/TRELL.cmd", answerTreeRequest},
    {"/Manage_KELP/user.cmd", answerQuotaRequest},
};

/// Fills a well-formed reply up with elements that no client knows.
void pad(std::string& reply, std::size_t size) {
    const std::string filler = "<padding>" + std::string(4000, 'x') + "</padding>";
    const std::size_t end = reply.rfind("</");
    if (end == std::string::npos)
        return;
    std::string padding;
    while (reply.size() + padding.size() < size)
        padding += filler;
    reply.insert(end, padding);
}

} // namespace

bool isManagementShare(std::string_view share) {
    return std::any_of(pipeFiles.begin(), pipeFiles.end(),
                       [&](const PipeFile& each) { return fold(each.share) == fold(share); });
}

const PipeFile* findPipeFile(std::string_view share, std::string_view file) {
    std::string wanted = fold(file);
    std::replace(wanted.begin(), wanted.end(), '\\', '/');
    if (wanted.empty() || wanted.front() != '/')
        wanted.insert(0, "/");
    for (const PipeFile& each : pipeFiles) {
        if (fold(each.share) == fold(share) && fold(each.file) == wanted)
            return &each;
    }
    return nullptr;
}

KelpServer::KelpServer(std::shared_ptr<Identities> identities)
    : identities_(std::move(identities)) {}

std::string KelpServer::handle(std::string_view pipeFile, std::string_view user, std::string_view request) {
    ++requestCount_;
    if (requests_.size() == keptRequests)
        requests_.erase(requests_.begin(), requests_.begin() + keptRequests / 2);
    requests_.push_back({std::string(pipeFile), std::string(user), std::string(request)});
    const RecordedRequest& asked = requests_.back();
    if (!misbehaviour.appliesTo(pipeFile) || request.find(misbehaviour.onlyWith) == std::string_view::npos)
        return answer(asked, std::nullopt);
    if (misbehaviour.garbage)
        return *misbehaviour.garbage;
    std::string reply = answer(asked, misbehaviour.code);
    pad(reply, misbehaviour.replyMegabytes * 1024 * 1024);
    return reply;
}

std::string KelpServer::answer(const RecordedRequest& asked, std::optional<int> failure) {
    const auto root = readRequest(asked.text);
    if (!root)
        return failureReply(code::refusedRequest);
    try {
        if (failure)
            throw Refusal{*failure};
        const Account* account = findAccount(asked.user);
        if (account == nullptr)
            throw Refusal{code::unknownIdentity};
        for (const auto& [file, answerRequest] : answers) {
            if (file == asked.pipeFile)
                return answerRequest({*this, *account->identity, *root});
        }
        throw Refusal{code::refusedRequest};
    } catch (const Refusal& refusal) {
        return failureReply(*root, refusal.code);
    }
}

void KelpServer::setTrustee(std::string_view path, const Identity& identity, Mask rights) {
    if (Node* node = volumes_.make(path))
        node->trustees.set(identity, rights);
}

void KelpServer::setFilter(std::string_view path, Mask filter) {
    if (Node* node = volumes_.make(path))
        node->filter = filter;
}

std::vector<TrusteeEntry> KelpServer::trustees(std::string_view path) const {
    const Node* node = volumes_.find(path);
    return node == nullptr ? std::vector<TrusteeEntry>() : node->trustees.entries();
}

Mask KelpServer::filter(std::string_view path) const {
    const Node* node = volumes_.find(path);
    return node == nullptr ? Mask{0} : node->filter;
}

Mask KelpServer::rightsOf(std::string_view path, const Identity& identity) const {
    const Node* node = volumes_.find(path);
    return node == nullptr ? Mask{0} : effectiveRights(*node, identity);
}

void KelpServer::addAccount(const std::string& user, const std::string& password, const Identity& identity) {
    accounts_[fold(user)] = {password, &identity};
}

int KelpServer::checkMount(const Login& login, std::string_view share) const {
    if (misbehaviour.mountError != 0)
        return misbehaviour.mountError;
    const Account* account = findAccount(login.user);
    if (account == nullptr || account->password != login.password)
        return EACCES;
    return isManagementShare(share) ? 0 : ENOENT;
}

int KelpServer::checkOpen(std::string_view pipeFile) const {
    return misbehaviour.appliesTo(pipeFile) ? misbehaviour.openError : 0;
}

const Account* KelpServer::findAccount(std::string_view user) const {
    const auto found = accounts_.find(fold(user));
    return found == accounts_.end() ? nullptr : &found->second;
}

} // namespace quorvan::simulator
