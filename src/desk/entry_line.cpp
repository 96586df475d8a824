// SPDX-License-Identifier: GPL-3.0-or-later
#include "desk/entry_line.h"

#include "engine/engine.h"
#include "platform/key_codes.h"

#include <array>
#include <string>
#include <utility>

namespace tallyforge {

namespace {

constexpr int kBackTick = 96;

bool isDigit(int key) {
    return key >= '0' && key <= '9';
}

}  // namespace

void EntryLine::txtXreg_KeyDown(KeyEvent event) {
    EngineState& s = calc.s;
    if (s.ModifierLatched) {
        if (event.keyCode == kKeyEscape) {
            cmdEsc_Click();
        }
        return;
    }
    takeModifiers(event.shift);
    if (!s.QuizMode) {
        if (s.Xreg.textView() == kNoMeaning || commands.shortCut(event)) {
            return;
        }
        if (event.keyCode == kKeyF10) {
            calc.keypads().PerformConvertFn();
            return;
        }
        navigate(event.keyCode);
    }
    if (!calc.entryText().empty()) {
        editLine(event.keyCode);
    }
}

void EntryLine::takeModifiers(std::uint8_t shift) {
    EngineState& s = calc.s;
    s.CtrlHeld = false;
    s.ShiftCtrlHeld = false;
    calc.LightModifiers(shift);
    s.ModifierMask = shift;
    const bool paints = !s.NoKeyPaint && !s.MemoryArrayMode && !s.ProgramMode;
    if (paints && (shift != 0 || painted_)) {
        calc.keypads().PaintModifiers(shift);
        painted_ = shift != 0;
    }
    s.CtrlHeld = shift == kCtrl;
    s.ShiftCtrlHeld = shift == (kShift | kCtrl);
}

void EntryLine::navigate(int keyCode) {
    KeypadPort& keypads = calc.keypads();
    switch (keyCode) {
        case kKeyF9:
            return keypads.ShowKeypad(Keypad::Tables);
        case kKeyF11:
            return keypads.ToggleProgramMode();
        case kKeyF12:
            return keypads.MemoryArray();
        case kKeyDelete:
            return calc.form.cmdDown.enabled ? stackKeys.cmdDown_Click() : void();
        case kKeyEnd:
            return calc.form.cmdXchgY.enabled ? stackKeys.cmdXchgY_Click() : void();
        case kKeyInsert:
            return calc.form.cmdLastx.enabled ? stackKeys.cmdLastx_Click() : void();
        default:
            break;
    }
    if (calc.s.ProgramMode) {
        return;
    }
    switch (keyCode) {
        case kKeyLeft:
            return keypads.KeypadHistoryBack();
        case kKeyRight:
            return keypads.KeypadHistoryForward();
        case kKeyUp:
            return keypads.PrevKeypad();
        case kKeyDown:
            return keypads.NextKeypad();
        default:
            break;
    }
}

void EntryLine::editLine(int keyCode) {
    if (keyCode == kKeyEscape) {
        clearEntryFlags();
        calc.setEntry({});
    } else if (keyCode == kKeyBackspace) {
        calc.commit.BeginEntry();
        dropLastCharacter();
    }
}

void EntryLine::dropLastCharacter() {
    EngineState& s = calc.s;
    std::string text = calc.entryText();
    if (text.empty()) {
        return;
    }
    switch (text.back()) {
        case 'e':
        case 'E':
            s.EexActive = false;
            break;
        case 'b':
        case 'd':
        case 'h':
        case 'o':
            s.BaseTagDue = true;
            s.BaseNumberDone = false;
            break;
        default:
            break;
    }
    text.pop_back();
    calc.setEntry(text);
    if (text.empty()) {
        clearEntryFlags();
    }
}

void EntryLine::clearEntryFlags() {
    EngineState& s = calc.s;
    s.EntryTouched = false;
    s.DigitTyped = false;
    s.EexActive = false;
    s.BaseTagDue = false;
    s.BaseNumberDone = false;
    s.EntryOpen = false;
}

void EntryLine::txtXreg_KeyPress(int& keyAscii) {
    EngineState& s = calc.s;
    const int key = std::exchange(keyAscii, 0);
    if (s.ModifierLatched) {
        return;
    }
    if (s.ProgramMode && key >= 'A') {
        programLetter(key);
        return;
    }
    if (s.BaseNumberDone && !passesDoneNumber(key)) {
        s.CtrlHeld = false;
        s.ShiftCtrlHeld = false;
        return;
    }
    const int wanted = !s.EntryOpen && key == 'h' ? 'H' : key;
    calc.commit.BeginEntry();
    if (std::exchange(s.CtrlHeld, false)) {
        if (!s.ShiftCtrlHeld && !s.QuizMode) {
            commands.controlCharacter(wanted);
        }
    } else {
        keyAscii = accept(wanted);
    }
    if (keyAscii != 0) {
        s.EntryTouched = true;
        s.DigitTyped = s.DigitTyped || isDigit(keyAscii);
    } else if (calc.entryText().empty()) {
        // Nothing is being typed, so nothing is open: Enter then duplicates X.
        clearEntryFlags();
    }
}

bool EntryLine::lineIsFull() const {
    return calc.entryText().size() >= calc.form.txtXreg.maxLength;
}

bool EntryLine::passesDoneNumber(int key) const {
    return std::string_view{"*+-/<>ADMadm"}.find(static_cast<char>(key)) != std::string_view::npos && key > 0;
}

void EntryLine::programLetter(int key) {
    if (key == kBackTick) {
        if (const int typed = eex(); typed != 0) {
            calc.commit.BeginEntry();
            calc.setEntry(calc.entryText() + static_cast<char>(typed));
        }
    } else if (key == '\\') {
        stackKeys.cmdChs_Click();
    } else if (key >= 'a' && key <= 'z') {
        calc.keypads().ProgramLetter(key - 'a' + 1);
    } else if (key >= 'A' && key <= 'Z') {
        calc.keypads().ProgramLetter(key - 'A' + 1);
    }
}

// The character that goes into the line for `key`: itself, another one, or 0.
int EntryLine::accept(int key) {
    if (calc.s.QuizMode) {
        return isDigit(key) ? key : 0;
    }
    if (key == calc.s.DecimalChar) {
        return calc.entryText().find(calc.s.DecimalChar) == std::string::npos ? key : 0;
    }
    if (isDigit(key)) {
        return key;
    }
    if (key >= 'A' && key <= 'F') {
        return acceptLetter(key);
    }
    if (commands.arithmetic(key) || commands.functionCharacter(key)) {
        return 0;
    }
    return key == 'e' || key == kBackTick ? (key == 'e' && calc.s.BaseTagDue ? 0 : eex()) : acceptBaseKey(key);
}

int EntryLine::acceptLetter(int key) {
    if (calc.s.BaseTagDue) {
        return key;
    }
    if (key == 'E') {
        return eex();
    }
    commands.arithmetic(key);
    return 0;
}

int EntryLine::acceptBaseKey(int key) {
    EngineState& s = calc.s;
    if (key == '#') {
        if (!s.BaseMode || s.BaseTagDue || !calc.entryText().empty()) {
            return 0;
        }
        s.BaseTagDue = true;
        return key;
    }
    const bool letter = key == 'b' || key == 'd' || key == 'h' || key == 'o';
    if (letter && !lineIsFull() && std::exchange(s.BaseTagDue, false)) {
        s.BaseLetter = static_cast<char>(key);
        if (calc.keypads().CheckBaseDigits()) {
            s.BaseNumberDone = true;
            return key;
        }
        calc.setEntry({});
    }
    return 0;
}

void EntryLine::typeBaseCharacter(char character) {
    EngineState& s = calc.s;
    if (s.BaseNumberDone) {
        return;
    }
    calc.commit.BeginEntry();
    const bool digit = character >= 'A' && character <= 'F';
    const int accepted = digit ? (s.BaseTagDue ? character : 0) : acceptBaseKey(character);
    if (accepted != 0 && !lineIsFull()) {
        calc.setEntry(calc.entryText() + static_cast<char>(accepted));
        s.EntryTouched = true;
    } else if (calc.entryText().empty()) {
        clearEntryFlags();
    }
}

int EntryLine::eex() {
    if (lineIsFull() || std::exchange(calc.s.EexActive, true)) {
        return 0;
    }
    if (calc.entryText().empty()) {
        calc.commit.BeginEntry();
        calc.setEntry("1e");
        calc.s.EntryTouched = true;
        return 0;
    }
    return 'e';
}

void EntryLine::txtXreg_KeyUp(KeyEvent event) {
    EngineState& s = calc.s;
    if (s.ModifierLatched) {
        return;
    }
    s.ModifierMask = 0;
    if (s.QuizMode) {
        return;
    }
    if (event.shift != 0 && std::exchange(s.SkipModifierRelease, false)) {
        // The key that came up has shown a keypad: plain, until the next key goes down.
        s.ModifierMask = event.shift;
        calc.LightModifiers(event.shift);
        return;
    }
    if (event.shift != 0) {
        // A modifier that is still held goes on holding, as a keyboard's repeat would have it.
        takeModifiers(event.shift);
        return;
    }
    calc.LightModifiers(0);
    if (s.MemoryArrayMode || s.ProgramMode || s.ConvertWait || s.TablesShown) {
        return;
    }
    if (!std::exchange(s.SkipModifierRelease, false) && std::exchange(painted_, false)) {
        calc.keypads().RepaintKeypad();
    }
}

void EntryLine::cmdNumPad_Click(int index) {
    EngineState& s = calc.s;
    constexpr int kDecimalKey = 10;
    calc.commit.BeginEntry();
    const char character = index == kDecimalKey ? s.DecimalChar : static_cast<char>('0' + index);
    const bool secondPoint = index == kDecimalKey && calc.entryText().find(s.DecimalChar) != std::string::npos;
    if (!secondPoint && !s.BaseNumberDone && !lineIsFull()) {
        calc.setEntry(calc.entryText() + character);
        s.EntryTouched = true;
        s.DigitTyped = true;
    }
    calc.focusEntry();
}

void EntryLine::cmdBackSpace_Click() {
    if (!calc.entryText().empty()) {
        calc.commit.BeginEntry();
        dropLastCharacter();
    }
    calc.focusEntry();
}

void EntryLine::cmdEex_Click() {
    if (calc.s.ModifierMask == 0 && !calc.s.EexActive && !calc.s.BaseNumberDone) {
        calc.commit.BeginEntry();
        if (const int typed = eex(); typed != 0) {
            calc.setEntry(calc.entryText() + static_cast<char>(typed));
        }
    }
    calc.focusEntry();
}

void EntryLine::cmdEsc_Click() {
    calc.ClearOptKeys();
    calc.setEntry({});
    clearEntryFlags();
    calc.focusEntry();
}

void EntryLine::cmdF11_Click() {
    if (calc.s.ModifierMask == 0) {
        calc.keypads().RepaintKeypad();
        calc.keypads().ToggleProgramMode();
    }
    calc.focusEntry();
}

void EntryLine::cmdF12_Click() {
    // Shift held for the click performs the Convert function; a latched one waits for its key.
    if (calc.s.ModifierMask == kShift && !calc.s.ModifierLatched) {
        calc.s.ModifierMask = 0;
        calc.keypads().PerformConvertFn();
    } else if (calc.s.ModifierMask == 0) {
        calc.keypads().RepaintKeypad();
        calc.keypads().MemoryArray();
    }
    calc.focusEntry();
}

}  // namespace tallyforge
