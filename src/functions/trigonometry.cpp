// SPDX-License-Identifier: GPL-3.0-or-later
#include "functions/trigonometry.h"

#include "engine/engine.h"
#include "engine/results.h"
#include "functions/math_functions.h"
#include "platform/text.h"

#include <array>
#include <cmath>
#include <cstddef>
#include <optional>
#include <string>
#include <string_view>

namespace tallyforge {

namespace {

using Function = double (*)(double);
/// A label for each AngleMode: degrees, radians, grads.
using UnitLabels = std::array<std::string_view, 3>;

std::string_view ofUnit(const UnitLabels& labels, AngleMode mode) {
    return labels.at(static_cast<std::size_t>(mode));
}

struct CircularKey {
    std::string_view label;
    Function function = nullptr;
    UnitLabels inverseLabels;
    std::optional<double> (*inverse)(double) = nullptr;
    std::string_view refusalTitle{};
};

constexpr CircularKey kSine{.label = "sin(x)",
                            .function = [](double x) { return std::sin(x); },
                            .inverseLabels = {"ASin(ø)"_t, "ASin(R)", "Asin(G)"},
                            .inverse = MathFunctions::ArcSin,
                            .refusalTitle = "ArcSin Error!"};
constexpr CircularKey kCosine{.label = "cos(x)",
                              .function = [](double x) { return std::cos(x); },
                              .inverseLabels = {"ACos(ø)"_t, "ACos(R)", "Acos(G)"},
                              .inverse = MathFunctions::ArcCos,
                              .refusalTitle = "Error!"};
constexpr CircularKey kTangent{.label = "tan(x)",
                               .function = [](double x) { return std::tan(x); },
                               .inverseLabels = {"ATan(ø)"_t, "ATan(R)", "Atan(Grad)"},
                               .inverse = [](double x) { return std::optional{std::atan(x)}; }};

/// Value of Xnum after an inverse function has refused its argument.
constexpr double kRefused = 1.0;

// The refused number stays on the stack, under a 0 that says so.
void refuse(Engine& calc, std::string_view title) {
    calc.message(BoxKind::Stop, title, "Number outside of range: ± 1"_t);
    calc.s.stack.Xnum = kRefused;
    pushOnX(calc, {ValueCell::zero(), "Error"});
}

void circular(Engine& calc, const CircularKey& key) {
    const AngleMode mode = calc.s.format.Angle;
    switch (calc.s.modifiers.ModifierMask) {
        case 0:
            replaceX(calc, {key.function(toRadians(calc.xNumber(), mode)), key.label});
            break;
        case kShift: {
            const double x = calc.xNumber();
            calc.s.stack.Xnum = 0.0;
            if (const auto angle = key.inverse(x)) {
                replaceX(calc, {fromRadians(*angle, mode), ofUnit(key.inverseLabels, mode)});
            } else {
                refuse(calc, key.refusalTitle);
            }
            break;
        }
        default:
            refuseModifiers(calc);
    }
}

struct ReciprocalKey {
    std::string_view head;  ///< label up to the unit
    UnitLabels units;
    Function function = nullptr;
    Function inverse = nullptr;
};

constexpr ReciprocalKey kSecant{
    .head = "Sec(", .units = {"ø"_t, "rad", "Grad"}, .function = MathFunctions::Sec, .inverse = MathFunctions::ArcSec};
constexpr ReciprocalKey kCotangent{
    .head = "Cot(", .units = {"ø"_t, "rad", "Grads"}, .function = MathFunctions::Cot, .inverse = MathFunctions::ArcCot};
constexpr ReciprocalKey kCosecant{
    .head = "Csc(", .units = {"ø"_t, "rad", "Grad"}, .function = MathFunctions::Csc, .inverse = MathFunctions::ArcCsc};

void reciprocalCircular(Engine& calc, const ReciprocalKey& key) {
    const AngleMode mode = calc.s.format.Angle;
    const std::string unit{ofUnit(key.units, mode)};
    switch (calc.s.modifiers.ModifierMask) {
        case 0: {
            const std::string label = std::string(key.head) + unit + ")";
            replaceX(calc, {key.function(toRadians(calc.xNumber(), mode)), label});
            break;
        }
        case kShift:
            replaceX(calc, {fromRadians(key.inverse(calc.xNumber()), mode), unit});
            break;
        default:
            refuseModifiers(calc);
    }
}

/// A function under each mask from 0.
struct MaskedFunction {
    std::string_view label;
    Function function = nullptr;
};

template <std::size_t Count>
void byMask(Engine& calc, const std::array<MaskedFunction, Count>& functions) {
    if (calc.s.modifiers.ModifierMask >= Count) {
        refuseModifiers(calc);
        return;
    }
    const MaskedFunction& chosen = functions.at(calc.s.modifiers.ModifierMask);
    replaceX(calc, {chosen.function(calc.xNumber()), chosen.label});
}

constexpr std::array<MaskedFunction, 4> kHyperbolicSine{{{"Sinh", MathFunctions::Sinh},
                                                         {"arcSinh", MathFunctions::ArcSinh},
                                                         {"Sech", MathFunctions::Sech},
                                                         {"arcSech", MathFunctions::ArcSech}}};
constexpr std::array<MaskedFunction, 4> kHyperbolicTangent{{{"Tanh", MathFunctions::Tanh},
                                                            {"arcTanh", MathFunctions::ArcTanh},
                                                            {"Coth", MathFunctions::Coth},
                                                            {"ArcCoth", MathFunctions::ArcCoth}}};
constexpr std::array<MaskedFunction, 4> kHyperbolicCosine{{{"Cosh", MathFunctions::Cosh},
                                                           {"ArcCosh", MathFunctions::ArcCosh},
                                                           {"Csch", MathFunctions::Csch},
                                                           {"ArcCsch", MathFunctions::ArcCsch}}};

constexpr std::array<MaskedFunction, 6> kAngleConversions{
    {{"Deg", MathFunctions::RadToDeg},
     {"Rad", MathFunctions::DegToRad},
     {"Grad", degreesToGrads},
     {"Deg", gradsToDegrees},
     {"Grad", [](double radians) { return fromRadians(radians, AngleMode::Grads); }},
     {"Rad", [](double grads) { return toRadians(grads, AngleMode::Grads); }}}};

constexpr UnitLabels kPolarAngle{"R>P(é)"_t, "R>P(Rad)", "R>P(Grad)"};

}  // namespace

void sine(Engine& calc) {
    circular(calc, kSine);
}

void cosine(Engine& calc) {
    circular(calc, kCosine);
}

void tangent(Engine& calc) {
    circular(calc, kTangent);
}

void secant(Engine& calc) {
    reciprocalCircular(calc, kSecant);
}

void cotangent(Engine& calc) {
    reciprocalCircular(calc, kCotangent);
}

void cosecant(Engine& calc) {
    reciprocalCircular(calc, kCosecant);
}

void hyperbolicSine(Engine& calc) {
    byMask(calc, kHyperbolicSine);
}

void hyperbolicCosine(Engine& calc) {
    byMask(calc, kHyperbolicCosine);
}

void hyperbolicTangent(Engine& calc) {
    byMask(calc, kHyperbolicTangent);
}

void convertAngle(Engine& calc) {
    byMask(calc, kAngleConversions);
}

void polarRectangular(Engine& calc) {
    const AngleMode mode = calc.s.format.Angle;
    switch (calc.s.modifiers.ModifierMask) {
        case 0: {
            const auto point = MathFunctions::PolarToRect(calc.xNumber(), operandBelow(calc, 1), mode);
            replaceWithPair(calc, 2, {point.jy, "P>R(jy)"}, {point.x, "P>R(x)"}, true);
            break;
        }
        case kShift: {
            const auto point = MathFunctions::RectToPolar(calc.xNumber(), operandBelow(calc, 1), mode);
            replaceWithPair(calc, 2, {point.theta, ofUnit(kPolarAngle, mode)}, {point.r, "R>P(r)"}, true);
            break;
        }
        default:
            refuseModifiers(calc);
    }
}

}  // namespace tallyforge
