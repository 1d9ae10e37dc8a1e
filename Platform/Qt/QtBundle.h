// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "Platform/Bundle.h"

#include <QLocale>
#include <QString>
#include <QStringList>
#include <QTranslator>

namespace quorvan::platform {

/// The program's resources: the string tables that are linked into it (":/quorvan/i18n"), and the
/// feature flags, which lie beside it in a file that can be replaced.
class QtBundle : public Bundle {
public:
    /// Needs an application object. Texts come in the first of the locale's languages that has a string
    /// table, and Qt's own words with it; a text that is missing there comes in English.
    explicit QtBundle(QString featureFile = installedFeatureFile(), const QLocale& locale = QLocale());

    std::string localizedString(const std::string& key) override;
    std::optional<FeatureDictionary> featureDictionary() override;

    /// "feature.plist" in the data folder that belongs to the running executable.
    static QString installedFeatureFile();

    /// The languages that have a string table, such as "de" and "pt_BR".
    static QStringList languages();

private:
    QString featureFile_;
    QTranslator english_;
    QTranslator translator_;
    QTranslator qtTranslator_;
};

} // namespace quorvan::platform
