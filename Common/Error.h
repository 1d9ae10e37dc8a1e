// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <optional>
#include <string>

namespace quorvan {

/// Every message that the program can show in an alert. The numbers are fixed; cases that no view
/// raises keep theirs.
enum class errorCode : int {
    msgDuplicateTrustee = 0,
    noObject = 1,
    miCreateFailed = 2,
    failSalvagePurge = 3,
    invalidFileName = 4,
    duplicateFileName = 5,
    invalidFilePath = 6,
    emptyFileName = 7,
    nitDown = 8,
    noPrivilege = 9,
    purgeWarning = 10,
    cancelAllWarning = 11,
    keychainNotFound = 12,
    pipeOpenFailed = 13,
    operationFailed = 14,
    adConnect = 15,
    loggedUserMorvane = 16,
};

/// The localised text of a code; its localisation key when there is none.
std::string getErrorMsg(errorCode code);

/// Show a code's text in a modal alert and return when the user has dismissed it. The detail text is
/// accepted and ignored.
void displayWarningMsg(errorCode code, const std::optional<std::string>& detail = {});
void displayErrorMsg(errorCode code, const std::optional<std::string>& detail = {});

} // namespace quorvan
