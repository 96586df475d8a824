// SPDX-License-Identifier: GPL-3.0-or-later
#include "keypads/arithmetic_keys.h"

#include "engine/engine.h"

#include <array>
#include <cmath>
#include <string>

namespace tallyforge {

namespace {

constexpr std::array<std::string_view, 4> kOperators{"ö"_t, "X", "-", "+"};
constexpr std::string_view kFieldPattern = "0.0e+00";
constexpr int kArithmeticRegister = 1;
constexpr int kConstantRegister = 2;

double apply(int index, double left, double right) {
    double result = 0.0;
    switch (index) {
        case 0:
            if (right == 0.0) {
                throw Failure{FailureNumber::DivisionByZero};
            }
            result = left / right;
            break;
        case 1:
            result = left * right;
            break;
        case 2:
            result = left - right;
            break;
        default:
            result = left + right;
            break;
    }
    if (!std::isfinite(result)) {
        throw Failure{FailureNumber::Overflow};
    }
    return result;
}

}  // namespace

void ArithmeticKeys::cmdMath_Click(int index) {
    EngineState& s = calc.s;
    calc.commit.FetchX();
    s.CurrentProc = "cmdMath";
    s.LastX = s.Xreg;
    const ValueCell x = s.Xreg;
    const ValueCell constant = s.Registers.at(kConstantRegister);
    switch (s.ModifierMask) {
        case 0: {
            const ValueCell y = s.StackPtr >= 2 ? s.slot(s.StackPtr - 2) : ValueCell::zero();
            s.FnLabel = kOperators.at(static_cast<std::size_t>(index));
            compute(index, y, x);
            calc.commit.lowerStack(2);
            break;
        }
        case kCtrl:
            if (compute(index, s.Registers.at(kArithmeticRegister), x)) {
                intoRegisterOne();
            }
            abandon();
            return;
        case kAlt: {
            s.FnLabel = "m" + std::string(kOperators.at(static_cast<std::size_t>(index)));
            const bool registerIsLeft = index == 1 || index == 3;
            compute(index, registerIsLeft ? constant : x, registerIsLeft ? x : constant);
            break;
        }
        default:
            abandon();
            return;
    }
    calc.ClearOptKeys();
    s.ValueInXreg = true;
    calc.commit.cmdEnter_Click();
}

// A failure leaves X as it was: a division by zero says nothing, and X, the divisor, is committed.
bool ArithmeticKeys::compute(int index, const ValueCell& left, const ValueCell& right) {
    EngineState& s = calc.s;
    const auto onFailure = [&](const Failure& failure) {
        if (failure.number() == FailureNumber::SubtrahendGreater) {
            calc.errorBox(BoxKind::Stop, "Subtrahend is greater than the minuend!");
            s.Xreg = "";
        } else if (failure.number() == FailureNumber::Overflow) {
            calc.errorBox(BoxKind::Stop, "Number outside of range: ± 1.8e308, & ± 4.9e-324"_t);
        }
    };
    return goOn(onFailure, [&] {
        const bool tagged = left.isTagged() || right.isTagged();
        s.Xreg = tagged && bases != nullptr ? bases->compute(index, left, right)
                                            : ValueCell{apply(index, calc.number(left), calc.number(right))};
    });
}

void ArithmeticKeys::abandon() {
    EngineState& s = calc.s;
    s.Xreg = s.LastX;
    s.LastX = s.slot(s.StackPtr - 2);
    s.FnLabel.clear();
    calc.stackList.refresh();
    s.ValueInXreg = false;
    calc.ClearOptKeys();
}

void ArithmeticKeys::intoRegisterOne() {
    EngineState& s = calc.s;
    s.Registers.at(kArithmeticRegister) = s.Xreg;
    calc.form.txtReg_m.front().text = calc.patternText(s.Xreg, kFieldPattern);
    s.RegistersUsed = true;
}

}  // namespace tallyforge
