// SPDX-License-Identifier: GPL-3.0-or-later
#include "desk/machine_reset.h"

#include "engine/engine.h"
#include "engine/tape_width.h"

#include <algorithm>

namespace tallyforge {

namespace {

constexpr std::uint32_t kAllBits = 0x7FFFFFFF;

}  // namespace

void MachineReset::clearRegisters() {
    EngineState& s = calc.s;
    for (int key = 0; key < kBankKeys; ++key) {
        const auto number = static_cast<std::size_t>(registerOfKey(key));
        s.Registers.at(number) = ValueCell::zero();
        calc.form.txtReg_m.at(number - 1).text.clear();
        s.RegisterNames.at(static_cast<std::size_t>(key)) = defaultRegisterName(key);
    }
    s.RegistersUsed = false;
    calc.ClearOptKeys();
    if (s.MemoryArrayMode) {
        calc.keypads().RepaintKeypad();
    }
}

void MachineReset::clearStackAndTape() {
    EngineState& s = calc.s;
    if (s.QuizMode) {
        calc.keypads().EndQuiz();
    }
    s.StackPtr = 1;
    s.Stack.assign(3, ValueCell{});
    s.BaseRemainder.clear();
    for (ValueCell* cell : {&s.Xreg, &s.Yreg, &s.LastX, &s.LastY}) {
        *cell = ValueCell::zero();
    }
    s.Xnum = 0.0;
    calc.form.txtLastx.text = "0";
    calc.form.txty_Reg.text = "0";
    s.ModifierMask = 0;
    for (Control* key : {&calc.form.cmdDown, &calc.form.cmdXchgY, &calc.form.cmdLastx}) {
        key->enabled = false;
    }
    constexpr std::size_t kLogarithmKey = 13;
    calc.form.cmdFunctions.at(kLogarithmKey).enabled = true;
    calc.form.cmdSTO.enabled = s.RegistersUsed;
    s.FunctionResetMask = kAllBits;
    s.RightTriangleHasAngle = false;
    s.CalcResetWord = kAllBits;
    calc.keypads().ClearPartialStates();
    s.FnLabel.clear();
    clearEntryState();
    if (s.ProgramMode) {
        calc.keypads().ResetProgram();
    } else if (!s.MemoryArrayMode) {
        calc.keypads().RepaintKeypad();
    }
    clearLists();
}

void MachineReset::clearEntryState() {
    EngineState& s = calc.s;
    for (bool* flag : {&s.EntryOpen, &s.EexActive, &s.KeepEntryText, &s.ValueInXreg, &s.SkipCommitTail, &s.EntryTouched,
                       &s.BaseTagDue, &s.BaseNumberDone}) {
        *flag = false;
    }
}

void MachineReset::clearLists() {
    calc.ClearOptKeys();
    calc.form.lstDisplayReg.place.width = kNarrowTape;
    calc.tape.clear(calc.s.TapeRows);
    calc.stackList.refresh();
    calc.setEntry({});
    calc.focusEntry();
}

}  // namespace tallyforge
