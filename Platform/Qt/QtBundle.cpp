// SPDX-License-Identifier: GPL-3.0-or-later
#include "Platform/Qt/QtBundle.h"

#include <QCoreApplication>
#include <QDir>
#include <QFile>
#include <QLibraryInfo>

#include <plist/plist.h>

#include <cstdint>
#include <memory>
#include <utility>

namespace quorvan::platform {
namespace {

constexpr auto stringTables = ":/quorvan/i18n";
constexpr qint64 largestFeatureFile = 64 * 1024; // some six flags; anything larger is another file

struct PlistDeleter {
    void operator()(void* node) const { plist_free(node); }
};
using Plist = std::unique_ptr<void, PlistDeleter>;

Plist parsed(const QByteArray& data) {
    plist_t root = nullptr;
    plist_from_memory(data.constData(), static_cast<std::uint32_t>(data.size()), &root);
    return Plist(root);
}

std::optional<bool> booleanOf(plist_t node) {
    if (plist_get_node_type(node) != PLIST_BOOLEAN)
        return std::nullopt;
    std::uint8_t value = 0;
    plist_get_bool_val(node, &value);
    return value != 0;
}

} // namespace

QtBundle::QtBundle(QString featureFile, const QLocale& locale)
    : featureFile_(std::move(featureFile)) {
    if (english_.load("Localizable_en", stringTables)) // otherwise every text is its key
        QCoreApplication::installTranslator(&english_);
    if (!translator_.load(locale, "Localizable", "_", stringTables))
        return;
    // Qt's words follow the table that was found: a window speaks one language.
    const QLocale found(translator_.language());
    if (qtTranslator_.load(found, "qtbase", "_", QLibraryInfo::path(QLibraryInfo::TranslationsPath)))
        QCoreApplication::installTranslator(&qtTranslator_);
    QCoreApplication::installTranslator(&translator_); // asked before the English one
}

std::string QtBundle::localizedString(const std::string& key) {
    return qtTrId(key.c_str()).toStdString();
}

std::optional<FeatureDictionary> QtBundle::featureDictionary() {
    QFile file(featureFile_);
    if (!file.open(QIODevice::ReadOnly))
        return std::nullopt;
    const QByteArray data = file.read(largestFeatureFile + 1);
    if (data.size() > largestFeatureFile)
        return std::nullopt;
    const Plist root = parsed(data);
    if (!root || plist_get_node_type(root.get()) != PLIST_DICT)
        return std::nullopt;

    FeatureDictionary features;
    plist_dict_iter iteratorMemory = nullptr;
    plist_dict_new_iter(root.get(), &iteratorMemory);
    const std::unique_ptr<void, decltype(&std::free)> iterator(iteratorMemory, &std::free);
    for (;;) {
        char* keyMemory = nullptr;
        plist_t value = nullptr;
        plist_dict_next_item(root.get(), iterator.get(), &keyMemory, &value);
        if (value == nullptr)
            return features;
        const std::unique_ptr<char, decltype(&std::free)> key(keyMemory, &std::free);
        features[key.get()] = booleanOf(value);
    }
}

QStringList QtBundle::languages() {
    QStringList names = QDir(stringTables).entryList({"Localizable_*.qm"});
    for (QString& name : names)
        name = name.section('.', 0, 0).section('_', 1);
    return names;
}

QString QtBundle::installedFeatureFile() {
    return QDir::cleanPath(QCoreApplication::applicationDirPath() + "/" QUORVAN_DATA_FROM_BIN
                                                                    "/feature.plist");
}

} // namespace quorvan::platform
