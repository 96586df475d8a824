// SPDX-License-Identifier: GPL-3.0-or-later
//
// How much of the machine is on show: plain, extended and tall form, and the small registers.
#pragma once

#include <cstdint>

namespace tallyforge {

enum class Setting : std::uint8_t;

class Engine;
class SettingsFile;

class ViewKeys {
public:
    ViewKeys(Engine& calculator, SettingsFile& settingsFile) : calc(calculator), settings(settingsFile) {}

    /// Without a modifier the extended view on or off; with Alt the y field, with Ctrl the last-x
    /// field, both kept in the settings and only in the plain view.
    void cmdView_Click();

    /// The tall form on or off, kept in the settings; only in the plain view.
    void toggleTall();

    /// Height of the plain form from the desktop's caption and menu height.
    void FixMenu();

    /// Shows the fields that view and flags ask for, and lays the form out.
    void apply();

private:
    void toggleField(bool& shown, Setting option);
    void writeOption(Setting option, bool on);

    Engine& calc;
    SettingsFile& settings;
    bool clickedBefore_ = false;
};

}  // namespace tallyforge
