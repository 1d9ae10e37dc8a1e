// SPDX-License-Identifier: GPL-3.0-or-later
#include "Platform/Linux/KerberosTicket.h"

#include <gssapi/gssapi.h>

namespace quorvan::platform {

std::string ticketOwner() {
    OM_uint32 ignored = 0;
    OM_uint32 lifetime = 0;
    gss_name_t name = GSS_C_NO_NAME;
    std::string owner;
    // No credentials stand for the default ones: those of the cache.
    if (gss_inquire_cred(&ignored, GSS_C_NO_CREDENTIAL, &name, &lifetime, nullptr, nullptr) != GSS_S_COMPLETE)
        return owner;
    gss_buffer_desc text = GSS_C_EMPTY_BUFFER;
    if (lifetime > 0 && gss_display_name(&ignored, name, &text, nullptr) == GSS_S_COMPLETE)
        owner.assign(static_cast<const char*>(text.value), text.length);
    gss_release_buffer(&ignored, &text);
    gss_release_name(&ignored, &name);
    return owner;
}

} // namespace quorvan::platform
