// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "Quorvan/Modal/Users.h"

#include <string>
#include <vector>

namespace quorvan {

class ViewController;

/// Receives which directory the user wants to browse: "ActiveDirectory" or "Morvane".
class IdentifySourceDelegate {
public:
    virtual ~IdentifySourceDelegate() = default;
    virtual void onReturnIdentifySource(const std::string& identityType) = 0;
};

/// Receives what was picked from the server's own tree; the browser closes on true.
class BrowseMorvaneDelegate {
public:
    virtual ~BrowseMorvaneDelegate() = default;
    virtual bool onReturnMorvaneSelectedUser(const std::vector<User>& users) = 0;
};

/// Receives what was picked from Active Directory: account names, their SIDs in the same order, and the
/// category that was shown ("Users" or "Groups"); the browser closes on true.
class BrowseLdapDelegate {
public:
    virtual ~BrowseLdapDelegate() = default;
    virtual bool onReturnSelectedUser(const std::vector<std::string>& names,
                                      const std::vector<std::string>& ids, const std::string& category) = 0;
};

/// The same from the browser of installations with a single forest.
class OldBrowseLdapDelegate {
public:
    virtual ~OldBrowseLdapDelegate() = default;
    virtual bool onReturnSelectedUser(const std::vector<std::string>& names,
                                      const std::vector<std::string>& ids, const std::string& category) = 0;
};

/// A view that lets the user pick identities from either directory.
class IdentityBrowserDelegate : public IdentifySourceDelegate,
                                public BrowseMorvaneDelegate,
                                public BrowseLdapDelegate,
                                public OldBrowseLdapDelegate {
public:
    // One answer for both browsers of Active Directory.
    bool onReturnSelectedUser(const std::vector<std::string>& names, const std::vector<std::string>& ids,
                              const std::string& category) override = 0;

    /// A browser has closed, with or without having returned anything.
    virtual void onBrowserClosed() {}
};

/// What a view wants picked.
struct IdentityWish {
    std::string listType; ///< "Users", "Groups", "Containers"; anything else offers all that there are
    bool isMultipleSel = true;
    bool anyTypeBrowses = false; ///< an identity type that is neither of the two opens the tree's browser
};

/// A sheet that openIdentityBrowser opens: told before it is presented what is wanted and whom to answer to,
/// for as long as `view` exists.
class IdentityBrowser {
public:
    virtual ~IdentityBrowser() = default;
    virtual void prepare(ViewController& view, IdentityBrowserDelegate& delegate,
                         const IdentityWish& wish) = 0;
};

/// Opens the browser of an identity type as a sheet over `view`, with `delegate` (usually the view itself)
/// to answer to: "ViewBrowseAD" or "ViewBrowseMorvane"; any other identity type opens nothing. A browser
/// that outlives `view` has no receiver.
void openIdentityBrowser(ViewController& view, IdentityBrowserDelegate& delegate,
                         const std::string& identityType, const IdentityWish& wish);

/// The same for a view whose user presses its button: asks for the directory first ("IdentifySource")
/// where both are worked with, and opens "oldViewBrowseAD" where there is a single forest.
void openIdentityBrowser(ViewController& view, IdentityBrowserDelegate& delegate,
                         const std::string& identityType, const IdentityWish& wish, bool bothIdentities,
                         bool multiForest);

} // namespace quorvan
