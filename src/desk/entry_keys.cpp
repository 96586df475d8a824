// SPDX-License-Identifier: GPL-3.0-or-later
//
// The keys on screen that do what the keyboard does in the entry line.
#include "desk/entry_line.h"
#include "engine/engine.h"
#include "engine/key_names.h"

namespace tallyforge {

void EntryLine::cmdNumPad_Click(int index) {
    EngineState& s = calc.s;
    calc.commit.BeginEntry();
    const char character = index == key::kPadDecimal ? s.format.DecimalChar : static_cast<char>('0' + index);
    const bool secondPoint =
        index == key::kPadDecimal && calc.entryText().find(s.format.DecimalChar) != std::string::npos;
    const bool fits = !secondPoint && !s.entry.BaseNumberDone && !lineIsFull();
    if (fits) {
        calc.setEntry(calc.entryText() + character);
        s.entry.EntryTouched = true;
        s.entry.DigitTyped = true;
    }
    calc.focusEntry();
    if (!fits) {
        refuse(static_cast<unsigned char>(character));
    }
}

void EntryLine::cmdBackSpace_Click() {
    if (!calc.entryText().empty()) {
        calc.commit.BeginEntry();
        dropLastCharacter();
    }
    calc.focusEntry();
}

void EntryLine::cmdEex_Click() {
    if (calc.s.modifiers.ModifierMask == 0 && !calc.s.entry.EexActive && !calc.s.entry.BaseNumberDone) {
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
    if (calc.s.modifiers.ModifierMask == 0) {
        calc.keypads().RepaintKeypad();
        calc.keypads().ToggleProgramMode();
    }
    calc.focusEntry();
}

void EntryLine::cmdF12_Click() {
    // Shift held for the click performs the Convert function; a latched one waits for its key.
    if (calc.s.modifiers.ModifierMask == kShift && !calc.s.modifiers.ModifierLatched) {
        calc.s.modifiers.ModifierMask = 0;
        calc.keypads().PerformConvertFn();
    } else if (calc.s.modifiers.ModifierMask == 0) {
        calc.keypads().RepaintKeypad();
        calc.keypads().MemoryArray();
    }
    calc.focusEntry();
}

}  // namespace tallyforge
