// SPDX-License-Identifier: GPL-3.0-or-later
#include "engine/multi_input.h"

#include "engine/engine.h"
#include "numbers/checked_math.h"

#include <algorithm>

namespace tallyforge {

MultiInput::Outcome MultiInput::press() {
    return press(calc.s.modifiers.ModifierMask);
}

MultiInput::Outcome MultiInput::press(std::uint8_t name) {
    EngineState& s = calc.s;
    if ((s.functions.FunctionResetMask & shape.resetBit) != 0) {
        s.functions.FunctionResetMask &= ~shape.resetBit;
        clear();
    }
    if (nothingEntered()) {
        clear();
        s.stack.Xreg = ValueCell::zero();
        s.delivery.FnLabel = shape.resetLabel;
        return Outcome::Reset;
    }
    const bool recalculates = shape.shiftRecalculates && (name & kShift) != 0;
    const KeyInput* input = named(recalculates ? static_cast<std::uint8_t>(name - kShift) : name);
    if (input == nullptr) {
        s.stack.Xreg = kNoMeaning;
        return Outcome::NoMeaning;
    }
    valueOf(*input) = calc.xNumber();
    if (received_ == 0) {
        savedStackPtr_ = s.stack.StackPtr;
    }
    received_ |= input->bit;
    // The quantity that was solved for last is no input of that set, so it starts a new one.
    if (recalculates && received_ == input->bit && (lastSet_ & input->bit) != 0) {
        received_ = lastSet_;
    }
    if (const KeySolution* solved = solution(); solved != nullptr) {
        deliver(*solved, *input, recalculates);
        return Outcome::Solved;
    }
    takePlace();
    s.delivery.FnLabel = input->label;
    return Outcome::Stored;
}

void MultiInput::deliver(const KeySolution& solved, const KeyInput& last, bool showsAll) {
    EngineState& s = calc.s;
    double result = 0.0;
    try {
        result = checked(solved.solve(values_));
    } catch (const Failure&) {
        takeBack(last.bit);
        throw;
    }
    takePlace();
    for (const KeyInput& input : shape.inputs) {
        if (showsAll && input.bit != last.bit && (received_ & input.bit) != 0) {
            writeInput(input);
        }
    }
    writeInput(last);
    complete();
    s.stack.Xreg = result;
    s.delivery.FnLabel = solved.label;
    s.delivery.ValueInXreg = true;
    if (shape.autoDigits) {
        calc.display.SaveDisplay(2);
        calc.commit.AutoDigits();
    }
}

void MultiInput::revise(std::uint8_t bit, double value) {
    const auto input = std::find_if(shape.inputs.begin(), shape.inputs.end(),
                                    [bit](const KeyInput& candidate) { return candidate.bit == bit; });
    if (input != shape.inputs.end()) {
        valueOf(*input) = value;
    }
}

void MultiInput::takeBack(std::uint8_t bit) {
    received_ &= static_cast<std::uint8_t>(~bit);
}

void MultiInput::complete() {
    lastSet_ = received_;
    received_ = 0;
    savedStackPtr_ = 0;
}

void MultiInput::writeInput(const KeyInput& input) {
    calc.s.stack.Xreg = valueOf(input);
    calc.s.delivery.FnLabel = input.label;
    calc.s.delivery.ValueInXreg = true;
    calc.commit.cmdEnter_Click();
}

// The commit that follows replaces the element of the first input; what was typed since lies above
// it and goes.
void MultiInput::takePlace() {
    calc.s.stack.StackPtr = std::min(calc.s.stack.StackPtr, savedStackPtr_);
    calc.s.entry.EntryOpen = false;
}

void MultiInput::clear() {
    values_ = {};
    received_ = 0;
    lastSet_ = 0;
    savedStackPtr_ = 0;
}

bool MultiInput::nothingEntered() const {
    const ValueCell& x = calc.s.stack.Xreg;
    return x.isEmpty() || x.isEmptyText() || (shape.zeroResets && calc.xNumber() == 0.0);
}

const KeyInput* MultiInput::named(std::uint8_t mask) const {
    const auto found = std::find_if(shape.inputs.begin(), shape.inputs.end(),
                                    [mask](const KeyInput& input) { return input.mask == mask; });
    return found == shape.inputs.end() ? nullptr : &*found;
}

const KeySolution* MultiInput::solution() const {
    const auto found = std::find_if(shape.solutions.begin(), shape.solutions.end(),
                                    [this](const KeySolution& solved) { return solved.bits == received_; });
    return found == shape.solutions.end() ? nullptr : &*found;
}

double& MultiInput::valueOf(const KeyInput& input) {
    return values_.at(static_cast<std::size_t>(&input - shape.inputs.data()));
}

}  // namespace tallyforge
