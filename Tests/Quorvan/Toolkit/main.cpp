// SPDX-License-Identifier: GPL-3.0-or-later
#include "Quorvan/Application.h"

#include <QTemporaryDir>

#include <gtest/gtest.h>

int main(int argc, char** argv) {
    qputenv("QT_QPA_PLATFORM", "offscreen");
    const QTemporaryDir state; // what a window remembers is nobody's but this run's
    qputenv("XDG_STATE_HOME", state.path().toUtf8());
    testing::InitGoogleTest(&argc, argv);
    const quorvan::Application application(argc, argv);
    return RUN_ALL_TESTS();
}
