// SPDX-License-Identifier: GPL-3.0-or-later
#include "desk/view_keys.h"

#include "engine/engine.h"
#include "records/settings_file.h"

#include <string>
#include <utility>

namespace tallyforge {

namespace {

constexpr int kTwipsPerInch = 1440;
constexpr int kShownRegisters = 12;
constexpr int kViewTallGrowth = 240;

}  // namespace

void ViewKeys::FixMenu() {
    constexpr int kLargeMenu = 27;
    constexpr int kMediumMenu = 21;
    constexpr int kBelowMenu = 5300;
    const DesktopMetrics metrics = calc.platform.metrics();
    int menu = metrics.menuHeight;
    if (menu >= kLargeMenu) {
        menu *= 3;
    } else if (menu >= kMediumMenu) {
        menu *= 2;
    }
    const int twipsPerPixel = kTwipsPerInch / metrics.dotsPerInch;
    calc.s.BasicHeight = (metrics.captionHeight + menu) * twipsPerPixel + kBelowMenu;
    if (calc.s.BasicHeight == 5900) {
        calc.s.BasicHeight = 6200;
    }
    calc.form.place.height = calc.s.BasicHeight;
}

void ViewKeys::cmdView_Click() {
    EngineState& s = calc.s;
    if (s.ModifierMask != 0) {
        if (!s.ViewExtended && s.ModifierMask == kAlt) {
            toggleField(s.ShowYField, option_bit::kYField);
        } else if (!s.ViewExtended && s.ModifierMask == kCtrl) {
            toggleField(s.ShowLastxField, option_bit::kLastxField);
        }
        calc.ClearOptKeys();
        return;
    }
    s.ViewExtended = !s.ViewExtended;
    calc.form.place.width = s.ViewExtended ? MainForm::kExtendedWidth : MainForm::kPlainWidth;
    calc.form.place.height =
        s.BasicHeight + (s.TallForm ? kViewTallGrowth : 0) + (s.ViewExtended ? MainForm::kExtendedGrowth : 0);
    apply();
    calc.ClearOptKeys();
    if (std::exchange(clickedBefore_, true)) {
        calc.focusEntry();
    }
}

void ViewKeys::apply() {
    const EngineState& s = calc.s;
    MainForm& form = calc.form;
    form.txty_Reg.visible = form.Label7.visible = s.ViewExtended || s.ShowYField;
    form.txtLastx.visible = form.Label9.visible = s.ViewExtended || s.ShowLastxField;
    for (int i = 0; i < kShownRegisters; ++i) {
        form.txtReg_m.at(static_cast<std::size_t>(i)).visible = s.ViewExtended;
        form.lblErg_m.at(static_cast<std::size_t>(i)).visible = s.ViewExtended;
    }
    form.arrange(s.ViewExtended, form.place.height - s.BasicHeight);
}

void ViewKeys::toggleField(bool& shown, int optionBit) {
    shown = !shown;
    apply();
    writeOption(optionBit, shown);
}

void ViewKeys::toggleTall() {
    EngineState& s = calc.s;
    if (s.ViewExtended) {
        return;
    }
    s.TallForm = !s.TallForm;
    calc.form.place.height = s.BasicHeight + (s.TallForm ? MainForm::kTallGrowth : 0);
    apply();
    writeOption(option_bit::kTall, s.TallForm);
}

void ViewKeys::writeOption(int bit, bool on) {
    const auto report = [&](const Failure& failure) {
        calc.errorBox(BoxKind::Notice, "Error number " + std::to_string(failure.code()) + "!");
    };
    calc.s.CurrentProc = "cmdView";
    goOn(report, [&] {
        SettingsRecord record = settings.read(2);
        record.setOption(bit, on);
        settings.write(2, record);
    });
}

}  // namespace tallyforge
