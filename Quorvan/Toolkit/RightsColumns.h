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
};

/// The rights columns of every table, from left to right.
inline constexpr std::array<RightsColumn, 8> rightsColumns = {
    {{"S", KelpRights::supervisor, "Supervisor_Label"},
     {"R", KelpRights::read, "Read_Label"},
     {"W", KelpRights::write, "Write_Label"},
     {"E", KelpRights::erase, "Erase_Label"},
     {"C", KelpRights::create, "Create_Label"},
     {"M", KelpRights::modify, "Modify_Label"},
     {"F", KelpRights::fileScan, "File_Scan_Label"},
     {"A", KelpRights::accessControl, "Access_Control_Label"}}};

} // namespace quorvan
