// SPDX-License-Identifier: GPL-3.0-or-later
//
// The calculator in its window, loaded and painted once: what is measured in one process begins here.
#pragma once

#include "desktops/qt/main_window.h"
#include "desktops/qt/qt_platform.h"
#include "shell/calculator.h"

#include <QApplication>

namespace tallyforge {

class ShownCalculator {
public:
    ShownCalculator() {
        calculator.load();
        window.present();
        window.show();
        QApplication::processEvents();
    }

    qt::QtPlatform platform;
    Calculator calculator{platform};
    qt::MainWindow window{calculator.engine().form, '.'};
};

}  // namespace tallyforge
