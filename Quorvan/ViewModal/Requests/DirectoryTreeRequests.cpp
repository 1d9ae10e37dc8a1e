// SPDX-License-Identifier: GPL-3.0-or-later
#include "Quorvan/ViewModal/Requests/DirectoryTreeRequests.h"

#include "Quorvan/ViewModal/Requests/RequestEnvelope.h"
#include "Quorvan/ViewModal/XMLReadWrite.h"

namespace quorvan {
namespace {

constexpr std::string_view search =
    R"(<virtualIO><datastream name="command"/></virtualIO><trellRequest><trellObject><trellSearch>)"
    "<trellBaseDN>%@</trellBaseDN></trellSearch></trellObject></trellRequest>";
constexpr std::string_view attribute =
    "<trellRequest><trellObject><getAttribute><name>%@</name><context>%@</context>"
    "<attributeName>%@</attributeName></getAttribute></trellObject></trellRequest>";

std::string attributeRequest(const std::string& context, const std::string& objectName,
                             std::string_view attributeName) {
    return adminRequest(fill(attribute, {objectName, context, attributeName}));
}

} // namespace

std::string browseTreeRequest(const std::string& baseDN) {
    return fill(search, {baseDN});
}

std::string XMLReadWriteController::createGetGuidRequest(const std::string& context,
                                                         const std::string& objectName) {
    return attributeRequest(context, objectName, "guid");
}

std::string XMLReadWriteController::createGetGroupMembershipRequest(const std::string& context,
                                                                    const std::string& objectName) {
    return attributeRequest(context, objectName, "group membership");
}

} // namespace quorvan
