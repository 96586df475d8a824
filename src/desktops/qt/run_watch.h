// SPDX-License-Identifier: GPL-3.0-or-later
//
// What the desktop may do while a program runs: paint the window, ask whether it is alive, and tell
// that the user wants the run to end. Keys and clicks are dropped: the calculator is the program's.
#pragma once

#include "platform/platform.h"

#include <QObject>

namespace tallyforge::qt {

class RunWatch : public QObject {
public:
    /// Lets the events of the desktop that have come in meanwhile take place, but for input, and
    /// returns what the user wants of the run: Ctrl+Break ends it, the close button of `window` asks.
    [[nodiscard]] Interruption letPass(QObject* window);

    bool eventFilter(QObject* target, QEvent* event) override;

private:
    QObject* window_ = nullptr;
    Interruption wish_ = Interruption::None;
};

}  // namespace tallyforge::qt
