// SPDX-License-Identifier: GPL-3.0-or-later
#include "Quorvan/Modal/DistinguishedName.h"

#include "Common/Fatal.h"

#include <string_view>

namespace quorvan {
namespace {

bool hasEscapes(std::string_view name) {
    for (std::size_t at = name.find('\\'); at != std::string_view::npos; at = name.find('\\', at + 1)) {
        if (at + 1 < name.size() && std::string_view(".=,+\\").find(name[at + 1]) != std::string_view::npos)
            return true;
    }
    return false;
}

/// Appends the components of `name` in reverse order, each behind `joint`; no `joint` before the first
/// one unless `lead` says so.
std::string reversed(std::string_view name, char separator, char joint, bool lead) {
    std::string text;
    for (std::size_t end = name.size();;) {
        const std::size_t cut = end == 0 ? std::string_view::npos : name.rfind(separator, end - 1);
        const std::size_t begin = cut == std::string_view::npos ? 0 : cut + 1;
        if (lead || end != name.size())
            text += joint;
        text += name.substr(begin, end - begin);
        if (cut == std::string_view::npos)
            return text;
        end = cut;
    }
}

} // namespace

bool convertDntoContextAndNameRootLeft(const std::string& dn, std::string& context, std::string& objectName) {
    context.clear();
    objectName.clear();
    if (hasEscapes(dn)) {
        objectName = dn;
    } else if (dn.find('\\') != std::string::npos) {
        const std::size_t value = dn.find_last_of("=\\");
        objectName = dn.substr(value + 1);
        context = dn.substr(0, dn.rfind('\\', value));
    } else {
        std::string_view name = dn;
        const bool lead = name.starts_with('.');
        name.remove_prefix(lead ? 1 : 0);
        name.remove_suffix(name.ends_with('.') ? 1 : 0);
        const std::size_t end = name.find('.');
        const std::string_view first = name.substr(0, end);
        objectName = first.substr(first.find('=') + 1); // npos + 1 is the whole component
        if (end != std::string_view::npos)
            context = reversed(name.substr(end + 1), '.', '\\', lead);
    }
    return !context.empty() && !objectName.empty();
}

std::string getDNFromGroupNameRootRight(const std::string& groupName) {
    require(!groupName.empty(), "A group has no name");
    if (groupName.find('.') != std::string::npos || hasEscapes(groupName))
        return groupName;
    std::string_view name = groupName;
    const bool lead = name.starts_with('\\');
    name.remove_prefix(lead ? 1 : 0);
    name.remove_suffix(name.ends_with('\\') ? 1 : 0);
    return reversed(name, '\\', '.', lead) + ".";
}

} // namespace quorvan
