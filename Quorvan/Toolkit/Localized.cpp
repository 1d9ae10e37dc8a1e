// SPDX-License-Identifier: GPL-3.0-or-later
#include "Quorvan/Toolkit/Localized.h"

#include "Platform/Services.h"

#include <QRegularExpression>
#include <QtGlobal>

namespace quorvan {

QString L(const std::string& key) {
    return QString::fromStdString(platform::services().bundle->localizedString(key));
}

QString L(const std::string& key, int count) {
    return qtTrId(key.c_str(), count);
}

QString plainL(const std::string& key) {
    static const QRegularExpression mnemonic(QStringLiteral("\\(&.\\)|&")); // "適用(&A)" or "&Apply"
    return L(key).remove(mnemonic);
}

} // namespace quorvan
