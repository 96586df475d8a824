// SPDX-License-Identifier: GPL-3.0-or-later
#include "desk/machine_reset.h"

#include "engine/engine.h"
#include "engine/key_names.h"
#include "engine/tape_width.h"

#include <algorithm>

namespace tallyforge {

void MachineReset::clearRegisters() {
    EngineState& s = calc.s;
    for (int key = 0; key < kBankKeys; ++key) {
        const auto number = static_cast<std::size_t>(registerOfKey(key));
        s.memory.Registers.at(number) = ValueCell::zero();
        calc.form.txtReg_m.at(number - 1).text.clear();
        s.memory.RegisterNames.at(static_cast<std::size_t>(key)) = defaultRegisterName(key);
    }
    s.memory.RegistersUsed = false;
    calc.ClearOptKeys();
    if (s.modes.MemoryArrayMode) {
        calc.keypads().RepaintKeypad();
    }
}

void MachineReset::clearStackAndTape() {
    EngineState& s = calc.s;
    if (s.modes.QuizMode) {
        calc.keypads().EndQuiz();
    }
    s.stack.StackPtr = 1;
    s.stack.Stack.assign(3, ValueCell{});
    s.format.BaseRemainder.clear();
    for (ValueCell* cell : {&s.stack.Xreg, &s.stack.Yreg, &s.stack.LastX}) {
        *cell = ValueCell::zero();
    }
    calc.form.txtLastx.text = "0";
    calc.form.txty_Reg.text = "0";
    s.modifiers.ModifierMask = 0;
    for (Control* key : {&calc.form.cmdDown, &calc.form.cmdXchgY, &calc.form.cmdLastx}) {
        key->enabled = false;
    }
    calc.form.cmdFunctions.at(key::LogOfOnePlus).enabled = true;
    calc.form.cmdSTO.enabled = s.memory.RegistersUsed;
    s.functions.FunctionResetMask = static_cast<std::uint32_t>(ResetBit::All);
    s.functions.RightTriangleHasAngle = false;
    calc.keypads().ClearPartialStates();
    s.delivery = {};
    clearEntryState();
    if (s.modes.ProgramMode) {
        calc.keypads().ResetProgram();
    } else if (!s.modes.MemoryArrayMode) {
        calc.keypads().RepaintKeypad();
    }
    clearLists();
}

void MachineReset::clearEntryState() {
    EngineState& s = calc.s;
    for (bool* flag : {&s.entry.EntryOpen, &s.entry.EexActive, &s.entry.EntryTouched, &s.entry.BaseTagDue,
                       &s.entry.BaseNumberDone}) {
        *flag = false;
    }
}

void MachineReset::clearLists() {
    calc.ClearOptKeys();
    calc.form.lstDisplayReg.place.width = kNarrowTape;
    calc.tape.clear(calc.s.window.TapeRows);
    calc.stackList.refresh();
    calc.setEntry({});
    calc.focusEntry();
}

}  // namespace tallyforge
