// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "Quorvan/Controller/Information/InformationViewController.h"

#include <algorithm>
#include <array>
#include <string>
#include <vector>

namespace quorvan {

/// The check box of one file attribute.
struct AttributeBox {
    QCheckBox* InformationViewController::*box;
    const char* outletName;
    const char* identifier;
    const char* attribute; ///< of FileAttributes
    const char* titleKey;
    const char* tipKey;
};

/// In the order in which Tab visits them; the first half makes the left column.
inline constexpr std::array<AttributeBox, 8> attributeBoxes = {{
    {&InformationViewController::readChk, "readChk", "readChkID", "readOnly", "Read_Only_Label",
     "Read_Only_Tip_Label"},
    {&InformationViewController::hideChk, "hideChk", "hideChkID", "hidden", "Hidden_Label",
     "Hidden_Tip_Label"},
    {&InformationViewController::archiveChk, "archiveChk", "archiveChkID", "archive", "Archive_Label",
     "Archive_Tip_Label"},
    {&InformationViewController::purgeImmediateChk, "purgeImmediateChk", "purgeImmediateChkID",
     "immediatePurge", "Purge_Immediately_Label", "Purge_Immediately_Tip_Label"},
    {&InformationViewController::renameInhibitChk, "renameInhibitChk", "renameInhibitChkID", "renameInhibit",
     "Rename_Inhibit_Label", "Rename_Inhibit_Tip_Label"},
    {&InformationViewController::deleteInhibitChk, "deleteInhibitChk", "deleteInhibitChkID", "deleteInhibit",
     "Delete_Inhibit_Label", "Delete_Inhibit_Tip_Label"},
    {&InformationViewController::immediateCompressChk, "immediateCompressChk", "immediateCompressChkID",
     "compressImmediate", "Immediate_Compression_Label", "Immediate_Compression_Tip_Label"},
    {&InformationViewController::dontCompressChk, "dontCompressChk", "dontCompressChkID", "doNotCompress",
     "Dont_Compress_Label", "Dont_Compress_Tip_Label"},
}};

inline bool hasAttribute(const std::vector<std::string>& attributes, const AttributeBox& box) {
    return std::ranges::find(attributes, box.attribute) != attributes.end();
}

} // namespace quorvan
