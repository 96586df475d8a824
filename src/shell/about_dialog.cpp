// SPDX-License-Identifier: GPL-3.0-or-later
#include "shell/about_dialog.h"

#include "dialogs/dialog_support.h"
#include "dialogs/dressing.h"
#include "engine/engine.h"

namespace tallyforge {

namespace {

constexpr int kWidth = 5400;
constexpr int kHeight = 3700;
constexpr int kMargin = 180;
constexpr int kLine = 400;
constexpr int kKeyWidth = 1700;

}  // namespace

std::string_view version() {
    return TALLYFORGE_VERSION;
}

AboutDialog::AboutDialog(Engine& calculator) : Form("frmAbout", "About Tallyforge"), calc(calculator) {
    constexpr int kSupport = 2100;
    helpTopic = kSupport;
    place.width = kWidth;
    place.height = kHeight;
    const auto line = [](int number) { return Place{kMargin, kMargin + number * kLine, kWidth - 2 * kMargin, kLine}; };
    dress(lblTitle, ControlKind::Label, "lblTitle", "Tallyforge", line(0));
    lblTitle.font = {.face = Face::Arial, .points = 14.0F, .bold = true};
    dress(lblVersion, ControlKind::Label, "lblVersion", "Version " + std::string(version()) + "  by Oakhollow",
          line(1));
    dress(lblDescription, ControlKind::Label, "lblDescription", "Another Quality Application from Oakhollow", line(2));
    dress(lblLicence, ControlKind::Label, "lblLicence", "Free software under the GNU GPL, version 3 or later", line(3));
    // Where there is no desktop, nothing but the language's library is in the program.
    const std::string libraries = calc.platform.systemInformation();
    Place lines = line(4);
    lines.height = 2 * kLine;
    dress(lblLibraries, ControlKind::Label, "lblLibraries",
          libraries.empty() ? "Made with the C++ standard library alone"
                            : libraries.substr(0, libraries.find_last_not_of('\n') + 1),
          lines);
    const int keysTop = kHeight - kMargin - kLine;
    dress(cmdSysInfo, ControlKind::Key, "cmdSysInfo", "&System Info...", {kMargin, keysTop, kKeyWidth, kLine});
    dress(cmdOK, ControlKind::Key, "cmdOK", "OK", {kWidth - kMargin - kKeyWidth, keysTop, kKeyWidth, kLine});
    for (Control* control :
         {&lblTitle, &lblVersion, &lblDescription, &lblLicence, &lblLibraries, &cmdOK, &cmdSysInfo}) {
        enrol(*control);
    }
    defaultKey = &cmdOK;
    cancelKey = &cmdOK;
    setFocus(cmdOK);
    cmdOK.click = [this] { open = false; };
    cmdSysInfo.click = [this] { cmdSysInfo_Click(); };
    placing = [this] {
        const DialogPlace beside = PlaceDialog(calc.form.place, calc.platform.metrics(), place.width, place.height);
        place.top = beside.DialogTop;
        place.left = beside.DialogLeft;
    };
}

// What a bug report needs, shown and on the clipboard.
void AboutDialog::cmdSysInfo_Click() {
    const DesktopMetrics desktop = calc.platform.metrics();
    const std::string information = "Tallyforge " + std::string(version()) + "\n" + calc.platform.systemInformation() +
                                    "Dots per inch: " + std::to_string(desktop.dotsPerInch) +
                                    "\nDecimal character: " + calc.s.format.DecimalChar +
                                    "\nData folder: " + fromUnicode(calc.AppDataDir.string());
    calc.platform.setClipboardText(information);
    calc.message(BoxKind::Info, "System Info", information + "\n\nThis text is on the clipboard, too.");
}

}  // namespace tallyforge
