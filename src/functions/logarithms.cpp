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

void yToTheX(Engine& calc) {
    replaceOperands(calc, 2, {power(operandBelow(calc, 1), calc.xNumber()), "y^x"});
}

void exponentOfY(Engine& calc) {
    replaceOperands(calc, 2, {quotient(lnOf(calc.xNumber()), lnOf(operandBelow(calc, 1))), "n(y^)"});
}

void twoToTheX(Engine& calc) {
    replaceX(calc, {power(2.0, calc.xNumber()), "2^"});
}

void exponentOfTwo(Engine& calc) {
    replaceX(calc, {lnOf(calc.xNumber()) / std::log(2.0), "n(2^)"});
}

void naturalLogarithm(Engine& calc) {
    const double x = calc.xNumber();
    if (x < 0.0) {
        calc.message(BoxKind::Stop, kTitle, "Positive numbers only!");
        leaveNothing(calc);
        return;
    }
    replaceX(calc, {lnOf(x), "ln(x)"});
}

void eToTheX(Engine& calc) {
    replaceX(calc, {expOf(calc.xNumber()), "e^x"});
}

void logarithmOfOnePlus(Engine& calc) {
    const double x = calc.xNumber();
    if (x + 1.0 <= 0.0) {
        calc.message(BoxKind::Stop, kTitle, "Enter a number > -1!");
        leaveNothing(calc);
        return;
    }
    replaceX(calc, {std::log1p(x), "ln+"});
}

void eToTheXLessOne(Engine& calc) {
    replaceX(calc, {expLessOne(calc.xNumber()), "e-"});
}

void commonLogarithm(Engine& calc) {
    const double x = calc.xNumber();
    if (x < 0.0) {
        calc.message(BoxKind::Stop, kTitle, "Positive numbers only!");
        // Unlike the natural logarithm this key commits its refusal.
        replaceX(calc, {"0", "No Data!"});
        return;
    }
    replaceX(calc, {MathFunctions::Log10(x), "log(x)"});
}

void tenToTheX(Engine& calc) {
    replaceX(calc, {power(10.0, calc.xNumber()), "10^x"});
}

}  // namespace tallyforge
