// SPDX-License-Identifier: GPL-3.0-or-later
#include "functions/factorial.h"

#include "engine/engine.h"
#include "engine/results.h"
#include "functions/math_functions.h"
#include "numbers/checked_math.h"
#include "platform/text.h"

#include <array>
#include <cmath>
#include <string>

namespace tallyforge {

namespace {

/// Raised for an argument that gamma does not take; shown by the key itself.
constexpr FailureNumber kOutsideGamma{29};
/// The message says 170.
constexpr double kLargestGamma = 169.0;

/// Up to 16! a factorial shows all its digits.
constexpr double kShortFactorials = 17.0;
constexpr int kLongDigits = 12;
constexpr int kGammaDigits = 3;

/// Coefficients of Abramowitz and Stegun 6.1.36, highest power first.
constexpr std::array<double, 8> kGammaPolynomial{0.035868343, -0.193527818, 0.482199394, -0.756704078,
                                                 0.918206857, -0.897056937, 0.988205891, -0.577191652};

/// Stirling's series for ln gamma, with the terms to z^-7.
double stirling(double z) {
    const double z3 = z * z * z;
    const double z5 = z3 * z * z;
    const double z7 = z5 * z * z;
    const double sum = (z - 0.5) * lnOf(z) - z + std::log(kTwoPi) / 2.0 + quotient(1.0, 12.0 * z) -
                       quotient(1.0, 360.0 * z3) + quotient(1.0, 1260.0 * z5) - quotient(1.0, 1680.0 * z7);
    return expOf(sum);
}

double gammaByPolynomial(double less) {
    // Kept: the product is held in single precision, which the result's digits show.
    float product = 1.0F;
    for (; less >= 1.0; less -= 1.0) {
        product = static_cast<float>(static_cast<double>(product) * less);
    }
    double sum = 0.0;
    for (const double coefficient : kGammaPolynomial) {
        sum = (sum + coefficient) * less;
    }
    return checked(static_cast<double>(product)) * (1.0 + sum);
}

void refuseNegative(Engine& calc) {
    calc.display.SaveDisplay(0);
    calc.message(BoxKind::Stop, "Factorial!", "Negitive numbers not allowed!");
    replaceX(calc, {ValueCell::zero(), "No Data"});
}

void factorial(Engine& calc, bool takesWholePart) {
    const double x = calc.xNumber();
    if (x < 0.0) {
        refuseNegative(calc);
        return;
    }
    const double whole = std::floor(x);
    if (x != whole && !takesWholePart) {
        calc.message(BoxKind::Stop, "Factorial Error!",
                     "Number (x) must be an integer!\n\nUse Shift+Click for N!(Int(x))");
        leaveNothing(calc);
        return;
    }
    const double product = whole == 0.0 ? 1.0 : MathFunctions::productDownFrom(whole);
    calc.display.SaveDisplay(x < kShortFactorials ? 0 : kLongDigits);
    replaceX(calc, {product, "N!"});
}

void gamma(Engine& calc) {
    const double x = calc.xNumber();
    if (x <= 0.0 || x > kLargestGamma) {
        throw Failure{kOutsideGamma};
    }
    const double value = MathFunctions::gammaOf(x);
    calc.display.SaveDisplay(kGammaDigits);
    replaceX(calc, {value, "â"_t});
}

void showFailure(Engine& calc, const Failure& failure) {
    if (failure.number() == kOutsideGamma) {
        calc.message(BoxKind::Stop, "Gamma Function", "Please enter a number between 0 and 170");
    } else {
        calc.message(
            BoxKind::Stop, "Factorial/Gamma Function Error!",
            "Error " + std::to_string(failure.code()) + " (" + std::string(description(failure.number())) + ")");
    }
    replaceX(calc, {"0", "No Data!"});
}

}  // namespace

double MathFunctions::productDownFrom(double n) {
    double product = n;
    for (double factor = n - 1.0; factor >= 1.0; factor -= 1.0) {
        product = checked(product * factor);
    }
    return product;
}

double MathFunctions::gammaOf(double x) {
    if (x < 1.0) {
        return stirling(x);
    }
    const double less = x - 1.0;
    return less == std::floor(less) ? productDownFrom(less) : gammaByPolynomial(less);
}

namespace {

template <typename Function>
void reported(Engine& calc, Function function) {
    const auto onFailure = [&](const Failure& failure) {
        if (failure.number() == FailureNumber::TypeMismatch && calc.s.stack.Xreg.isTagged()) {
            // A number of a base stays where it is, as with every other function.
            throw failure;
        }
        showFailure(calc, failure);
    };
    goOn(onFailure, function);
}

}  // namespace

void factorialOfX(Engine& calc) {
    reported(calc, [&] { factorial(calc, false); });
}

void factorialOfWholePart(Engine& calc) {
    reported(calc, [&] { factorial(calc, true); });
}

void gammaOfX(Engine& calc) {
    reported(calc, [&] { gamma(calc); });
}

}  // namespace tallyforge
