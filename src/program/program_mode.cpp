// SPDX-License-Identifier: GPL-3.0-or-later
#include "program/program_mode.h"

#include "engine/engine.h"
#include "platform/file_name.h"
#include "program/program_folders.h"
#include "program/program_text.h"

#include <algorithm>
#include <array>

namespace tallyforge {

namespace {

constexpr std::string_view kKeyLetters = "WVULHGQMPONEDCBATSRXKJIF";
static_assert(kKeyLetters.size() == kBankKeys);

/// The captions that no program changes.
struct FixedCaption {
    int key;
    std::string_view caption;
};
constexpr std::array<FixedCaption, 4> kFixedCaptions{{
    {kProgramExplorerKey, "Pex"},
    {kTraceExplorerKey, "Tex"},
    {kTraceKey, "trac"},
    {kInitKey, "init"},
}};
constexpr float kCaptionPoints = 7.1F;

bool isFixed(int index) {
    return std::any_of(kFixedCaptions.begin(), kFixedCaptions.end(),
                       [index](const FixedCaption& fixed) { return fixed.key == index; });
}

}  // namespace

std::string_view programKeyLetter(int index) {
    return kKeyLetters.substr(static_cast<std::size_t>(index), 1);
}

int keyOfProgramLetter(int letter) {
    const auto at = kKeyLetters.find(static_cast<char>('A' + letter - 1));
    return letter < 1 || at == kKeyLetters.npos ? -1 : static_cast<int>(at);
}

void ProgramMode::ToggleProgramMode() {
    EngineState& s = calc.s;
    if (s.modes.MemoryArrayMode || (!s.modes.ProgramMode && !calc.form.cmdF11.enabled)) {
        return;
    }
    s.modifiers.ModifierLatched = false;
    calc.form.enableKeypadMenu(s.modes.ProgramMode);
    if (s.modes.ProgramMode) {
        leave();
    } else {
        enter();
    }
}

void ProgramMode::leave() {
    EngineState& s = calc.s;
    s.modes.ProgramMode = false;
    calc.form.cmdF12.enabled = true;
    if (s.modes.ActiveKeypad == Keypad::Program) {
        s.modes.ActiveKeypad = keypadBefore_;
    }
    for (Control& bankKey : calc.form.cmdFunctions) {
        bankKey.font.bold = false;
    }
    calc.form.lblName.text = nameBefore_;
    calc.form.lblBank.visible = true;
    parts.keypads.ShowKeypad(s.modes.ActiveKeypad);
    calc.form.cmdF11.tip = "Enter Program Mode";
}

void ProgramMode::enter() {
    EngineState& s = calc.s;
    keypadBefore_ = s.modes.ActiveKeypad;
    nameBefore_ = calc.form.lblName.text;
    if (s.modes.BaseMode) {
        // Programs count with plain numbers; the numbers of a base come back with their keypad.
        parts.keypads.model.lay(Keypad::Standard);
    }
    parts.keypads.RepaintKeypad();
    calc.form.cmdF12.enabled = false;
    calc.form.lblName.text = state.ProgramFile.empty() ? "Program Mode" : state.ProgramFile;
    calc.form.lblBank.visible = false;
    s.modes.ProgramMode = true;
    s.modes.ActiveKeypad = Keypad::Program;
    calc.form.cmdF11.tip = "Leave Program Mode";
    calc.form.cmdF12.tip = "Enter Memory Array";
    paintKeys();
    RefreshProgramKeyTips();
}

void ProgramMode::paintKeys() {
    for (int i = 0; i < kBankKeys; ++i) {
        const std::string& name = state.ProgramKeyNames.at(static_cast<std::size_t>(i));
        Control& control = key(i);
        control.text = name.empty() ? std::string(programKeyLetter(i)) : name;
        control.font = {.face = Face::SmallFonts,
                        .points = kCaptionPoints,
                        .bold = state.ProgramKeyBold.at(static_cast<std::size_t>(i))};
        control.colour = KeyColour::Plain;
        control.visible = true;
    }
    for (const FixedCaption& fixed : kFixedCaptions) {
        key(fixed.key).text = fixed.caption;
    }
}

void ProgramMode::RefreshProgramKeyTips() {
    if (!calc.s.modes.ProgramMode) {
        return;
    }
    for (int i = 0; i < kBankKeys; ++i) {
        const std::string& name = state.ProgramKeyNames.at(static_cast<std::size_t>(i));
        key(i).tip = name.empty() ? "Not renamed" : "Program Button \"" + name + "\"";
    }
    key(kTraceExplorerKey).tip = "Program Button \"V\" - Traces explore ";
    key(kProgramExplorerKey).tip = "Program Button \"U\" - Program explore ";
    key(kInitKey).tip = "Program Button \"X\" - initialize ";
    key(kTraceKey).tip = " Toggle trace (W) | Shift+: list variables | Ctrl+: rename file ";
    if (state.TraceOn) {
        key(kTraceKey).colour = KeyColour::Yellow;
    }
}

void ProgramMode::setBold(int index, bool bold) {
    state.ProgramKeyBold.at(static_cast<std::size_t>(index)) = bold;
    if (calc.s.modes.ProgramMode) {
        key(index).font.bold = bold;
    }
}

void ProgramMode::ClearKeyBold(int first, int last) {
    for (int i = first; i <= last; ++i) {
        setBold(i, false);
    }
}

int ProgramMode::keyWithCaption(std::string_view caption) const {
    for (int i = 0; i < kBankKeys && calc.s.modes.ProgramMode; ++i) {
        if (key(i).text == caption) {
            return i;
        }
    }
    return -1;
}

void ProgramMode::rename(std::string_view letter, const std::string& caption) {
    const int index = keyWithCaption(letter);
    if (index >= 0 && !isFixed(index)) {
        key(index).text = caption;
        state.ProgramKeyNames.at(static_cast<std::size_t>(index)) = caption;
    }
}

std::string ProgramMode::label(int index) const {
    return index == kInitKey ? "init" : smallLetters(key(index).text);
}

bool ProgramMode::specialKey(std::string_view label) {
    if (label == "pex") {
        openFolder(state.ProgramFile.empty() ? userPrograms(calc) : state.ProgramFolder);
    } else if (label == "tex") {
        openFolder(tracesFolder(calc));
    } else if (label == "trac") {
        traceKey();
    } else {
        return false;
    }
    calc.s.modifiers.ModifierMask = 0;
    calc.ClearOptKeys();
    return true;
}

void ProgramMode::openFolder(const std::filesystem::path& folder) {
    if (calc.s.modifiers.ModifierMask == 0) {
        std::error_code ignored;
        std::filesystem::create_directories(folder, ignored);
        calc.platform.openFolder(folder);
    }
}

void ProgramMode::toggleTrace(KeyColour colour) {
    state.TraceOn = !state.TraceOn;
    if (calc.s.modes.ProgramMode) {
        key(kTraceKey).colour = state.TraceOn ? colour : KeyColour::Plain;
    }
}

void ProgramMode::traceKey() {
    switch (calc.s.modifiers.ModifierMask) {
        case 0:
            return toggleTrace(KeyColour::Yellow);
        case kShift:
            return listVariables();
        case kCtrl:
            return askForTraceName();
        default:
            return;
    }
}

void ProgramMode::listVariables() {
    calc.s.modifiers.ModifierMask = 0;
    for (int i = 0; i <= state.variables.ProgramVarCount; ++i) {
        listVariable(i);
    }
}

void ProgramMode::listVariable(int index) {
    const Variables& variables = state.variables;
    const auto at = static_cast<std::size_t>(index);
    if (at < variables.ProgramVarValues.size() && variables.ProgramVarValues[at] != 0.0) {
        calc.s.stack.Xreg = variables.ProgramVarValues[at];
        calc.s.delivery.FnLabel = " " + variables.ProgramVarNames[at] + "- ";
        calc.commit.cmdEnter_Click();
    }
}

void ProgramMode::askForTraceName() {
    if (!calc.question("Rename traced.txt", "Do you want a new name for the trace file?")) {
        return;
    }
    const std::string answer =
        calc.platform.inputBox({.title = "New Trace File", .prompt = "Enter name.ext", .preset = kDefaultTrace});
    // A trace lies in its own folder, whatever was entered.
    const std::string name = bareName(answer);
    state.TraceFileName = name.empty() ? kDefaultTrace : name;
    state.TraceRenamed = true;
}

}  // namespace tallyforge
