// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/dialog_run.h"

#include "platform/form_acts.h"
#include "platform/form_focus.h"

#include <algorithm>
#include <vector>

namespace tallyforge {

void keepOnScreen(Place& place, const DesktopMetrics& desktop) {
    place.left = std::max(0, std::min(place.left, desktop.screenWidth - place.width));
    place.top = std::max(0, std::min(place.top, desktop.screenHeight - place.height));
}

void activateDialog(Form& dialog) {
    if (dialog.focus == nullptr || !takesFocus(*dialog.focus)) {
        const std::vector<Control*> stops = tabStops(dialog);
        dialog.focus = stops.empty() ? nullptr : stops.front();
    }
    runHandler(dialog.activate);
    settleFocus(dialog);
}

void runDialog(Platform& platform, Form& dialog, const std::function<void()>& untilClosed) {
    dialog.open = true;
    dialog.focusTold = nullptr;
    if (!dialog.help) {
        dialog.help = [&platform, &dialog] { platform.helpDialog(dialog.name, dialog.helpTopic); };
    }
    if (!dialog.failed) {
        dialog.failed = platform.handlerFailed;
    }
    runHandler(dialog.load);
    runHandler(dialog.placing);
    keepOnScreen(dialog.place, platform.metrics());
    if (dialog.open) {
        untilClosed();
    }
    dialog.open = false;
    runHandler(dialog.deactivate);
    runHandler(dialog.unload);
}

}  // namespace tallyforge
