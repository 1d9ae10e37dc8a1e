// SPDX-License-Identifier: GPL-3.0-or-later
#include "Quorvan/ViewModal/XMLReadWrite.h"

#include "Common/Fatal.h"
#include "Quorvan/ViewModal/Replies/UserQuotaReplies.h"

#include <algorithm>

namespace quorvan {
namespace {

constexpr std::size_t batchSize = 300;

/// The first part of a server path, whose parts are separated by colons.
std::string volumeOf(const std::string& path) {
    const std::size_t begin = path.find_first_not_of(':');
    require(begin != std::string::npos, "The path \"%@\" names no volume", path);
    return path.substr(begin, path.find(':', begin) - begin);
}

} // namespace

std::string XMLReadWriteController::getUserQuotaInfo(const std::string& path, UserQuotaList& array,
                                                     const std::string& ctx) {
    UserQuotaReader users(array, ctx);
    const XMLResponseParser parsed =
        parse(exchangeRequest(createGetUserQuotaRequest(volumeOf(path), ctx),
                              {"Get User Quota Request: %@", "response.deinitialize Get User Quota Request",
                               "Get User Quota Reply: %@"}),
              {"userQuota", "browse", "result"}, users);
    users.finish(parsed.error);
    return statusOf(parsed);
}

std::string XMLReadWriteController::setUserQuotaInfo(const std::string& path, const UserQuotaList& array,
                                                     const std::string& ctx) {
    const std::string volume = volumeOf(path);
    std::string status = "0";
    std::span<const std::shared_ptr<UserQuotaData>> rest = array;
    // The last request is the one that is not full, be it empty. A failure does not stop the others; a lost
    // connection does.
    for (bool full = true; full;) {
        const auto batch = rest.first(std::min(batchSize, rest.size()));
        rest = rest.subspan(batch.size());
        full = batch.size() == batchSize;
        const std::string reply =
            exchangeRequest(createSetUserQuotaRequest(volume, batch, ctx),
                            {"Set User Quota Request: %@", "response.deinitialize Set User Quota Request",
                             "Set User Quota Reply: %@"});
        if (loss() != 0)
            return statusOfExchange();
        if (status == "0")
            status = statusOf(parse(reply, {"userQuota", "set", "result"}));
    }
    return status;
}

} // namespace quorvan
