// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <libsmbclient.h>

namespace quorvan::platform {

/// A new context of the SMB library, or null. The library reads its configuration with each: the user's or
/// the machine's smb.conf, here except for what would make a login unsafe. Not for two threads at once.
SMBCCTX* newSmbContext();

} // namespace quorvan::platform
