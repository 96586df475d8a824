// SPDX-License-Identifier: GPL-3.0-or-later
#include "desk/entry_commands.h"

#include "engine/engine.h"
#include "engine/key_names.h"
#include "platform/borrowed.h"
#include "platform/key_codes.h"
#include "platform/text.h"

#include <string>
#include <utility>

namespace tallyforge {

namespace {

// Control characters that Ctrl with a letter types.
constexpr int kCtrlC = 3;
constexpr int kCtrlF = 6;
constexpr int kCtrlP = 16;
constexpr int kCtrlV = 22;
constexpr int kCtrlX = 24;

/// Arithmetic key of a character, or -1.
int arithmeticKey(int key) {
    switch (key) {
        case '/':
        case 'd':
        case 'D':
            return 0;
        case '*':
        case 'm':
        case 'M':
            return 1;
        case '-':
            return 2;
        case '+':
        case 'a':
        case 'A':
            return 3;
        default:
            return -1;
    }
}

}  // namespace

template <typename Action>
void EntryCommands::withoutBase(Action action) {
    ModeState& modes = calc.s.modes;
    const Borrowed base{modes.BaseMode, false};
    const Borrowed suspended{modes.BaseSuspended, base.before()};
    action();
}

// Digit keys that mean a function with Ctrl. Returns whether nothing more is to be done.
bool EntryCommands::shortCut(KeyEvent event) {
    const bool ctrl = event.shift == kCtrl;
    const bool shiftCtrl = event.shift == (kShift | kCtrl);
    if (ctrl && (event.keyCode == kKeyDigit6 || event.keyCode == kKeyPad6)) {
        calc.closeEmptyEntry();
        pressOn(Keypad::Standard, key::Power, kCtrl);
    } else if ((ctrl || shiftCtrl) && (event.keyCode == kKeyDigit5 || event.keyCode == kKeyPad5)) {
        if (!calc.s.modes.BaseMode) {
            calc.closeEmptyEntry();
            pressOn(Keypad::Percent, key::Percent, ctrl ? kCtrl : kShift);
        }
        return true;
    }
    return false;
}

void EntryCommands::controlCharacter(int key) {
    switch (key) {
        case kCtrlC:
            calc.closeEmptyEntry();
            calc.keypads().mnuCopy_Click();
            break;
        case kCtrlF:
            calc.closeEmptyEntry();
            calc.keypads().FindUnit();
            break;
        case kCtrlV:
            calc.keypads().mnuPaste_Click();
            break;
        case kCtrlP:
            calc.closeEmptyEntry();
            withoutBase([this] { pressOn(Keypad::Standard, key::Pi, kCtrl); });
            break;
        case kCtrlX:
            if (!calc.s.modes.BaseMode) {
                calc.closeEmptyEntry();
                pressFunction(key::SquareRoot);
            }
            break;
        default:
            break;
    }
}

bool EntryCommands::arithmetic(int key) {
    const int index = arithmeticKey(key);
    if (index < 0) {
        return false;
    }
    calc.closeEmptyEntry();
    if (!calc.s.modes.QuizMode) {
        calc.keypads().cmdMath_Click(index);
    }
    return true;
}

bool EntryCommands::functionCharacter(int key) {
    EngineState& s = calc.s;
    const auto withoutBaseMode = [&](Keypad keypad, int function, std::uint8_t mask) {
        if (!s.modes.BaseMode) {
            calc.closeEmptyEntry();
            pressOn(keypad, function, mask);
        }
        return !s.modes.BaseMode;
    };
    switch (key) {
        case kCtrlX:
        case 'x':
            calc.closeEmptyEntry();
            pressFunction(std::exchange(s.modifiers.ShiftCtrlHeld, false) ? key::Square : key::Reciprocal);
            return true;
        case 'X':
            calc.closeEmptyEntry();
            pressFunction(key::Square);
            return true;
        case kCtrlP:
        case 'P':
        case 'p':
            calc.closeEmptyEntry();
            withoutBase([&] {
                pressOn(Keypad::Standard, key::Pi,
                        s.modifiers.ShiftCtrlHeld ? std::uint8_t{kCtrl | kAlt} : s.modifiers.ModifierMask);
            });
            return true;
        case '\\':
            calc.closeEmptyEntry();
            stackKeys.cmdChs_Click();
            return true;
        case '^':
            return withoutBaseMode(Keypad::Standard, key::Power, 0);
        case '!':
            return withoutBaseMode(Keypad::Standard, key::Factorial, 0);
        case '%':
            return withoutBaseMode(Keypad::Percent, key::Percent, s.modifiers.ModifierMask);
        case '<':
        case '>':
            doubleOrHalve(key);
            return true;
        case 'H':
            toBase();
            return s.modes.BaseMode;
        case kKeyEscape:
            s.entry.EntryOpen = false;
            return true;
        default:
            return false;
    }
}

void EntryCommands::toBase() {
    EngineState& s = calc.s;
    if (!s.modes.BaseMode) {
        return;
    }
    calc.closeEmptyEntry();
    if (!calc.commit.FetchX()) {
        return;
    }
    if (!s.stack.Xreg.isTagged()) {
        s.modifiers.ModifierMask = kShift;
    }
    pressFunction(key::ToBase);
}

void EntryCommands::doubleOrHalve(int key) {
    EngineState& s = calc.s;
    calc.closeEmptyEntry();
    if (!calc.commit.FetchX()) {
        return;
    }
    const bool doubles = key == '<';
    if (s.stack.Xreg.isTagged()) {
        // The shift is a key of the Binary keypad, lent to the keypad on show.
        const Borrowed base{s.modes.BaseMode, true};
        pressOn(Keypad::Binary, doubles ? key::ShiftLeft : key::ShiftRight, s.modifiers.ModifierMask);
        return;
    }
    s.CurrentProc = "txtXreg";
    constexpr double kLargestToDouble = 1.7976931348623157e308 / 2.0;
    double value = 0.0;
    const bool read = goOn(calc, [&] {
        value = calc.xNumber();
        if (doubles && (value > kLargestToDouble || value < -kLargestToDouble)) {
            throw Failure{FailureNumber::Overflow};
        }
    });
    if (!read) {
        return;
    }
    s.stack.LastX = s.stack.Xreg;
    calc.commit.deliver({.value = doubles ? value * 2.0 : value / 2.0, .label = doubles ? "X"_t : "ö"_t});
}

void EntryCommands::pressFunction(int function) {
    calc.keypads().cmdFunctions_Click(function);
}

void EntryCommands::pressOn(Keypad keypad, int function, std::uint8_t mask) {
    EngineState& s = calc.s;
    const Keypad shown = s.modes.ActiveKeypad;
    {
        const Borrowed lent{s.modes.ActiveKeypad, keypad};
        s.modifiers.ModifierMask = mask;
        pressFunction(function);
    }
    if (shown != keypad && !s.modes.MemoryArrayMode && !s.modes.ProgramMode) {
        calc.keypads().RepaintKeypad();
    }
}

}  // namespace tallyforge
