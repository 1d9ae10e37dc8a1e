// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "Platform/Bundle.h"

#include <QString>
#include <QTranslator>

namespace quorvan::platform {

/// The program's resources: the string tables that are linked into it (":/quorvan/i18n"), and the
/// feature flags, which lie beside it in a file that can be replaced.
class QtBundle : public Bundle {
public:
    /// Needs an application object. Loads the string table of the user's language, or the English one.
    explicit QtBundle(QString featureFile = installedFeatureFile());

    std::string localizedString(const std::string& key) override;
    std::optional<FeatureDictionary> featureDictionary() override;

    /// "feature.plist" in the data folder that belongs to the running executable.
    static QString installedFeatureFile();

private:
    QString featureFile_;
    QTranslator translator_;
};

} // namespace quorvan::platform
