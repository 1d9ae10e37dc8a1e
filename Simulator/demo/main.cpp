// SPDX-License-Identifier: GPL-3.0-or-later
// quorvan-demo: the application on a simulated server inside the process, selection included. It is the
// real thing but for the server, the keyring and the shared defaults.
#include "Platform/Qt/QtBundle.h"
#include "Quorvan/Application.h"
#include "Quorvan/Controller/Shell/MainStoryboard.h"
#include "Simulator/demo/Palettes.h"
#include "Simulator/demo/PseudoTexts.h"
#include "Simulator/demo/Scenes.h"

#include <QCommandLineParser>
#include <QDir>
#include <QIcon>
#include <QLocale>
#include <QProcess>
#include <QStandardPaths>
#include <QTemporaryDir>

#include <cstdio>
#include <map>
#include <string_view>

#include <unistd.h>

namespace {

namespace account = quorvan::simulator::demo;

const std::map<QString, const char*> users = {
    {"supervisor", account::supervisor},
    {"access", account::accessControl},
    {"reader", account::readOnly},
    {"supervisor-tree", account::supervisorTree},
    {"access-tree", account::accessControlTree},
    {"reader-tree", account::readOnlyTree},
};

const QCommandLineOption
    asOption("as", "Log in as one of: supervisor, access, reader, supervisor-tree, access-tree, reader-tree.",
             "user", "supervisor");
const QCommandLineOption pathOption("path", "Select this path of the volume.", "path", account::selection);
const QCommandLineOption tourOption("tour", "Walk through every page and leave pictures in this folder.",
                                    "folder");
const QCommandLineOption lookOption("look", "Walk in this style of the desktop, such as Fusion.", "style",
                                    "Fusion");
const QCommandLineOption languageOption(
    "language", "Speak this language, such as de, pt_BR or pseudo (longer, from right to left).", "language");
const QCommandLineOption scaledOption("main-pages", "Walk through the main pages only.");

bool hasDisplay() {
    return qEnvironmentVariableIsSet("DISPLAY") || qEnvironmentVariableIsSet("WAYLAND_DISPLAY") ||
           qEnvironmentVariableIsSet("QT_QPA_PLATFORM");
}

bool asksForTour(int count, char** arguments) {
    for (int at = 1; at < count; ++at)
        if (QByteArray(arguments[at]).startsWith("--tour"))
            return true;
    return false;
}

/// A volume, and what is on it: "VOL1:\folder\file".
bool isServerPath(const QString& path) {
    return path.indexOf(QLatin1String(":\\")) > 0;
}

/// The same program once more, at twice the size.
int walkThroughAtTwiceTheSize(const QString& folder, const QString& style) {
    QProcess second;
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    environment.insert("QT_SCALE_FACTOR", "2");
    second.setProcessEnvironment(environment);
    second.setProcessChannelMode(QProcess::ForwardedChannels);
    QStringList arguments = QCoreApplication::arguments().mid(1); // the language among them
    arguments += {"--tour", folder, "--look", style, "--main-pages"};
    second.start(QCoreApplication::applicationFilePath(), arguments);
    return second.waitForFinished(120000) ? second.exitCode() : 1;
}

int walkThrough(const QString& folder, const QString& style, bool mainPagesOnly, bool hasPseudoTexts) {
    if (!QDir().mkpath(folder)) {
        std::fprintf(stderr, "quorvan-demo: cannot make the folder %s\n", qPrintable(folder));
        return 1;
    }
    // The application takes the standard streams for its log; the report needs them as they are now.
    FILE* report = fdopen(dup(STDOUT_FILENO), "w");
    quorvan::demo::Output output{folder,
                                 {},
                                 [report](const QString& line) {
                                     std::fprintf(report, "%s\n", qPrintable(line));
                                     std::fflush(report);
                                 },
                                 hasPseudoTexts};
    const QTemporaryDir state; // each walk finds the windows as nobody has arranged them
    qputenv("XDG_STATE_HOME", state.path().toUtf8());
    int status = 0;
    if (!mainPagesOnly)
        status = walkThroughAtTwiceTheSize(folder, style);
    QApplication::setQuitOnLastWindowClosed(false);
    struct Look {
        const char* prefix;
        QPalette palette;
        const char* variant; ///< what some styles have for it instead of following the palette
    };
    const Look looks[] = {{"light", quorvan::demo::lightPalette(), ""},
                          {"dark", quorvan::demo::darkPalette(), "-dark"},
                          {"contrast", quorvan::demo::contrastPalette(), "-highcontrastinverse"}};
    for (const auto& [prefix, palette, variant] : looks) {
        if (QApplication::setStyle(style + variant) == nullptr)
            QApplication::setStyle(style);
        QApplication::setPalette(palette);
        output.prefix = QString::fromLatin1(prefix) + (mainPagesOnly ? "-200-percent" : "");
        if (mainPagesOnly || prefix == std::string_view("contrast"))
            quorvan::demo::showMainPages(output);
        else
            quorvan::demo::showEverything(output);
    }
    return status;
}

int open(const QString& user, const QString& path, bool hasPseudoTexts) {
    const quorvan::demo::Output output{
        QStandardPaths::writableLocation(QStandardPaths::CacheLocation), {}, {}, hasPseudoTexts};
    std::printf("The log is in %s\n",
                quorvan::AppDelegate::logFile((output.folder + "/Library").toStdString()).c_str());
    std::fflush(stdout);
    qputenv("XDG_STATE_HOME", (output.folder + "/State").toUtf8());
    quorvan::demo::Stage stage(output,
                               quorvan::simulator::Embedded::demo(users.at(user), path.toStdString()));
    return stage.delegate().run();
}

} // namespace

