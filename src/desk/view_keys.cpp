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
    calc.s.window.BasicHeight = (metrics.captionHeight + menu) * twipsPerPixel + kBelowMenu;
    if (calc.s.window.BasicHeight == 5900) {
        calc.s.window.BasicHeight = 6200;
    }
    calc.form.place.height = calc.s.window.BasicHeight;
}

void ViewKeys::cmdView_Click() {
    EngineState& s = calc.s;
    if (s.modifiers.ModifierMask != 0) {
        if (!s.window.ViewExtended && s.modifiers.ModifierMask == kAlt) {
            toggleField(s.window.ShowYField, Setting::YField);
        } else if (!s.window.ViewExtended && s.modifiers.ModifierMask == kCtrl) {
            toggleField(s.window.ShowLastxField, Setting::LastxField);
        }
        calc.ClearOptKeys();
        return;
    }
    s.window.ViewExtended = !s.window.ViewExtended;
    calc.form.place.width = s.window.ViewExtended ? MainForm::kExtendedWidth : MainForm::kPlainWidth;
    calc.form.place.height = s.window.BasicHeight + (s.window.TallForm ? kViewTallGrowth : 0) +
                             (s.window.ViewExtended ? MainForm::kExtendedGrowth : 0);
    apply();
    calc.ClearOptKeys();
    if (std::exchange(clickedBefore_, true)) {
        calc.focusEntry();
    }
}

void ViewKeys::apply() {
    const EngineState& s = calc.s;
    MainForm& form = calc.form;
    form.txty_Reg.visible = form.Label7.visible = s.window.ViewExtended || s.window.ShowYField;
    form.txtLastx.visible = form.Label9.visible = s.window.ViewExtended || s.window.ShowLastxField;
    for (int i = 0; i < kShownRegisters; ++i) {
        form.txtReg_m.at(static_cast<std::size_t>(i)).visible = s.window.ViewExtended;
        form.lblErg_m.at(static_cast<std::size_t>(i)).visible = s.window.ViewExtended;
    }
    form.arrange(s.window.ViewExtended, form.place.height - s.window.BasicHeight);
}

void ViewKeys::toggleField(bool& shown, Setting option) {
    shown = !shown;
    apply();
    writeOption(option, shown);
}

void ViewKeys::toggleTall() {
    EngineState& s = calc.s;
    if (s.window.ViewExtended) {
        return;
    }
    s.window.TallForm = !s.window.TallForm;
    calc.form.place.height = s.window.BasicHeight + (s.window.TallForm ? MainForm::kTallGrowth : 0);
    apply();
    writeOption(Setting::Tall, s.window.TallForm);
}

void ViewKeys::writeOption(Setting option, bool on) {
    calc.s.CurrentProc = "cmdView";
    goOn(calc, [&] { settings.change([&](SettingsRecords& records) { records.set(option, on); }); });
}

}  // namespace tallyforge
