// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <string>

#include <ldap.h>

namespace quorvan::test {

/// Overrules a setting of ldap.conf for its own lifetime.
class LdapSetting {
public:
    LdapSetting(int option, const std::string& value)
        : option_(option) {
        ldap_get_option(nullptr, option, &before_);
        ldap_set_option(nullptr, option, value.c_str());
    }
    ~LdapSetting() {
        ldap_set_option(nullptr, option_, before_);
        ldap_memfree(before_);
    }
    LdapSetting(const LdapSetting&) = delete;
    LdapSetting& operator=(const LdapSetting&) = delete;

private:
    int option_;
    char* before_ = nullptr;
};

} // namespace quorvan::test
