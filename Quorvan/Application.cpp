// SPDX-License-Identifier: GPL-3.0-or-later
#include "Quorvan/Application.h"

#include "Common/Log.h"

#include <cstdlib>
#include <exception>

namespace quorvan {
namespace {

/// Logs the exception that is being handled.
void logException() {
    try {
        throw;
    } catch (const std::exception& exception) {
        Log("Unexpected exception: %@", exception.what());
    } catch (...) {
        Log("Unexpected exception of an unknown type");
    }
}

} // namespace

bool Application::notify(QObject* receiver, QEvent* event) {
    try {
        return QApplication::notify(receiver, event);
    } catch (...) {
        logException();
        exit(EXIT_FAILURE);
        return true;
    }
}

int Application::run(const std::function<int()>& program) {
    try {
        return program();
    } catch (...) {
        logException();
        return EXIT_FAILURE;
    }
}

} // namespace quorvan
