// SPDX-License-Identifier: GPL-3.0-or-later
#include "engine/multi_input.h"

#include "engine/engine.h"
#include "numbers/checked_math.h"

#include <algorithm>
#include <utility>

namespace tallyforge {

MultiInput::Outcome MultiInput::press() {
    return press(calc.s.modifiers.ModifierMask);
}

MultiInput::Outcome MultiInput::press(std::uint8_t name) {
    EngineState& s = calc.s;
    clearIfDue();
    if (nothingEntered()) {
        return startAnew(shape.resetLabel);
    }
    const bool recalculates = shape.shiftRecalculates && (name & kShift) != 0;
    const KeyInput* input = named(recalculates ? static_cast<std::uint8_t>(name - kShift) : name);
    if (input == nullptr) {
        s.stack.Xreg = kNoMeaning;
        return Outcome::NoMeaning;
    }
    const double given = calc.xNumber();
    double value = given;
    if (received_ == 0) {
        first_ = {};
    }
    if (owner.refuse) {
        if (const auto refusal = owner.refuse(*input, value); refusal) {
            return turnAway(*refusal);
        }
    }
    if (value != given) {
        s.stack.Xreg = value;
    }
    valueOf(*input) = value;
    received_ |= input->bit;
    // The quantity that was solved for last is no input of that set, so it starts a new one.
    if (recalculates && received_ == input->bit && (lastSet_ & input->bit) != 0) {
        received_ = lastSet_;
    }
    if (const KeySolution* solved = solution(); solved != nullptr) {
        if (owner.refuseSet) {
            if (const auto refusal = owner.refuseSet(values_); refusal) {
                received_ &= static_cast<std::uint8_t>(~refusal->takesBack);
                return turnAway(*refusal);
            }
        }
        return deliver(*solved, *input, recalculates || shape.alwaysEchoes);
    }
    settle();
    useLook(shape.givenLook);
    s.delivery.FnLabel = labelOf(*input);
    return Outcome::Stored;
}

bool MultiInput::clearIfDue() {
    const bool due = calc.s.functions.takeReset(shape.resetBit);
    if (due) {
        clear();
    }
    return due;
}

MultiInput::Outcome MultiInput::startAnew(std::string_view label) {
    clear();
    setX(0.0, std::string(label));
    return Outcome::Reset;
}

MultiInput::Outcome MultiInput::turnAway(const InputRefusal& refusal) {
    if (!refusal.leavesX) {
        calc.s.stack.Xreg = ValueCell::zero();
    }
    settle();
    calc.s.delivery.FnLabel = refusal.label;
    return Outcome::Refused;
}

std::vector<KeyResult> MultiInput::resultsOf(const KeySolution& solved) const {
    std::vector<KeyResult> results;
    if (solved.solve == nullptr) {
        results = owner.solve(received_, values_);
    } else {
        results.push_back({.value = solved.solve(values_), .label = std::string(solved.label)});
    }
    for (const KeyResult& result : results) {
        static_cast<void>(checked(result.value));
    }
    return results;
}

MultiInput::Outcome MultiInput::deliver(const KeySolution& solved, const KeyInput& last, bool echoes) {
    std::vector<KeyResult> results;
    try {
        results = resultsOf(solved);
    } catch (const Failure&) {
        takeBack(last.bit);
        throw;
    }
    const std::uint8_t given = received_;
    settle();
    complete();
    if (echoes) {
        for (const KeyInput& input : shape.inputs) {
            if ((given & input.bit) != 0) {
                writeEcho(input);
            }
        }
    } else {
        useLook(shape.givenLook);
        setX(valueOf(last), labelOf(last));
        calc.commit.deliverX();
    }
    if (results.empty()) {
        return startAnew(shape.undoneLabel.empty() ? shape.resetLabel : shape.undoneLabel);
    }
    for (KeyResult& result : results) {
        const bool pushes = &result != &results.front();
        if (pushes) {
            calc.commit.deliverX();
        }
        setX(result.value, std::move(result.label));
        useLook(shape.resultLook);
        calc.s.entry.EntryOpen = pushes;
    }
    return Outcome::Solved;
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

void MultiInput::writeEcho(const KeyInput& input) {
    setX(valueOf(input), input.echoLabel.empty() ? labelOf(input) : std::string(input.echoLabel));
    useLook(input.echoLook.value_or(shape.echoLook));
    calc.commit.deliverX();
}

void MultiInput::setX(double value, std::string_view label) {
    calc.s.stack.Xreg = value;
    calc.s.delivery.FnLabel = label;
}

// For the number in X.
void MultiInput::useLook(const LineLook& look) {
    FormatState& format = calc.s.format;
    calc.display.RestoreDisplay();
    if (look.digits != LineLook::kUsersDigits) {
        calc.display.SaveDisplay(look.digits);
    } else if (look.bySize) {
        const DisplayMode mode = format.Mode;
        calc.display.SaveDisplay(format.DisplayDigits);
        format.Mode = mode;
    }
    if (look.bySize) {
        calc.commit.AutoDigits();
    }
}

std::string MultiInput::labelOf(const KeyInput& input) const {
    return owner.label ? owner.label(input) : std::string(input.label);
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
    const auto found = std::find_if(shape.solutions.begin(), shape.solutions.end(), [this](const KeySolution& solved) {
        return solved.bits == (received_ & solved.among);
    });
    return found == shape.solutions.end() ? nullptr : &*found;
}

double& MultiInput::valueOf(const KeyInput& input) {
    return values_.at(static_cast<std::size_t>(&input - shape.inputs.data()));
}

}  // namespace tallyforge
