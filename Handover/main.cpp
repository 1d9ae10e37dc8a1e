// SPDX-License-Identifier: GPL-3.0-or-later
// The companion of the file managers: hands over what was chosen there, and starts Quorvan on it.
#include "Common/ServerDetails.h"
#include "Handover/Handover.h"
#include "Platform/Linux/PlistSharedDefaults.h"
#include "Platform/Linux/SecretServiceKeychain.h"
#include "Platform/Qt/QtBundle.h"
#include "Platform/Services.h"
#include "Quorvan/Toolkit/Localized.h"
#include "Quorvan/Toolkit/ShownText.h"

#include <QApplication>
#include <QFileInfo>
#include <QIcon>
#include <QMessageBox>
#include <QProcess>

#include <algorithm>
#include <cstdio>
#include <exception>
#include <iterator>
#include <memory>
#include <string_view>
#include <utility>
#include <variant>

#include <unistd.h>

namespace {

using quorvan::L;

bool hasDisplay() {
    return qEnvironmentVariableIsSet("DISPLAY") || qEnvironmentVariableIsSet("WAYLAND_DISPLAY");
}

/// A text of the string tables; there is an application.
QString localized(const char* key) {
    quorvan::platform::Services services;
    services.bundle = std::make_shared<quorvan::platform::QtBundle>();
    const quorvan::platform::ScopedServices installed(services);
    return L(key);
}

/// On a terminal as text, anywhere else as a dialog.
int refuse(int& count, char** arguments, const char* key, const QString& what) {
    const bool asDialog = isatty(STDERR_FILENO) == 0 && hasDisplay();
    std::unique_ptr<QCoreApplication> application;
    if (asDialog)
        application = std::make_unique<QApplication>(count, arguments);
    else
        application = std::make_unique<QCoreApplication>(count, arguments);
    QString text = localized(key);
    if (text.contains(QLatin1String("%1")))
        text = text.arg(quorvan::shownText(what));
    if (!asDialog) {
        std::fprintf(stderr, "quorvan-handover: %s\n", qPrintable(text));
        return 1;
    }
    QApplication::setWindowIcon(QIcon(":/icons/quorvan.svg"));
    QMessageBox message(QMessageBox::Information, QStringLiteral("Quorvan"), text, QMessageBox::Ok);
    message.setTextFormat(Qt::PlainText);
    message.exec();
    return 1;
}

/// False when it did not reach the file.
bool isWritten(const quorvan::Handover& handover) {
    namespace platform = quorvan::platform;
    const platform::LogLine quiet = [](std::string_view) {};
    const auto write = platform::PlistSharedDefaults(quiet).openSuite(quorvan::groupSuiteName);
    if (!write)
        return false;
    const std::pair<const char*, const std::string&> values[] = {{"serverIP", handover.serverIP},
                                                                 {"selectedPath", handover.selectedPath},
                                                                 {"mappedPath", handover.mappedPath}};
    for (const auto& [key, value] : values)
        write->setString(key, value);
    write->synchronize();
    const auto read = platform::PlistSharedDefaults(quiet).openSuite(quorvan::groupSuiteName);
    return std::all_of(std::begin(values), std::end(values),
                       [&](const auto& each) { return read->string(each.first) == each.second; });
}

/// The program beside this one, or the one on the user's path.
bool isStarted() {
    const QString beside = QFileInfo(QFile::symLinkTarget("/proc/self/exe")).path() + "/quorvan";
    return QProcess::startDetached(QFileInfo::exists(beside) ? beside : QStringLiteral("quorvan"), {});
}

int handOver(int& argc, char** argv) {
    const std::string_view first = argc > 1 ? argv[1] : "";
    if (first == "-h" || first == "--help") {
        const QCoreApplication application(argc, argv);
        std::puts(qPrintable(localized("Handover_Help_Label")));
        return 0;
    }
    if (first == "-v" || first == "--version") {
        std::puts("quorvan-handover " QUORVAN_VERSION);
        return 0;
    }
    const QString what = QFile::decodeName(QByteArray(argc > 1 ? argv[1] : ""));
    if (argc != 2)
        return refuse(argc, argv, argc < 2 ? "Handover_Nothing_Label" : "Handover_Several_Label", what);
    auto found = quorvan::handoverOf(argv[1]);
    if (const auto* refusal = std::get_if<quorvan::Refusal>(&found))
        return refuse(argc, argv, refusal->key, what);
    auto& handover = std::get<quorvan::Handover>(found);
    handover.serverIP = quorvan::platform::SecretServiceKeychain().spellingOf(handover.serverIP);
    if (!isWritten(handover))
        return refuse(argc, argv, "Handover_Not_Written_Label", what);
    if (!isStarted())
        return refuse(argc, argv, "Handover_Not_Started_Label", what);
    return 0;
}

} // namespace

int main(int argc, char** argv) {
    try {
        return handOver(argc, argv);
    } catch (const std::exception& error) {
        std::fprintf(stderr, "quorvan-handover: %s\n", error.what());
        return 1;
    }
}
