// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <chrono>
#include <memory>

#include <ldap.h>

namespace quorvan::platform {

// What libldap gives away, with the function that takes it back.

template <class Type, void (*release)(Type*)>
struct Release {
    void operator()(Type* object) const { release(object); }
};
using Url = std::unique_ptr<LDAPURLDesc, Release<LDAPURLDesc, ldap_free_urldesc>>;
using Control = std::unique_ptr<LDAPControl, Release<LDAPControl, ldap_control_free>>;
using Controls = std::unique_ptr<LDAPControl*, Release<LDAPControl*, ldap_controls_free>>;
using Values = std::unique_ptr<berval*, Release<berval*, ldap_value_free_len>>;
struct FreeText {
    void operator()(char* text) const { ldap_memfree(text); }
};
using Text = std::unique_ptr<char, FreeText>;
struct FreeMessage {
    void operator()(LDAPMessage* message) const { ldap_msgfree(message); }
};
using Message = std::unique_ptr<LDAPMessage, FreeMessage>;

inline timeval timevalOf(std::chrono::milliseconds duration) {
    timeval value{};
    value.tv_sec = static_cast<time_t>(duration.count() / 1000);
    value.tv_usec = static_cast<suseconds_t>(duration.count() % 1000 * 1000);
    return value;
}

} // namespace quorvan::platform
