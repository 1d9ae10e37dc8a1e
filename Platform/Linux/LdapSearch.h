// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <chrono>
#include <cstddef>
#include <map>
#include <string>
#include <vector>

#include <ldap.h>

namespace quorvan::platform {

struct LdapSearch {
    std::string base;
    int scope = LDAP_SCOPE_SUBTREE;
    std::string filter = "(objectClass=*)";
    std::vector<std::string> attributes;
    std::size_t limit = 0; ///< at most this many entries; 0 = all
};

struct LdapEntry {
    std::string distinguishedName;
    std::map<std::string, std::vector<std::string>> attributes; ///< by the names that were asked for

    /// The first value of an attribute, or null.
    const std::string* first(const std::string& attribute) const;
};

/// One search on an open connection, asked for in pages, and attributes with more values than the server
/// gives at once in ranges. Ends at its deadline (but for a message that never becomes complete) and keeps no
/// more than mostBytes.
class LdapSearchRun {
public:
    static constexpr std::size_t mostBytes = 64U << 20U; ///< of all entries, what keeping them costs included

    /// Adds to `found`.
    LdapSearchRun(LDAP* handle, const LdapSearch& search, std::chrono::steady_clock::time_point deadline,
                  std::vector<LdapEntry>& found);

    /// LDAP_SUCCESS, or the code of what went wrong.
    int all();

    /// Whether that was the amount of the answer.
    bool isTooMuch() const { return isTooMuch_; }

private:
    struct Page;
    struct Rest;

    int readPage(Page& page);
    int ask(const LdapSearch& search, LDAPControl* paging, int& id) const;
    template <class OnEntry>
    int receive(int id, OnEntry&& onEntry, LDAPControl*** answered);
    int addEntry(LDAPMessage* message, std::vector<Rest>& rests);
    int readRest(const Rest& rest);
    bool take(const std::vector<std::string>& values);
    timeval timeLeft() const;

    LDAP* handle_;
    const LdapSearch& search_;
    std::chrono::steady_clock::time_point deadline_;
    std::vector<LdapEntry>& found_;
    std::size_t bytes_ = 0;
    bool isTooMuch_ = false;
};

} // namespace quorvan::platform