int main(int argc, char** argv) {
    const bool tour = asksForTour(argc, argv) || !hasDisplay();
    if (tour)
        qputenv("QT_QPA_PLATFORM", "offscreen");
    const quorvan::Application application(argc, argv);
    QApplication::setApplicationName("quorvan-demo");
    QApplication::setWindowIcon(QIcon(":/icons/quorvan.svg"));
    QCommandLineParser parser;
    parser.setApplicationDescription("Quorvan on a simulated server.");
    parser.addHelpOption();
    parser.addOptions({asOption, pathOption, tourOption, lookOption, languageOption, scaledOption});
    parser.process(application);
    if (!users.contains(parser.value(asOption)))
        parser.showHelp(2);
    if (!isServerPath(parser.value(pathOption))) {
        std::fprintf(stderr, "quorvan-demo: \"%s\" is no path of the form VOL1:\\folder\\file\n",
                     qPrintable(parser.value(pathOption)));
        return 2;
    }

    const QString language = parser.value(languageOption);
    const bool hasPseudoTexts = language == quorvan::demo::PseudoTexts::language;
    if (!language.isEmpty()) {
        const QStringList known = quorvan::platform::QtBundle::languages()
                                  << quorvan::demo::PseudoTexts::language;
        if (!known.contains(language)) {
            std::fprintf(stderr, "quorvan-demo: no texts in the language \"%s\", only in %s\n",
                         qPrintable(language), qPrintable(known.join(", ")));
            return 2;
        }
        QLocale::setDefault(QLocale(language));
        if (hasPseudoTexts)
            QApplication::setLayoutDirection(Qt::RightToLeft);
    }

    return quorvan::Application::run([&] {
        quorvan::fillMainStoryboard();
        if (tour)
            return walkThrough(parser.isSet(tourOption) ? parser.value(tourOption) : QStringLiteral("demo"),
                               parser.value(lookOption), parser.isSet(scaledOption), hasPseudoTexts);
        return open(parser.value(asOption), parser.value(pathOption), hasPseudoTexts);
    });
}
