// SPDX-License-Identifier: GPL-3.0-or-later
#include "Quorvan/Application.h"

#include <gtest/gtest.h>

int main(int argc, char** argv) {
    qputenv("QT_QPA_PLATFORM", "offscreen");
    testing::InitGoogleTest(&argc, argv);
    const quorvan::Application application(argc, argv);
    return RUN_ALL_TESTS();
}
