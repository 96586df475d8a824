// SPDX-License-Identifier: GPL-3.0-or-later
#include "program/key_words.h"

#include "desk/memory_registers.h"
#include "desk/reset_key.h"
#include "engine/engine.h"
#include "numbers/number_format.h"
#include "platform/borrowed.h"
#include "platform/form_input.h"

#include <utility>

namespace tallyforge {

void KeyWords::DoProgramWord(const FunctionWord& word, int registerNumber) {
    if (word.direct == DirectKey::None) {
        if (word.mask != kMaskAsItStands) {
            calc.s.modifiers.ModifierMask = static_cast<std::uint8_t>(word.mask);
        }
        PressProgramKey(word.keypad, word.key);
        return;
    }
    pressDirect(word.direct, registerNumber);
    if (std::exchange(state.resetLatch, false)) {
        mode.ToggleProgramMode();
    }
}

void KeyWords::PressProgramKey(Keypad keypad, int index) {
    EngineState& s = calc.s;
    const Borrowed programMode{s.modes.ProgramMode, false};
    const Borrowed quiz{s.modes.QuizMode, true};
    const Borrowed active{s.modes.ActiveKeypad, keypad};
    parts.keypads.cmdFunctions_Click(index);
}

void KeyWords::pressDirect(DirectKey key, int registerNumber) {
    switch (key) {
        case DirectKey::ProgramMode:
            return calc.s.modes.ProgramMode ? mode.ToggleProgramMode() : void();
        case DirectKey::Reset:
            return pressReset(registerNumber == 1 ? kShift : kNoModifier, registerNumber != 1);
        case DirectKey::ClearRegisters:
            return pressReset(kCtrl, false);
        case DirectKey::ResetAll:
            return pressReset(kAlt, true);
        case DirectKey::Drop:
            return parts.stackKeys.cmdDown_Click();
        case DirectKey::Exchange:
            return parts.stackKeys.cmdXchgY_Click();
        case DirectKey::ChangeSign:
            return parts.stackKeys.cmdChs_Click();
        case DirectKey::Store:
            return pressRegister(kShift, registerNumber);
        case DirectKey::Recall:
            return pressRegister(kNoModifier, registerNumber);
        case DirectKey::Enter:
            return calc.commit.cmdEnter_Click();
        case DirectKey::LastX:
            return parts.stackKeys.cmdLastx_Click();
        case DirectKey::Degrees:
            return static_cast<void>(click(calc.form, calc.form.optDeg));
        case DirectKey::Radians:
            return static_cast<void>(click(calc.form, calc.form.optRad));
        case DirectKey::Grads:
            return static_cast<void>(click(calc.form, calc.form.optGrad));
        case DirectKey::Fixed:
            return calc.display.optFix_Click(DisplayMode::Fixed);
        case DirectKey::Scientific:
            return calc.display.optFix_Click(DisplayMode::Scientific);
        case DirectKey::Engineering:
            return calc.display.optFix_Click(DisplayMode::Engineering);
        case DirectKey::Divide:
        case DirectKey::Multiply:
        case DirectKey::Subtract:
        case DirectKey::Add:
            return parts.keypads.cmdMath_Click(static_cast<int>(key) - static_cast<int>(DirectKey::Divide));
        case DirectKey::None:
            break;
    }
}

void KeyWords::pressReset(std::uint8_t mask, bool modeComesBack) {
    calc.s.modifiers.ModifierMask = mask;
    state.resetLatch = modeComesBack && calc.s.modes.ProgramMode;
    parts.resetKey.cmdReset_Click();
}

void KeyWords::pressRegister(std::uint8_t mask, int registerNumber) {
    EngineState& s = calc.s;
    if (mask == kShift) {
        if (const auto x = s.stack.Xreg.tryNumber(s.format.DecimalChar); x && !s.stack.Xreg.isEmptyText()) {
            s.stack.Xreg = fifteenDigits(*x);
        }
    }
    s.modifiers.ModifierMask = mask;
    // An open entry, so that the number reaches the key whole.
    s.entry.EntryOpen = true;
    calc.setEntry(std::to_string(registerNumber));
    parts.registers.cmdSTO_Click();
}

}  // namespace tallyforge
