// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "Platform/Linux/LogLine.h"
#include "Platform/SharedDefaults.h"

#include <filesystem>
#include <map>

namespace quorvan::platform {

/// Shared defaults in property list files: the suite NAME is the file NAME.plist of one folder, an XML
/// or binary property list whose root is a dictionary.
///
/// A suite reads its file when it is first asked and again at each synchronize(). What setString()
/// stores is seen at once by every suite of that name in this process; synchronize() puts it into the
/// file, as XML with mode 0600, in one step (other programs see the old file or the new one) and with
/// all other keys kept. A file that is missing, unreadable or no such property list holds no values
/// and gives one log line; one that exists but cannot be understood is never overwritten.
class PlistSharedDefaults : public SharedDefaults {
public:
    explicit PlistSharedDefaults(LogLine log, std::filesystem::path folder = userConfigurationFolder());

    /// Null when `name` is not a plain file name or there is no folder to look in.
    std::unique_ptr<DefaultsSuite> openSuite(const std::string& name) override;

    /// $XDG_CONFIG_HOME, or .config in the home folder; empty when the user has neither.
    static std::filesystem::path userConfigurationFolder();

    /// What the suites of one name have in common.
    struct Store {
        std::filesystem::path file;
        std::map<std::string, std::string> unwritten; ///< set, and not yet in the file
        std::string lastProblem;                      ///< logged already
    };

private:
    LogLine log_;
    std::filesystem::path folder_;
    std::map<std::string, std::shared_ptr<Store>> stores_;
};

} // namespace quorvan::platform
