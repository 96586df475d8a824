// SPDX-License-Identifier: GPL-3.0-or-later
#include "desk/entry_line.h"

#include "engine/engine.h"
#include "engine/key_names.h"
#include "platform/key_codes.h"

#include <algorithm>
#include <array>
#include <string>
#include <utility>

namespace tallyforge {

namespace {

constexpr int kBackTick = 96;

/// What accept() answers for a character that means nothing in the line as it stands.
constexpr int kRefused = -1;

bool isDigit(int key) {
    return key >= '0' && key <= '9';
}

}  // namespace

void EntryLine::txtXreg_KeyDown(KeyEvent event) {
    EngineState& s = calc.s;
    s.entry.Dropped = '\0';
    if (s.modifiers.ModifierLatched) {
        if (event.keyCode == kKeyEscape) {
            cmdEsc_Click();
        }
        return;
    }
    takeModifiers(event.shift);
    if (!s.modes.QuizMode) {
        if (s.stack.Xreg.textView() == kNoMeaning || commands.shortCut(event)) {
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
    s.modifiers.CtrlHeld = false;
    s.modifiers.ShiftCtrlHeld = false;
    calc.LightModifiers(shift);
    s.modifiers.ModifierMask = shift;
    const bool paints = !s.modifiers.NoKeyPaint && !s.modes.MemoryArrayMode && !s.modes.ProgramMode;
    if (paints && (shift != 0 || painted_)) {
        calc.keypads().PaintModifiers(shift);
        painted_ = shift != 0;
    }
    s.modifiers.CtrlHeld = shift == kCtrl;
    s.modifiers.ShiftCtrlHeld = shift == (kShift | kCtrl);
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
    if (calc.s.modes.ProgramMode) {
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
            s.entry.EexActive = false;
            break;
        case 'b':
        case 'd':
        case 'h':
        case 'o':
            s.entry.BaseTagDue = true;
            s.entry.BaseNumberDone = false;
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
    s.entry.EntryTouched = false;
    s.entry.DigitTyped = false;
    s.entry.EexActive = false;
    s.entry.BaseTagDue = false;
    s.entry.BaseNumberDone = false;
    s.entry.EntryOpen = false;
}

void EntryLine::txtXreg_KeyPress(int& keyAscii) {
    EngineState& s = calc.s;
    const int key = std::exchange(keyAscii, 0);
    if (s.modifiers.ModifierLatched) {
        return;
    }
    if (s.modes.ProgramMode && key >= 'A') {
        programLetter(key);
        return;
    }
    if (s.entry.BaseNumberDone && !passesDoneNumber(key)) {
        s.modifiers.CtrlHeld = false;
        s.modifiers.ShiftCtrlHeld = false;
        refuse(key);
        return;
    }
    const int wanted = !s.entry.EntryOpen && key == 'h' ? 'H' : key;
    calc.commit.BeginEntry();
    if (std::exchange(s.modifiers.CtrlHeld, false)) {
        if (!s.modifiers.ShiftCtrlHeld && !s.modes.QuizMode) {
            commands.controlCharacter(wanted);
        }
    } else {
        keyAscii = accept(wanted);
    }
    if (keyAscii == kRefused || (keyAscii != 0 && lineIsFull())) {
        refuse(key);
        keyAscii = std::max(keyAscii, 0);
    }
    if (keyAscii != 0) {
        s.entry.EntryTouched = true;
        s.entry.DigitTyped = s.entry.DigitTyped || isDigit(keyAscii);
    } else if (calc.entryText().empty()) {
        // Nothing is being typed, so nothing is open: Enter then duplicates X.
        clearEntryFlags();
    }
}

// A character that the user may have meant is told, not only dropped.
void EntryLine::refuse(int key) {
    if (key > ' ' && !calc.s.modes.QuizMode) {
        calc.s.entry.Dropped = static_cast<char>(key);
        ++calc.form.txtXreg.refusals;
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

// The character that goes into the line for `key`: itself, another one, 0 where the key did something
// else, or kRefused.
int EntryLine::accept(int key) {
    if (calc.s.modes.QuizMode) {
        return isDigit(key) ? key : 0;
    }
    if (key == calc.s.format.DecimalChar) {
        return calc.entryText().find(calc.s.format.DecimalChar) == std::string::npos ? key : kRefused;
    }
    if (isDigit(key)) {
        return key;
    }
    if (key >= 'A' && key <= 'F') {
        return acceptLetter(key);
    }
    if (calc.s.entry.BaseTagDue) {
        // Small letters are digits, too; b, d, h and o name the base.
        if (key == 'a' || key == 'c' || key == 'e' || key == 'f') {
            return key - 'a' + 'A';
        }
        if (key == 'd') {
            return acceptBaseKey(key);
        }
    }
    if (commands.arithmetic(key) || commands.functionCharacter(key)) {
        return 0;
    }
    return orRefused([&] { return key == 'e' || key == kBackTick ? eex() : acceptBaseKey(key); });
}

// What `typed` answers; kRefused where it types nothing and leaves the line as it was.
template <typename Typed>
int EntryLine::orRefused(Typed typed) {
    const std::string before = calc.entryText();
    const int key = typed();
    return key == 0 && calc.entryText() == before ? kRefused : key;
}

int EntryLine::acceptLetter(int key) {
    if (calc.s.entry.BaseTagDue) {
        return key;
    }
    if (key == 'E') {
        return orRefused([&] { return eex(); });
    }
    return commands.arithmetic(key) ? 0 : kRefused;
}

int EntryLine::acceptBaseKey(int key) {
    EngineState& s = calc.s;
    if (key == '#') {
        if (!s.modes.BaseMode || s.entry.BaseTagDue || !calc.entryText().empty()) {
            return 0;
        }
        s.entry.BaseTagDue = true;
        return key;
    }
    const bool letter = key == 'b' || key == 'd' || key == 'h' || key == 'o';
    if (letter && !lineIsFull() && std::exchange(s.entry.BaseTagDue, false)) {
        s.entry.BaseLetter = static_cast<char>(key);
        if (calc.keypads().CheckBaseDigits()) {
            s.entry.BaseNumberDone = true;
            return key;
        }
        calc.setEntry({});
    }
    return 0;
}

void EntryLine::typeBaseCharacter(char character) {
    EngineState& s = calc.s;
    if (s.entry.BaseNumberDone) {
        return;
    }
    calc.commit.BeginEntry();
    const bool digit = character >= 'A' && character <= 'F';
    const int accepted = digit ? (s.entry.BaseTagDue ? character : 0) : acceptBaseKey(character);
    if (accepted != 0 && !lineIsFull()) {
        calc.setEntry(calc.entryText() + static_cast<char>(accepted));
        s.entry.EntryTouched = true;
    } else if (calc.entryText().empty()) {
        clearEntryFlags();
    }
}

int EntryLine::eex() {
    if (lineIsFull() || std::exchange(calc.s.entry.EexActive, true)) {
        return 0;
    }
    if (calc.entryText().empty()) {
        calc.commit.BeginEntry();
        calc.setEntry("1e");
        calc.s.entry.EntryTouched = true;
        return 0;
    }
    return 'e';
}

void EntryLine::txtXreg_KeyUp(KeyEvent event) {
    EngineState& s = calc.s;
    if (s.modifiers.ModifierLatched) {
        return;
    }
    s.modifiers.ModifierMask = 0;
    if (s.modes.QuizMode) {
        return;
    }
    if (event.shift != 0 && std::exchange(s.modifiers.SkipModifierRelease, false)) {
        // The key that came up has shown a keypad: plain, until the next key goes down.
        s.modifiers.ModifierMask = event.shift;
        calc.LightModifiers(event.shift);
        return;
    }
    if (event.shift != 0) {
        // A modifier that is still held goes on holding, as a keyboard's repeat would have it.
        takeModifiers(event.shift);
        return;
    }
    calc.LightModifiers(0);
    if (s.modes.MemoryArrayMode || s.modes.ProgramMode || s.modes.TablesShown) {
        return;
    }
    if (!std::exchange(s.modifiers.SkipModifierRelease, false) && std::exchange(painted_, false)) {
        calc.keypads().RepaintKeypad();
    }
}

}  // namespace tallyforge
