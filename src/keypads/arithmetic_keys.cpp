// SPDX-License-Identifier: GPL-3.0-or-later
#include "keypads/arithmetic_keys.h"

#include "bases/binary_keys.h"
#include "engine/engine.h"
#include "keypads/failure_messages.h"
#include "numbers/checked_math.h"
#include "numbers/out_of_range.h"

#include <array>
#include <string>

namespace tallyforge {

namespace {

constexpr std::array<std::string_view, 4> kOperators{"ö"_t, "X", "-", "+"};
constexpr std::string_view kFieldPattern = "0.0e+00";
constexpr int kDivide = 0;
constexpr int kMultiply = 1;
constexpr int kSubtract = 2;
constexpr int kAdd = 3;
constexpr int kArithmeticRegister = 1;
constexpr int kConstantRegister = 2;

double apply(int index, double left, double right) {
    switch (index) {
        case kDivide:
            return quotient(left, right);
        case kMultiply:
            return checked(left * right);
        case kSubtract:
            return checked(left - right);
        default:
            return checked(left + right);
    }
}

}  // namespace

void ArithmeticKeys::cmdMath_Click(int index) {
    EngineState& s = calc.s;
    if (!calc.commit.FetchX()) {
        calc.ClearOptKeys();
        return;
    }
    s.CurrentProc = "cmdMath";
    s.LastX = s.Xreg;
    const Operands operands = choose(index);
    const bool tagged = operands.valid && (operands.left->isTagged() || operands.right->isTagged());
    if (!operands.valid || (tagged && bases == nullptr)) {
        abandon();
        return;
    }
    const bool intoRegister = s.ModifierMask == kCtrl;
    s.FnLabel = s.ModifierMask == kAlt ? "m" : "";
    s.FnLabel += kOperators.at(static_cast<std::size_t>(index));
    const std::optional<FailureNumber> failed = compute(index, operands);
    const bool noNumber = failed == FailureNumber::TypeMismatch;
    if (noNumber || (tagged && failed && *failed != FailureNumber::DivisionByZero)) {
        // What cannot be computed with stays where it is, X as last x.
        const ValueCell operand = s.LastX;
        const bool emptiesX = *failed == FailureNumber::SubtrahendGreater && !intoRegister;
        abandon();
        s.LastX = operand;
        if (emptiesX) {
            s.Xreg = "";
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
    if (s.ModifierMask == 0) {
        calc.commit.lowerStack(2);
    }
    calc.ClearOptKeys();
    s.ValueInXreg = true;
    calc.commit.cmdEnter_Click();
}

ArithmeticKeys::Operands ArithmeticKeys::choose(int index) {
    EngineState& s = calc.s;
    const ValueCell& x = s.Xreg;
    switch (s.ModifierMask) {
        case 0:
            return {.valid = true, .left = &s.slot(s.StackPtr - 2), .right = &x};
        case kCtrl:
            s.RegistersUsed = true;
            return {.valid = true, .left = &s.Registers.at(kArithmeticRegister), .right = &x};
        case kAlt: {
            s.RegistersUsed = true;
            const ValueCell& constant = s.Registers.at(kConstantRegister);
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
        }
    };
    const bool tagged = operands.left->isTagged() || operands.right->isTagged();
    goOn(onFailure, [&] {
        s.Xreg = tagged ? bases->compute(index, ValueCell(*operands.left), ValueCell(*operands.right))
                        : ValueCell{apply(index, calc.number(*operands.left), calc.number(*operands.right))};
    });
    return failed;
}

// X and the stack stay as they were, no line is written.
void ArithmeticKeys::abandon() {
    EngineState& s = calc.s;
    s.Xreg = s.LastX;
    s.LastX = s.slot(s.StackPtr - 2);
    if (s.LastX.isEmpty()) {
        s.LastX = ValueCell::zero();
    }
    s.FnLabel.clear();
    calc.stackList.refresh();
    calc.commit.ShowSmallRegs();
    s.ValueInXreg = false;
    calc.ClearOptKeys();
}

void ArithmeticKeys::storeRegisterOne() {
    calc.s.Registers.at(kArithmeticRegister) = calc.s.Xreg;
    calc.form.txtReg_m.front().text = calc.patternText(calc.s.Xreg, kFieldPattern);
}

}  // namespace tallyforge
