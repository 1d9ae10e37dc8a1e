// SPDX-License-Identifier: GPL-3.0-or-later
#include "Quorvan/Modal/ParentPaths.h"

#include "Common/Fatal.h"

namespace quorvan {

namespace {
constexpr char separator = '\\';
}

std::vector<std::string> getParentPaths(const std::string& path) {
    if (path.empty())
        return {};
    const std::size_t first = path.find(separator);
    require(first != std::string::npos, "There is no backslash in the path %@", path);
    const std::string volume = path.substr(0, first);
    std::vector<std::string> paths;
    if (first + 1 < path.size()) // below the root
        for (std::size_t end = path.size(); end != std::string::npos && end > first;
             end = path.rfind(separator, end - 1))
            paths.push_back(path.substr(0, end));
    paths.push_back(volume + separator);
    paths.push_back(volume);
    return paths;
}

std::string volumeOfPath(const std::string& path) {
    const std::size_t begin = path.find_first_not_of(separator);
    require(begin != std::string::npos, "There is no volume in the path %@", path);
    return path.substr(begin, path.find(separator, begin) - begin);
}

} // namespace quorvan
