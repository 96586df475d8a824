// SPDX-License-Identifier: GPL-3.0-or-later
#include "engine/results.h"

#include "engine/engine.h"

#include <algorithm>

namespace tallyforge {

namespace {

void setX(Engine& calc, const Result& result) {
    calc.s.stack.Xreg = result.value;
    calc.s.delivery.FnLabel = result.label;
}

}  // namespace

ValueCell cellBelow(const Engine& calc, int below) {
    // A result that was left below an empty stack is still the Y that is shown.
    return calc.s.stack.depth() >= below ? calc.s.stack.slot(calc.s.stack.StackPtr - 1 - below) : ValueCell{};
}

double operandBelow(const Engine& calc, int below) {
    return calc.number(cellBelow(calc, below));
}

void replaceX(Engine& calc, const Result& result) {
    setX(calc, result);
}

void replaceOperands(Engine& calc, int operands, const Result& result) {
    calc.commit.lowerStack(operands);
    setX(calc, result);
}

void pushOnX(Engine& calc, const Result& result) {
    setX(calc, result);
    calc.s.entry.EntryOpen = true;
}

void pushAtOnce(Engine& calc, const Result& result, bool keepsDigits) {
    setX(calc, result);
    calc.commit.PushResult(keepsDigits);
}

void replaceWithPair(Engine& calc, int operands, const Result& first, const Result& second, bool keepsDigits) {
    calc.commit.lowerStack(operands);
    calc.s.stack.StackPtr = std::max(calc.s.stack.StackPtr - 1, 1);
    pushAtOnce(calc, first, keepsDigits);
    pushOnX(calc, second);
}

void chooseDigits(Engine& calc, int digits) {
    calc.display.SaveDisplay(digits);
    calc.commit.AutoDigits();
}

void writeTypedOperand(Engine& calc) {
    if (calc.s.entry.EntryTouched) {
        calc.commit.deliverX();
    }
}

void refuseModifiers(Engine& calc) {
    calc.s.stack.Xreg = kNoMeaning;
}

void leaveNothing(Engine& calc) {
    // A number of a base that a key had no use for is still X.
    if (calc.s.stack.Xreg.isTagged()) {
        calc.s.stack.KeepX = calc.s.stack.Xreg;
    }
    calc.s.stack.Xreg = kNothingDone;
}

void leaveX(Engine& calc) {
    calc.s.stack.KeepX = calc.s.stack.Xreg;
    calc.s.stack.Xreg = kNothingDone;
}

}  // namespace tallyforge
