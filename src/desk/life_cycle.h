// SPDX-License-Identifier: GPL-3.0-or-later
//
// How the program starts and ends, and what it keeps in the settings records in between.
#pragma once

#include "engine/engine_state.h"
#include "records/settings_file.h"

#include <cstdint>
#include <functional>
#include <optional>
#include <string_view>

namespace tallyforge {

class Engine;
class ViewKeys;

class LifeCycle {
public:
    LifeCycle(Engine& calculator, SettingsFile& settingsFile, ViewKeys& view)
        : calc(calculator), settings(settingsFile), viewKeys(view) {}

    /// Reads the settings and brings the form into the state that they ask for. Closes the form
    /// after a message where the record file is missing, damaged or too old. On the first start,
    /// with no file and no trace of an earlier one, the file is made with its defaults.
    void Form_Load();
    void Form_Activate();
    void Form_Deactivate();
    /// Keeps the window's position where the user wants it kept, and ends the program.
    void Form_Unload();

    /// Asks, then writes digits, mode, keypad, view, angle and word size.
    void mnuSave_Click();
    void mnuAOT_Click();
    void mnuPosition_Click();
    void mnuLoad_Click();
    void mnuSkins_Click();

    /// What the rooms above save with the settings.
    std::function<void()> saveMore;

    /// Whether the first notice of a keypad is still due; counts it.
    bool countNotice(Keypad keypad);

private:
    void prepareForm();
    /// The settings that the start goes by; none where it ends here.
    [[nodiscard]] std::optional<SettingsRecords> findSettings();
    /// The settings cannot be `what` the data folder: says so, and runs with the defaults.
    void keepInMemory(std::string_view what);
    void firstStart();
    void startAfresh();
    void readNames(const SettingsRecords& records);
    void readOptions(const SettingsRecords& records);
    void readProgramAndPlace(const SettingsRecords& records);
    void readView(const SettingsRecords& records);
    void setAngle(AngleMode mode);
    void endWith(std::string_view title, std::string_view text);
    void writeOptions(SettingsRecords& records) const;
    template <typename Change>
    void changeSettings(Change change);

    Engine& calc;
    SettingsFile& settings;
    ViewKeys& viewKeys;
    bool onTopAtStart_ = false;
};

}  // namespace tallyforge
