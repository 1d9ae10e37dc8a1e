// SPDX-License-Identifier: GPL-3.0-or-later
#include "Quorvan/Toolkit/TrusteeIcon.h"

#include "Quorvan/Modal/Constants.h"
#include "Quorvan/Modal/Utils.h"

#include <QHash>

#include <algorithm>
#include <string>

namespace quorvan {

const char* trusteeIconName(std::string_view trusteeType) {
    const std::string type = lowercased(trusteeType);
    const auto isOneOf = [&type](const auto& types) {
        return std::find(types.begin(), types.end(), type) != types.end();
    };
    if (type == lowercased(UserQuotaConstants::ObjectTypes::USERS))
        return "user";
    if (type == lowercased(UserQuotaConstants::ObjectTypes::GROUPS))
        return "group";
    if (isOneOf(MorvaneObjectTypes::USERS))
        return "user_Morvane";
    if (isOneOf(MorvaneObjectTypes::GROUPS) || isOneOf(MorvaneObjectTypes::CONTAINERS))
        return "group_Morvane";
    return "user";
}

QIcon userIcon(std::string_view identityType) {
    if (identityType == identityActiveDirectory)
        return namedIcon("user");
    return identityType == identityMorvane ? namedIcon("user_Morvane") : QIcon();
}

QIcon namedIcon(const char* name) {
    static QHash<QString, QIcon> icons; // a table asks for the same few at every painted row
    const auto key = QString::fromLatin1(name);
    const auto known = icons.constFind(key);
    return known != icons.constEnd() ? *known
                                     : *icons.insert(key, QIcon(QStringLiteral(":/icons/%1.svg").arg(key)));
}

} // namespace quorvan
