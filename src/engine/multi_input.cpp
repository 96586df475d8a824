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
        first_ = {};
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
    settle();
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
    const std::uint8_t given = received_;
    settle();
    complete();
    for (const KeyInput& input : shape.inputs) {
        if (showsAll && input.bit != last.bit && (given & input.bit) != 0) {
            writeInput(input);
        }
    }
    writeInput(last);
    s.stack.Xreg = result;
    s.delivery.FnLabel = solved.label;
    s.delivery.ValueInXreg = true;
    if (shape.autoDigits) {
        calc.display.SaveDisplay(2);
        calc.commit.AutoDigits();
    }
}

void MultiInput::takeBack(std::uint8_t bits) {
    received_ &= static_cast<std::uint8_t>(~bits);
    remember(ValueCell::zero());
}

void MultiInput::complete() {
    lastSet_ = received_;
    received_ = 0;
    if (stands(first_)) {
        calc.s.stack.StackPtr = first_.slot + 1;
    }
    first_ = {};
    last_ = {};
}

void MultiInput::writeInput(const KeyInput& input) {
    calc.s.stack.Xreg = valueOf(input);
    calc.s.delivery.FnLabel = input.label;
    calc.s.delivery.ValueInXreg = true;
    calc.commit.cmdEnter_Click();
}

// The commit that follows takes the element on top. The input before it goes with it, if it still
// lies right below: what the user has put on the stack since stays.
void MultiInput::settle() {
    if (last_.slot == calc.s.stack.StackPtr - 2 && stands(last_)) {
        calc.s.stack.StackPtr -= 1;
    }
    calc.s.entry.EntryOpen = false;
    remember(calc.s.stack.Xreg);
}

// Whether the element that an input was left in is still there below the top, and still that input.
bool MultiInput::stands(const Place& place) const {
    const StackState& stack = calc.s.stack;
    return place.slot > 0 && place.slot < stack.StackPtr - 1 && stack.slot(place.slot) == place.value;
}

// The coming commit leaves `left` on top.
void MultiInput::remember(const ValueCell& left) {
    last_ = {.slot = calc.s.stack.StackPtr - 1, .value = left};
    if (first_.slot < 0 || first_.slot == last_.slot) {
        first_ = last_;
    }
}

void MultiInput::clear() {
    values_ = {};
    received_ = 0;
    lastSet_ = 0;
    first_ = {};
    last_ = {};
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
