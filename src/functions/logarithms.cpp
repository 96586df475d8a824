// SPDX-License-Identifier: GPL-3.0-or-later
#include "functions/logarithms.h"

#include "engine/engine.h"
#include "engine/results.h"
#include "functions/math_functions.h"
#include "numbers/checked_math.h"

#include <cmath>
#include <string_view>

namespace tallyforge {

namespace {

constexpr std::string_view kTitle = "Logs";

// Better than e^x - 1 for small x, where the difference would have few digits.
double expLessOne(double x) {
    return checked(std::expm1(x));
}

}  // namespace

void powers(Engine& calc) {
    switch (calc.s.modifiers.ModifierMask) {
        case 0:
            replaceOperands(calc, 2, {power(operandBelow(calc, 1), calc.xNumber()), "y^x"});
            break;
        case kShift:
            replaceOperands(calc, 2, {quotient(lnOf(calc.xNumber()), lnOf(operandBelow(calc, 1))), "n(y^)"});
            break;
        case kCtrl:
            replaceX(calc, {power(2.0, calc.xNumber()), "2^"});
            break;
        case kAlt:
            replaceX(calc, {lnOf(calc.xNumber()) / std::log(2.0), "n(2^)"});
            break;
        default:
            refuseModifiers(calc);
    }
}

void naturalLogarithm(Engine& calc) {
    switch (calc.s.modifiers.ModifierMask) {
        case 0: {
            const double x = calc.xNumber();
            if (x < 0.0) {
                calc.message(BoxKind::Stop, kTitle, "Positive numbers only!");
                leaveNothing(calc);
                return;
            }
            replaceX(calc, {lnOf(x), "ln(x)"});
            break;
        }
        case kShift:
            replaceX(calc, {expOf(calc.xNumber()), "e^x"});
            break;
        default:
            refuseModifiers(calc);
    }
}

void logarithmOfOnePlus(Engine& calc) {
    switch (calc.s.modifiers.ModifierMask) {
        case 0: {
            const double x = calc.xNumber();
            if (x + 1.0 <= 0.0) {
                calc.message(BoxKind::Stop, kTitle, "Enter a number > -1!");
                leaveNothing(calc);
                return;
            }
            replaceX(calc, {std::log1p(x), "ln+"});
            break;
        }
        case kShift:
            replaceX(calc, {expLessOne(calc.xNumber()), "e-"});
            break;
        default:
            refuseModifiers(calc);
    }
}

void commonLogarithm(Engine& calc) {
    switch (calc.s.modifiers.ModifierMask) {
        case 0: {
            const double x = calc.xNumber();
            if (x < 0.0) {
                calc.message(BoxKind::Stop, kTitle, "Positive numbers only!");
                // Unlike the natural logarithm this key commits its refusal.
                replaceX(calc, {"0", "No Data!"});
                return;
            }
            replaceX(calc, {MathFunctions::Log10(x), "log(x)"});
            break;
        }
        case kShift:
            replaceX(calc, {power(10.0, calc.xNumber()), "10^x"});
            break;
        default:
            refuseModifiers(calc);
    }
}

}  // namespace tallyforge
