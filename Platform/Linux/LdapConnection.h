// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "Platform/Linux/LdapSession.h"
#include "Platform/Linux/LogLine.h"

#include <optional>

namespace quorvan::platform {

/// The conversation with the directory that ldap.conf names: opened when first needed, kept, and opened
/// anew when it has dropped.
///
/// A failure gives one line in the log, and its reason in errno. For a moment after it everything fails at
/// once and in silence, so that a list of a thousand look-ups does not wait a thousand times, nor sends a
/// wrong password so often that the account is locked.
class LdapConnection {
public:
    LdapConnection(std::shared_ptr<Keychain> keychain, LogLine log, std::chrono::milliseconds timeLimit);

    /// The BASE of ldap.conf; "" when it names no directory.
    static std::string base();

    /// Whether there is a connection, after opening one if there was none.
    bool open();

    /// How often one was opened: what was learnt through an earlier one may be out of date.
    unsigned openings() const { return openings_; }

    std::optional<std::vector<LdapEntry>> search(const LdapSearch& search);

    /// The open session, or null.
    const LdapSession* session() const { return session_.get(); }

    /// Ends the connection because of what was learnt through it.
    void giveUp(const LdapFailure& failure);

    /// Logs a line and leaves `error` in errno.
    void report(int error, const std::string& line) const;

private:
    std::shared_ptr<Keychain> keychain_;
    LogLine log_;
    std::chrono::milliseconds timeLimit_;
    std::unique_ptr<LdapSession> session_;
    unsigned openings_ = 0;
    std::chrono::steady_clock::time_point pauseEnd_;
    int lastError_ = 0;
};

} // namespace quorvan::platform
