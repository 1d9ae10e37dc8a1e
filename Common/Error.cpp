// SPDX-License-Identifier: GPL-3.0-or-later
#include "Common/Error.h"

#include "Platform/Services.h"

#include <array>

namespace quorvan {
namespace {

constexpr std::array<const char*, 17> messageKeys = {
    "Err_Msg_Duplicate_Trustee",
    "Err_No_Object",
    "Err_MI_Create_Failed",
    "Err_Fail_SalvagePurge",
    "Err_Invalid_FileName",
    "Err_Duplicate_FileName",
    "Err_Invalid_FilePath",
    "Err_Empty_FileName",
    "Err_NIT_Down",
    "Err_No_Privilege",
    "Err_Purge_Warning",
    "Err_CancelAll_Warning",
    "Err_Keychain_Not_Found",
    "Err_Pipe_Open_Failed",
    "Err_Operation_Failed",
    "Err_AD_Connect",
    "Err_Logged_User_Morvane",
};

void display(errorCode code, const char* titleKey, platform::AlertStyle style) {
    platform::Services& services = platform::services();
    services.alerts->runModal(services.bundle->localizedString(titleKey), getErrorMsg(code), style);
}

} // namespace

std::string getErrorMsg(errorCode code) {
    return platform::services().bundle->localizedString(messageKeys.at(static_cast<std::size_t>(code)));
}

void displayWarningMsg(errorCode code, const std::optional<std::string>&) {
    display(code, "Warning_Title", platform::AlertStyle::warning);
}

void displayErrorMsg(errorCode code, const std::optional<std::string>&) {
    display(code, "Error_Title", platform::AlertStyle::critical);
}

} // namespace quorvan
