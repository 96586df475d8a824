// SPDX-License-Identifier: GPL-3.0-or-later
#include "keypads/arithmetic_keys.h"

#include "bases/binary_keys.h"
#include "engine/engine.h"
#include "keypads/failure_messages.h"
#include "numbers/checked_math.h"
#include "numbers/out_of_range.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <string>

namespace tallyforge {

namespace {

using Operators = std::array<ShortLabel, 4>;
constexpr Operators kOperators{ShortLabel{"ö"_t}, ShortLabel{"X"}, ShortLabel{"-"}, ShortLabel{"+"}};
/// With the constant in its register.
constexpr Operators kConstantOperators{ShortLabel{"mö"_t}, ShortLabel{"mX"}, ShortLabel{"m-"}, ShortLabel{"m+"}};
constexpr std::string_view kFieldPattern = "0.0e+00";
constexpr int kDivide = 0;
constexpr int kMultiply = 1;
constexpr int kSubtract = 2;
constexpr int kAdd = 3;
constexpr int kArithmeticRegister = 1;
constexpr int kConstantRegister = 2;

/// The bare operation; a division by zero and a result out of range are not finite.
double operate(int index, double left, double right) {
    switch (index) {
        case kDivide:
            return left / right;
        case kMultiply:
            return left * right;
        case kSubtract:
            return left - right;
        default:
            return left + right;
    }
}

double apply(int index, double left, double right) {
    return index == kDivide ? quotient(left, right) : checked(operate(index, left, right));
}

}  // namespace

// Two plain numbers with a plain result, and nobody watches: no more than the commit is left to do.
bool ArithmeticKeys::computeQuietly(int index) {
    StackState& stack = calc.s.stack;
    if (!calc.commit.quiet() || stack.depth() < 2) {
        return false;
    }
    const double* const left = stack.slot(stack.StackPtr - 2).asDouble();
    const double* const right = stack.slot(stack.StackPtr - 1).asDouble();
    if (left == nullptr || right == nullptr) {
        return false;
    }
    const double result = operate(index, *left, *right);
    if (!std::isfinite(result)) {
        return false;
    }
    const double operand = *right;
    if (!calc.commit.put(result, stack.StackPtr - 2, labels_[static_cast<std::size_t>(index)])) {
        return false;
    }
    stack.LastX = operand;
    return true;
}

ArithmeticKeys::ArithmeticKeys(Engine& calculator) : calc(calculator) {
    for (std::size_t i = 0; i < labels_.size(); ++i) {
        labels_[i] = *calc.tape.known(kOperators[i]);
    }
}

void ArithmeticKeys::cmdMath_Click(int index) {
    if (computeQuietly(index)) {
        return;
    }
    EngineState& s = calc.s;
    if (!calc.commit.FetchX()) {
        calc.ClearOptKeys();
        return;
    }
    s.CurrentProc = "cmdMath";
    s.stack.LastX = s.stack.Xreg;
    const Operands operands = choose(index);
    const bool tagged = operands.valid && (operands.left->isTagged() || operands.right->isTagged());
    if (!operands.valid || (tagged && bases == nullptr)) {
        abandon();
        return;
    }
    const bool intoRegister = s.modifiers.ModifierMask == kCtrl;
    s.delivery.FnLabel =
        (s.modifiers.ModifierMask == kAlt ? kConstantOperators : kOperators).at(static_cast<std::size_t>(index));
    const std::optional<FailureNumber> failed = compute(index, operands);
    const bool noNumber = failed == FailureNumber::TypeMismatch;
    if (noNumber || (tagged && failed && *failed != FailureNumber::DivisionByZero)) {
        // What cannot be computed with stays where it is, X as last x.
        const ValueCell operand = s.stack.LastX;
        const bool emptiesX = *failed == FailureNumber::SubtrahendGreater && !intoRegister;
        abandon();
        s.stack.LastX = operand;
        if (emptiesX) {
            s.stack.Xreg = "";
        }
        calc.commit.ShowSmallRegs();
        return;
    }
    if (intoRegister) {
        // What could not be computed leaves the register alone.
        if (!failed) {
            storeRegisterOne();
        }
        abandon();
        return;
    }
    if (s.modifiers.ModifierMask == 0) {
        // On a single element this leaves the result below an empty stack.
        s.stack.StackPtr = std::max(s.stack.StackPtr - 1, 1);
    }
    calc.ClearOptKeys();
    calc.commit.deliverX();
}

ArithmeticKeys::Operands ArithmeticKeys::choose(int index) {
    EngineState& s = calc.s;
    const ValueCell& x = s.stack.Xreg;
    switch (s.modifiers.ModifierMask) {
        case 0:
            return {.valid = true, .left = &s.stack.slot(s.stack.StackPtr - 2), .right = &x};
        case kCtrl:
            s.memory.RegistersUsed = true;
            return {.valid = true, .left = &s.memory.Registers.at(kArithmeticRegister), .right = &x};
        case kAlt: {
            s.memory.RegistersUsed = true;
            const ValueCell& constant = s.memory.Registers.at(kConstantRegister);
            const bool constantIsLeft = index == kMultiply || index == kAdd;
            return {.valid = true, .left = constantIsLeft ? &constant : &x, .right = constantIsLeft ? &x : &constant};
        }
        default:
            return {};
    }
}

// A failure leaves X as it was: a division by zero says nothing, and X, the divisor, is committed.
std::optional<FailureNumber> ArithmeticKeys::compute(int index, const Operands& operands) {
    EngineState& s = calc.s;
    std::optional<FailureNumber> failed;
    const auto onFailure = [&](const Failure& failure) {
        failed = failure.number();
        if (failure.number() == FailureNumber::SubtrahendGreater) {
            calc.errorBox(BoxKind::Stop, "Subtrahend is greater than the minuend!");
        } else if (failure.number() == FailureNumber::Overflow) {
            calc.errorBox(BoxKind::Stop, kOutOfRange);
        } else if (failure.number() == FailureNumber::BaseRange) {
            calc.errorBox(BoxKind::Stop, failureMessage(failure.number(), index, s));
        } else if (failure.number() == FailureNumber::TypeMismatch) {
            calc.errorBox(BoxKind::Stop, "Error number " + std::to_string(failure.code()));
        }
    };
    const bool tagged = operands.left->isTagged() || operands.right->isTagged();
    goOn(onFailure, [&] {
        s.stack.Xreg = tagged ? bases->compute(index, ValueCell(*operands.left), ValueCell(*operands.right))
                              : ValueCell{apply(index, calc.number(*operands.left), calc.number(*operands.right))};
    });
    return failed;
}

// X and the stack stay as they were, no line is written.
void ArithmeticKeys::abandon() {
    EngineState& s = calc.s;
    s.stack.Xreg = s.stack.LastX;
    s.stack.LastX = s.stack.operand(s.stack.StackPtr - 2);
    s.delivery.FnLabel.clear();
    calc.stackList.refresh();
    calc.commit.ShowSmallRegs();
    calc.ClearOptKeys();
}

void ArithmeticKeys::storeRegisterOne() {
    calc.s.memory.Registers.at(kArithmeticRegister) = calc.s.stack.Xreg;
    calc.form.txtReg_m.front().text = calc.patternText(calc.s.stack.Xreg, kFieldPattern);
}

}  // namespace tallyforge
