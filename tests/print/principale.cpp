// SPDX-License-Identifier: GPL-3.0-or-later
// Fonts need an application, but no display.
#include <gtest/gtest.h>

#include <QGuiApplication>

int main(int argc, char* argv[]) {
    qputenv("QT_QPA_PLATFORM", "offscreen");
    testing::InitGoogleTest(&argc, argv);
    const QGuiApplication application(argc, argv);
    return RUN_ALL_TESTS();
}
