// SPDX-License-Identifier: GPL-3.0-or-later
//
// The calculator in its window, with as many lines on its tape as the first argument says.
#include "desktops/qt/control_interface.h"
#include "desktops/qt/desktop_style.h"
#include "desktops/qt/main_window.h"
#include "desktops/qt/qt_platform.h"
#include "shell/calculator.h"

#include <QApplication>

#include <cstdlib>

int main(int argc, char** argv) {
    using namespace tallyforge;
    const QApplication application(argc, argv);
    qt::installStyle();
    qt::installAccessibility();
    qt::QtPlatform platform;
    Calculator calculator(platform);
    calculator.start();
    Engine& engine = calculator.engine();
    if (!engine.form.open || argc < 2) {
        return 1;
    }
    const int lines = std::atoi(argv[1]);
    for (int i = 0; i < lines; ++i) {
        engine.tape.add("+                  5.00", ValueCell(5.0));
    }
    qt::MainWindow window(engine.form, engine.s.format.DecimalChar);
    platform.setWindow(&window);
    window.present();
    window.show();
    return QApplication::exec();
}
