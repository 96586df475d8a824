// SPDX-License-Identifier: GPL-3.0-or-later
#include "desk/life_cycle.h"

#include "desk/view_keys.h"
#include "engine/engine.h"
#include "numbers/number_format.h"
#include "platform/file_name.h"
#include "platform/file_store.h"
#include "platform/text.h"

#include <algorithm>
#include <array>
#include <filesystem>
#include <string>
#include <utility>

namespace tallyforge {

namespace {

constexpr int kOldestVersion = 8;
constexpr int kCompactRows = 5;
constexpr int kNoticeLimit = 7;
constexpr std::string_view kTipsOption = "Show Tips at Startup";
constexpr std::size_t kTopDigits = 5;
constexpr std::size_t kLeftDigits = 6;
/// A longer name is kept, and not read.
constexpr std::size_t kProgramNameRead = 31;

/// Keypads in the order of their option bits.
constexpr std::array<Keypad, 6> kKeypadBits{Keypad::Standard, Keypad::Engineering, Keypad::Trigonometry,
                                            Keypad::Binary,   Keypad::Convert,     Keypad::Magnetics};

std::string withoutTrailingBlanks(std::string text) {
    text.erase(text.find_last_not_of(' ') + 1);
    return text;
}

int numberIn(const std::string& text, int preset) {
    const auto value = tryReadNumber(text, '.');
    return value && *value >= -1e6 && *value <= 1e6 ? static_cast<int>(*value) : preset;
}

std::string zeroPadded(int value, std::size_t width) {
    std::string digits = std::to_string(std::max(value, 0));
    return digits.size() < width ? std::string(width - digits.size(), '0') + digits : digits;
}

}  // namespace

void LifeCycle::Form_Load() {
    prepareForm();
    // The whole start is one look at the file.
    const std::optional<SettingsRecords> records = findSettings();
    if (!records) {
        return;
    }
    const auto report = [&](const Failure& failure) {
        calc.reportIn("Form_Load", failure.code(), description(failure.number()));
        calc.form.open = false;
    };
    calc.s.CurrentProc = "Form_Load";
    const bool read = goOn(report, [&] {
        readNames(*records);
        if (calc.form.open) {
            calc.units = SettingsFile::units(*records);
            readOptions(*records);
            readProgramAndPlace(*records);
            readView(*records);
        }
    });
    if (!read || !calc.form.open) {
        return;
    }
    const bool tips = calc.platform.readOption(kTipsOption, true);
    calc.form.mnuTip.checked = tips && calc.keypads().ShowTips();
    if (onTopAtStart_) {
        mnuAOT_Click();
    }
}

void LifeCycle::prepareForm() {
    EngineState& s = calc.s;
    viewKeys.FixMenu();
    s.format.DecimalChar = calc.platform.decimalCharacter();
    calc.form.cmdNumPad.back().text = std::string(1, s.format.DecimalChar);
    constexpr int kUsualDensity = 96;
    if (calc.platform.metrics().dotsPerInch != kUsualDensity) {
        s.window.CompactForm = true;
        s.window.TapeRows = kCompactRows;
        constexpr float kLargeNumbers = 12.0F;
        calc.form.lstDisplayReg.font.points = kLargeNumbers;
        calc.form.lstStack.font.points = kLargeNumbers;
        calc.form.Label8.place.width = 900;
    }
    calc.tape.clear(s.window.TapeRows);
    s.stack.StackPtr = 1;
    s.stack.Yreg = ValueCell::zero();
}

void LifeCycle::endWith(std::string_view title, std::string_view text) {
    calc.message(BoxKind::Stop, title, text);
    calc.form.open = false;
}

std::optional<SettingsRecords> LifeCycle::findSettings() {
    calc.AppDataDir = calc.platform.dataFolder();
    settings.setPath(calc.AppDataDir / SettingsFile::kName);
    std::error_code error;
    // A folder that holds the user's programs or tapes alone is no sign of an earlier start.
    const bool startedBefore = calc.platform.hasOption(kTipsOption) &&
                               std::filesystem::exists(calc.AppDataDir, error) &&
                               !std::filesystem::is_empty(calc.AppDataDir, error);
    if (!startedBefore && !std::filesystem::exists(settings.path(), error)) {
        firstStart();
    } else {
        sweepTemporaries(calc.AppDataDir);
    }
    std::optional<SettingsRecords> records;
    const auto unreadable = [&](const Failure& failure) {
        // What is there and whole, but does not open, is the user's and stays.
        if (failure.number() != FailureNumber::DamagedFile &&
            std::filesystem::is_regular_file(settings.path(), error)) {
            keepInMemory("read from");
            records = settings.read();
            return;
        }
        endWith("Error loading program!",
                "There is a missing or corrupt file! Remove and reinstall the software, or see the help on support.");
        startAfresh();
    };
    goOn(unreadable, [&] { records = settings.read(); });
    return records;
}

void LifeCycle::keepInMemory(std::string_view what) {
    settings.keepInMemory();
    calc.message(BoxKind::Notice, "Settings",
                 "The settings cannot be " + std::string(what) + " " + fromUnicode(calc.AppDataDir.string()) +
                     ".\nThe calculator runs with its defaults, and nothing is kept when it ends.");
}

void LifeCycle::firstStart() {
    std::error_code ignored;
    std::filesystem::create_directories(calc.AppDataDir, ignored);
    const auto cannotWrite = [&](const Failure& /*failure*/) { keepInMemory("written to"); };
    if (goOn(cannotWrite, [&] { settings.create(); })) {
        calc.platform.writeOption(kTipsOption, true);
    }
}

// The next start is to work, whatever this file holds; what it holds stays beside it for whoever can
// read it.
void LifeCycle::startAfresh() {
    std::error_code ignored;
    if (std::filesystem::exists(std::filesystem::symlink_status(settings.path(), ignored))) {
        std::filesystem::path aside = settings.path();
        aside += ".bad";
        std::filesystem::rename(settings.path(), aside, ignored);
    }
    const auto stays = [](const Failure& /*failure*/) {};
    goOn(stays, [&] { settings.create(); });
}

void LifeCycle::readNames(const SettingsRecords& records) {
    const std::string version = records.text(Setting::DataVersion);
    if (numberIn(version, 0) < kOldestVersion) {
        endWith("Version Conflict!",
                "You must uninstall the previous version \ncompletely, then reinstall the new version.");
        if (version.find_first_not_of(" 0123456789") != version.npos) {
            // No version of this program wrote that.
            startAfresh();
        }
        return;
    }
    calc.s.files.TapeFileName = withoutTrailingBlanks(records.text(Setting::TapeFile));
    calc.s.files.MemoryFileName = withoutTrailingBlanks(records.text(Setting::RegisterFile));
}

void LifeCycle::readOptions(const SettingsRecords& records) {
    EngineState& s = calc.s;
    std::string tax = records.text(Setting::TaxRate);
    std::replace(tax.begin(), tax.end(), '.', s.format.DecimalChar);
    constexpr double kUsualTax = 7.75;
    s.functions.TaxRate = static_cast<float>(tryReadNumber(tax, s.format.DecimalChar).value_or(kUsualTax));
    onTopAtStart_ = records.text(Setting::OnTop) == "E";
    calc.form.mnuPosition.checked = records.text(Setting::KeepsPosition).front() == 'S';
    calc.form.mnuLoad.checked = records.text(Setting::LoadsProgram) == "S";
    s.files.AutoLoadProgram = calc.form.mnuLoad.checked;
}

void LifeCycle::readProgramAndPlace(const SettingsRecords& records) {
    EngineState& s = calc.s;
    // By its name only: a record that names another folder was not written by this program.
    s.files.DefaultProgram =
        bareName(withoutTrailingBlanks(records.text(Setting::DefaultProgram).substr(0, kProgramNameRead)));
    s.window.SavedTop = 0;
    s.window.SavedLeft = 0;
    if (calc.form.mnuPosition.checked) {
        const std::string place = records.text(Setting::WindowPlace);
        s.window.SavedTop = numberIn(place.substr(0, kTopDigits), 0);
        s.window.SavedLeft = numberIn(place.substr(kTopDigits + 1), 0);
    }
    s.window.LastTop = s.window.SavedTop;
    s.window.LastLeft = s.window.SavedLeft;
    calc.form.place.top = s.window.SavedTop;
    calc.form.place.left = s.window.SavedLeft;
    const int word = numberIn(records.text(Setting::WordSize), 64);
    s.format.WordSize = word >= 4 && word <= 64 ? word : 64;
}

void LifeCycle::readView(const SettingsRecords& records) {
    EngineState& s = calc.s;
    s.window.TallForm = records.on(Setting::Tall);
    // A word without a digits bit, which this program never writes, gives one digit more than the key takes.
    const int digits = records.chosen(Setting::Digits).value_or(kMaxDisplayDigits + 1);
    s.format.DisplayDigits = digits;
    s.format.SavedDigits = digits;
    s.window.ShowLastxField = records.on(Setting::LastxField);
    s.window.ShowYField = records.on(Setting::YField);
    s.modifiers.NoKeyPaint = records.on(Setting::NoKeyPaint);
    calc.form.mnuSkins.checked = !s.modifiers.NoKeyPaint;
    setAngle(records.on(Setting::Degrees) ? AngleMode::Degrees
             : records.on(Setting::Grads) ? AngleMode::Grads
                                          : AngleMode::Radians);
    const auto mode = static_cast<DisplayMode>(records.chosen(Setting::Mode).value_or(0));
    calc.display.optFix_Click(mode);
    s.format.RememberedMode = mode;
    calc.keypads().ShowKeypad(
        kKeypadBits.at(static_cast<std::size_t>(records.chosen(Setting::ShownKeypad).value_or(0))));
    calc.display.writeDigitsCaption();
    s.window.ViewExtended = records.on(Setting::ViewPlain);
    viewKeys.cmdView_Click();
}

void LifeCycle::setAngle(AngleMode mode) {
    calc.s.format.Angle = mode;
    calc.form.optDeg.checked = mode == AngleMode::Degrees;
    calc.form.optRad.checked = mode == AngleMode::Radians;
    calc.form.optGrad.checked = mode == AngleMode::Grads;
}

void LifeCycle::Form_Activate() {
    EngineState& s = calc.s;
    s.window.FormActive = true;
    setAngle(s.format.Angle);
    if (s.files.AutoLoadProgram) {
        calc.keypads().mnuProgram_Click();
    }
    if (!s.modes.BaseMode) {
        calc.display.optFix_Click(s.format.RememberedMode);
    }
    calc.focusEntry();
}

void LifeCycle::Form_Deactivate() {
    calc.s.format.RememberedMode = calc.s.format.Mode;
}

template <typename Change>
void LifeCycle::changeSettings(Change change) {
    goOn(calc, [&] { settings.change(change); });
}

void LifeCycle::Form_Unload() {
    EngineState& s = calc.s;
    s.CurrentProc = "Form_Unload";
    s.window.SavedTop = calc.form.minimised ? s.window.LastTop : calc.form.place.top;
    s.window.SavedLeft = calc.form.minimised ? s.window.LastLeft : calc.form.place.left;
    changeSettings([&](SettingsRecords& records) {
        const bool kept = calc.form.mnuPosition.checked;
        records.setText(Setting::WindowPlace, kept ? zeroPadded(s.window.SavedTop, kTopDigits) + " " +
                                                         zeroPadded(s.window.SavedLeft, kLeftDigits)
                                                   : std::string(rowOf(Setting::WindowPlace).preset));
    });
    calc.form.open = false;
}

// What is saved of the format are the user's choices, also while the Binary keypad lays them aside.
// Bits that have no meaning here, and the one that a menu tick writes, stay as they are.
void LifeCycle::writeOptions(SettingsRecords& records) const {
    const EngineState& s = calc.s;
    const DisplayMode mode = s.format.DisplaySaved ? s.format.SavedMode : s.format.Mode;
    records.choose(Setting::Mode, static_cast<int>(mode));
    records.choose(Setting::Digits, std::clamp(s.format.SavedDigits, 0, kMaxDisplayDigits));
    records.set(Setting::Degrees, s.format.Angle == AngleMode::Degrees);
    records.set(Setting::Grads, s.format.Angle == AngleMode::Grads);
    records.set(Setting::ViewPlain, !s.window.ViewExtended);
    const auto* const bit = std::find(kKeypadBits.begin(), kKeypadBits.end(), s.modes.ActiveKeypad);
    // A keypad without a bit of its own starts as the Standard keypad.
    const auto place = bit == kKeypadBits.end() ? 0 : static_cast<int>(bit - kKeypadBits.begin());
    records.choose(Setting::ShownKeypad, place);
    records.set(Setting::Tall, s.window.TallForm);
    records.set(Setting::YField, s.window.ShowYField);
    records.set(Setting::LastxField, s.window.ShowLastxField);
    records.setText(Setting::WordSize, zeroPadded(s.format.WordSize, rowOf(Setting::WordSize).width));
}

void LifeCycle::mnuSave_Click() {
    EngineState& s = calc.s;
    s.CurrentProc = "mnuSave";
    calc.ClearOptKeys();
    calc.keypads().RepaintKeypad();
    if (calc.question("SAVE!", "Would you like to save your settings?")) {
        if (!s.modes.BaseMode) {
            s.format.DisplayDigits = s.format.SavedDigits;
        }
        changeSettings([&](SettingsRecords& records) { writeOptions(records); });
        if (saveMore) {
            saveMore();
        }
    }
    calc.focusEntry();
}

void LifeCycle::mnuAOT_Click() {
    calc.s.CurrentProc = "mnuAOT";
    const bool onTop = !calc.form.mnuAOT.checked;
    calc.form.mnuAOT.checked = onTop;
    calc.form.alwaysOnTop = onTop;
    changeSettings([&](SettingsRecords& records) { records.setText(Setting::OnTop, onTop ? "E" : "e"); });
}

void LifeCycle::mnuPosition_Click() {
    calc.s.CurrentProc = "mnuPosition";
    const bool kept = !calc.form.mnuPosition.checked;
    calc.form.mnuPosition.checked = kept;
    changeSettings([&](SettingsRecords& records) {
        records.setText(Setting::KeepsPosition, kept ? "Snail mail: " : "snail mail: ");
    });
}

void LifeCycle::mnuLoad_Click() {
    calc.s.CurrentProc = "mnuLoad";
    const bool loads = !calc.form.mnuLoad.checked;
    calc.form.mnuLoad.checked = loads;
    changeSettings([&](SettingsRecords& records) { records.setText(Setting::LoadsProgram, loads ? "S" : "s"); });
}

void LifeCycle::mnuSkins_Click() {
    EngineState& s = calc.s;
    s.CurrentProc = "mnuSkins";
    s.modifiers.NoKeyPaint = !s.modifiers.NoKeyPaint;
    calc.form.mnuSkins.checked = !s.modifiers.NoKeyPaint;
    changeSettings([&](SettingsRecords& records) { records.set(Setting::NoKeyPaint, s.modifiers.NoKeyPaint); });
}

bool LifeCycle::countNotice(Keypad keypad) {
    const Setting counter = keypad == Keypad::Engineering ? Setting::EngineeringNotices : Setting::MagneticsNotices;
    bool due = false;
    changeSettings([&](SettingsRecords& records) {
        const int count = numberIn(records.text(counter), 0);
        due = count < kNoticeLimit;
        if (due) {
            records.setText(counter, std::to_string(count + 1));
        }
    });
    return due;
}

}  // namespace tallyforge
