// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "Quorvan/Modal/Constants.h"

#include <array>
#include <cstdint>

namespace quorvan {

/// The check-box column of one right.
struct RightsColumn {
    const char* identifier; ///< of the column and of its check boxes, and the letter in its header
    std::uint16_t bit;
    const char* nameKey;      ///< localisation key of the right's name
    const char* checkID;      ///< identifier of the right's box outside tables
    const char* explainedKey; ///< of a sentence that says what the right lets somebody do
};

/// The rights columns of every table, from left to right.
inline constexpr std::array<RightsColumn, 8> rightsColumns = {
    {{"S", KelpRights::supervisor, "Supervisor_Label", "supervisorCheckID", "Supervisor_Explained_Label"},
     {"R", KelpRights::read, "Read_Label", "readCheckID", "Read_Explained_Label"},
     {"W", KelpRights::write, "Write_Label", "writeCheckID", "Write_Explained_Label"},
     {"E", KelpRights::erase, "Erase_Label", "eraseCheckID", "Erase_Explained_Label"},
     {"C", KelpRights::create, "Create_Label", "createCheckID", "Create_Explained_Label"},
     {"M", KelpRights::modify, "Modify_Label", "modifyCheckID", "Modify_Explained_Label"},
     {"F", KelpRights::fileScan, "File_Scan_Label", "fileScanCheckID", "File_Scan_Explained_Label"},
     {"A", KelpRights::accessControl, "Access_Control_Label", "accessControlCheckID",
      "Access_Control_Explained_Label"}}};

/// The key of the text that says why somebody with these rights of their own cannot click the boxes of a
/// right; null when they can: only a Supervisor makes another one.
inline const char* whyRightIsGrey(std::uint16_t bit, bool isSupervisor, bool isAccessControl) {
    if (isSupervisor || (isAccessControl && bit != KelpRights::supervisor))
        return nullptr;
    return bit == KelpRights::supervisor ? "Why_Needs_Supervisor_Label" : "Why_Needs_Rights_Label";
}

} // namespace quorvan
