// SPDX-License-Identifier: GPL-3.0-or-later
//
// "Try it" of the help: presses the keys of an example in the calculator that the user works with.
#pragma once

#include "desktops/qt/main_window.h"
#include "desktops/qt/qt_platform.h"
#include "help/help_page.h"
#include "shell/calculator.h"

namespace tallyforge {

/// Asks, and presses the example's keys; boxes and dialogs that they bring are answered as the
/// example says. Nothing but a message while a program runs or a dialog is open, or where the
/// example touches more than the calculator.
void tryExample(qt::QtPlatform& platform, Calculator& calculator, qt::MainWindow& window, const HelpExample& example);

}  // namespace tallyforge
