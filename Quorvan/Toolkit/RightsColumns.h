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
    const char* nameKey; ///< localisation key of the right's name
    const char* checkID; ///< identifier of the right's box outside tables
};

/// The rights columns of every table, from left to right.
inline constexpr std::array<RightsColumn, 8> rightsColumns = {
    {{"S", KelpRights::supervisor, "Supervisor_Label", "supervisorCheckID"},
     {"R", KelpRights::read, "Read_Label", "readCheckID"},
     {"W", KelpRights::write, "Write_Label", "writeCheckID"},
     {"E", KelpRights::erase, "Erase_Label", "eraseCheckID"},
     {"C", KelpRights::create, "Create_Label", "createCheckID"},
     {"M", KelpRights::modify, "Modify_Label", "modifyCheckID"},
     {"F", KelpRights::fileScan, "File_Scan_Label", "fileScanCheckID"},
     {"A", KelpRights::accessControl, "Access_Control_Label", "accessControlCheckID"}}};

} // namespace quorvan
