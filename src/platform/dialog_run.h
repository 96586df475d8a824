// SPDX-License-Identifier: GPL-3.0-or-later
//
// The life of a dialog, the same on every desktop: load, place, show, wait, close.
#pragma once

#include "platform/platform.h"

#include <functional>

namespace tallyforge {

/// Moves `place` as little as needed so that it lies on the screen; what is larger than the screen
/// keeps its left upper corner.
void keepOnScreen(Place& place, const DesktopMetrics& desktop);

/// Opens `dialog`, has `untilClosed` run it until its `open` is false, and ends it. A dialog that
/// closes itself while it loads is never shown. It is closed in the end, whoever left it.
void runDialog(Platform& platform, Form& dialog, const std::function<void()>& untilClosed);

/// The dialog stands on the screen: the focus is placed and told, and `activate` runs.
void activateDialog(Form& dialog);

}  // namespace tallyforge
