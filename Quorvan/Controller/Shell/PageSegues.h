// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "Quorvan/Toolkit/Segue.h"

namespace quorvan {

// The ways from the options page to the other pages.

class TrusteeRightsSegue : public PageSegue {
public:
    TrusteeRightsSegue(ViewController* from, ViewController* to)
        : PageSegue("TrusteeRightsSegue", from, to, "Trustee_Rights_Title") {}
};

class FileSystemRightsSegue : public PageSegue {
public:
    FileSystemRightsSegue(ViewController* from, ViewController* to)
        : PageSegue("FileSystemRightsSegue", from, to, "File_System_Rights_Title") {}
};

class UserQuotaSegue : public PageSegue {
public:
    UserQuotaSegue(ViewController* from, ViewController* to)
        : PageSegue("UserQuotaSegue", from, to, "User_Quota_Title") {}
};

class InformationSegue : public PageSegue {
public:
    InformationSegue(ViewController* from, ViewController* to)
        : PageSegue("InformationSegue", from, to, "Information_Title") {}
};

class SettingsSegue : public PageSegue {
public:
    SettingsSegue(ViewController* from, ViewController* to)
        : PageSegue("SettingsSegue", from, to, "Settings_Title") {}
};

} // namespace quorvan
