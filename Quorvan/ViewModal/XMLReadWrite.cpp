// SPDX-License-Identifier: GPL-3.0-or-later
#include "Quorvan/ViewModal/XMLReadWrite.h"

#include "Common/Log.h"

namespace quorvan {

XMLReadWriteController::XMLReadWriteController()
    : response(std::make_unique<std::array<char, MEM_SIZE>>()) {
    Log("init");
}

XMLReadWriteController::~XMLReadWriteController() {
    Log("response.deallocate");
}

std::string XMLReadWriteController::getResultValue(const std::string& reply, const ElementPath& resultPath) {
    return statusOf(parse(reply, resultPath));
}

std::string XMLReadWriteController::statusOf(const std::optional<XMLError>& error,
                                             const ResultElement& result) const {
    if (loss_ != 0)
        return std::to_string(loss_);
    if (error) {
        Log("Error parsing KELP Reply - %@", error->description);
        return "0";
    }
    return result.status();
}

} // namespace quorvan
