// SPDX-License-Identifier: GPL-3.0-or-later
//
// The window's tests draw off screen, in plain numbers and without the user's settings.
#include "desktops/qt/control_interface.h"

#include <gtest/gtest.h>

#include <QApplication>
#include <QLocale>
#include <QStandardPaths>

int main(int argc, char** argv) {
    qputenv("QT_QPA_PLATFORM", "offscreen");
    QStandardPaths::setTestModeEnabled(true);
    QLocale::setDefault(QLocale::c());
    const QApplication application(argc, argv);
    tallyforge::qt::installAccessibility();
    testing::InitGoogleTest(&argc, argv);
    return RUN_ALL_TESTS();
}
