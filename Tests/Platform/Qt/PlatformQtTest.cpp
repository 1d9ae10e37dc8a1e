// SPDX-License-Identifier: GPL-3.0-or-later
#include "Platform/Qt/QtAlerts.h"
#include "Platform/Qt/QtBundle.h"
#include "Platform/Qt/QtWaitCursor.h"

#include <QApplication>
#include <QDirIterator>
#include <QIcon>
#include <QImage>
#include <QLabel>
#include <QMessageBox>
#include <QPushButton>
#include <QRegularExpression>
#include <QTemporaryDir>
#include <QTimer>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <set>

namespace quorvan::platform {
namespace {

class ApplicationEnvironment : public testing::Environment {
public:
    void SetUp() override {
        qputenv("QT_QPA_PLATFORM", "offscreen");
        application_ = std::make_unique<QApplication>(argumentCount_, arguments_);
    }
    void TearDown() override { application_.reset(); }

private:
    char name_[18] = "platform_qt_tests";
    char* arguments_[2] = {name_, nullptr};
    int argumentCount_ = 1;
    std::unique_ptr<QApplication> application_;
};
[[maybe_unused]] const auto* const environment =
    testing::AddGlobalTestEnvironment(new ApplicationEnvironment); // NOLINT(bugprone-throw-keyword-missing)

/// Every literal in the sources that has the form of a localisation key.
std::set<std::string> keysInSources() {
    static const QRegularExpression key(
        R"re("((?:[A-Z]\w*_(?:Title|title|Label|Name)|Err_\w+|Rights_Label_Title))")re");
    std::set<std::string> keys;
    for (const char* folder : {"Common", "Handover", "Quorvan"}) {
        QDirIterator files(QStringLiteral(QUORVAN_SOURCE_DIR "/") + folder, {"*.cpp", "*.h"}, QDir::Files,
                           QDirIterator::Subdirectories);
        while (files.hasNext()) {
            QFile file(files.next());
            EXPECT_TRUE(file.open(QIODevice::ReadOnly));
            auto matches = key.globalMatch(QString::fromUtf8(file.readAll()));
            while (matches.hasNext())
                keys.insert(matches.next().captured(1).toStdString());
        }
    }
    return keys;
}

TEST(QtBundle, EveryKeyOfTheSourcesHasAText) {
    QtBundle bundle;
    std::set<std::string> keys = keysInSources();
    EXPECT_GT(keys.size(), 17U) << "the catalogue of alerts alone has more";
    std::set<std::string> withoutText;
    for (const std::string& key : keys)
        if (bundle.localizedString(key) == key)
            withoutText.insert(key);
    EXPECT_THAT(withoutText, testing::IsEmpty());
    EXPECT_EQ(bundle.localizedString("A_Key_Nobody_Wrote_Label"), "A_Key_Nobody_Wrote_Label");
    EXPECT_THAT(bundle.localizedString("Err_Keychain_Not_Found"), testing::HasSubstr("“Remember password”"));
}

TEST(QtBundle, SpeaksTheLanguageOfTheLocaleOrEnglish) {
    EXPECT_EQ(QtBundle::languages().join(' ').toStdString(), "de en es fr ja pl pt_BR");
    const struct {
        const char* locale;
        const char* cancel; ///< of Qt's own words
        const char* apply;
    } cases[] = {
        {"de_AT", "Abbrechen", "&Anwenden"}, {"pt_BR", "Cancelar", "A&plicar"}, {"it", "Cancel", "&Apply"}};
    for (const auto& [locale, cancel, apply] : cases) {
        QtBundle bundle({}, QLocale(locale));
        EXPECT_EQ(QCoreApplication::translate("QPlatformTheme", "Cancel").toStdString(), cancel) << locale;
        EXPECT_EQ(bundle.localizedString("Apply_title"), apply) << locale;
    }
}

TEST(QtBundle, ReadsTheFeatureFileAnewAndTrustsNothingInIt) {
    const FeatureDictionary shipped = {{"MorvaneSupport", true}, {"addBothTrustees", true},
                                       {"bothIdentities", true}, {"enableSettings", true},
                                       {"multiForest", true},    {"newFileBrowser", true}};
    EXPECT_EQ(
        QtBundle(QStringLiteral(QUORVAN_SOURCE_DIR "/Quorvan/Resources/feature.plist")).featureDictionary(),
        shipped);

    const QTemporaryDir folder;
    const QString path = folder.filePath("feature.plist");
    QtBundle bundle(path);
    EXPECT_EQ(bundle.featureDictionary(), std::nullopt) << "no file";

    const QByteArray head = R"(<?xml version="1.0"?><plist version="1.0">)";
    const struct {
        QByteArray content;
        std::optional<FeatureDictionary> expected;
    } cases[] = {
        {head + "<dict><key>a</key><true/><key>b</key><false/></dict></plist>",
         FeatureDictionary{{"a", true}, {"b", false}}},
        {head + "<dict><key>a</key><string>true</string><key>b</key><integer>1</integer></dict></plist>",
         FeatureDictionary{{"a", std::nullopt}, {"b", std::nullopt}}},
        {head + "<array><true/></array></plist>", std::nullopt},
        {head + "<dict><key>a</key><tr", std::nullopt},
        {"bplist00\xff\xff\xff\xff\xff\xff\xff\xff", std::nullopt},
        {"", std::nullopt},
        {head + "<dict><key>a</key><true/></dict></plist>" + QByteArray(64 * 1024, ' '), std::nullopt},
        {head + QByteArray("<array>").repeated(9000), std::nullopt},
    };
    for (const auto& [content, expected] : cases) {
        QFile file(path);
        ASSERT_TRUE(file.open(QIODevice::WriteOnly));
        file.write(content);
        file.close();
        EXPECT_EQ(bundle.featureDictionary(), expected) << content.left(120).toStdString();
    }
}

TEST(QtAlerts, ShowsPlainTextWithOneButtonOverTheActiveWindow) {
    QWidget window;
    window.show();
    for (const auto& [style, icon] : {std::pair(AlertStyle::warning, QMessageBox::Warning),
                                      {AlertStyle::informational, QMessageBox::Information},
                                      {AlertStyle::critical, QMessageBox::Critical}}) {
        window.activateWindow();
        QApplication::processEvents();
        int shown = 0;
        QTimer::singleShot(0, &window, [&, wanted = icon] {
            auto* box = qobject_cast<QMessageBox*>(QApplication::activeModalWidget());
            ASSERT_NE(box, nullptr);
            ++shown;
            EXPECT_EQ(box->windowTitle(), "Error");
            EXPECT_EQ(box->text(), "<b>said the server</b>");
            EXPECT_EQ(box->textFormat(), Qt::PlainText);
            EXPECT_EQ(box->icon(), wanted);
            EXPECT_EQ(box->parentWidget(), &window);
            ASSERT_EQ(box->buttons().size(), 1);
            box->buttons().constFirst()->click();
        });
        QtAlerts().runModal("Error", "<b>said the server</b>", style);
        EXPECT_EQ(shown, 1);
    }
}

TEST(QtWaitCursor, SaysHowLongTheWaitHasBeenWithoutAnEventLoop) {
    QWidget window;
    window.resize(300, 200);
    window.show();
    QtWaitCursor busy([](std::chrono::seconds soFar) { return QString("%1 s").arg(soFar.count()); });
    busy.begin();
    busy.waiting(std::chrono::seconds(1));
    EXPECT_EQ(window.findChild<QLabel*>("waitingLine"), nullptr);
    const QImage before = window.grab().toImage();
    busy.waiting(std::chrono::seconds(4));
    const auto* line = window.findChild<QLabel*>("waitingLine");
    ASSERT_NE(line, nullptr);
    EXPECT_TRUE(line->isVisible());
    EXPECT_EQ(line->text(), "4 s");
    EXPECT_EQ(line->geometry().bottomRight(), window.rect().bottomRight());
    EXPECT_NE(window.grab().toImage(), before);
    busy.end();
    EXPECT_EQ(window.findChild<QLabel*>("waitingLine"), nullptr);
}

TEST(QtWaitCursor, StaysUntilTheOutermostEnd) {
    QtWaitCursor busy;
    busy.begin();
    busy.begin();
    busy.end();
    ASSERT_NE(QGuiApplication::overrideCursor(), nullptr);
    EXPECT_EQ(QGuiApplication::overrideCursor()->shape(), Qt::WaitCursor);
    busy.end();
    busy.end(); // one too many does not take away somebody else's cursor
    EXPECT_EQ(QGuiApplication::overrideCursor(), nullptr);
}

TEST(Icons, AreDrawnAtEverySize) {
    for (const char* name : {"user", "group", "user_Morvane", "group_Morvane", "quorvan", "page_salvage",
                             "page_purge", "page_trustee_rights", "page_file_system_rights",
                             "page_user_quota", "page_information", "page_settings"})
        for (const int size : {16, 96}) {
            const QIcon icon(QStringLiteral(":/icons/%1.svg").arg(QLatin1String(name)));
            const QImage image = icon.pixmap(size, size).toImage();
            ASSERT_EQ(image.width(), size) << name;
            bool drawn = false;
            for (int y = 0; y < size; ++y)
                for (int x = 0; x < size; ++x)
                    drawn = drawn || qAlpha(image.pixel(x, y)) > 100;
            EXPECT_TRUE(drawn) << name;
        }
}

} // namespace
} // namespace quorvan::platform
