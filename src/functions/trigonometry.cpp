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

// The refused number stays on the stack, under a 0 that says so.
void refuse(Engine& calc, std::string_view title) {
    calc.message(BoxKind::Stop, title, "Number outside of range: ± 1"_t);
    pushOnX(calc, {ValueCell::zero(), "Error"});
}

void direct(Engine& calc, const CircularKey& key) {
    replaceX(calc, {key.function(toRadians(calc.xNumber(), calc.s.format.Angle)), key.label});
}

void inverse(Engine& calc, const CircularKey& key) {
    const AngleMode mode = calc.s.format.Angle;
    const double x = calc.xNumber();
    if (const auto angle = key.inverse(x)) {
        replaceX(calc, {fromRadians(*angle, mode), ofUnit(key.inverseLabels, mode)});
    } else {
        refuse(calc, key.refusalTitle);
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

void direct(Engine& calc, const ReciprocalKey& key) {
    const AngleMode mode = calc.s.format.Angle;
    const std::string label = std::string(key.head) + std::string(ofUnit(key.units, mode)) + ")";
    replaceX(calc, {key.function(toRadians(calc.xNumber(), mode)), label});
}

void inverse(Engine& calc, const ReciprocalKey& key) {
    const AngleMode mode = calc.s.format.Angle;
    replaceX(calc, {fromRadians(key.inverse(calc.xNumber()), mode), ofUnit(key.units, mode)});
}

void ofX(Engine& calc, Function function, std::string_view label) {
    replaceX(calc, {function(calc.xNumber()), label});
}

constexpr UnitLabels kPolarAngle{"R>P(é)"_t, "R>P(Rad)", "R>P(Grad)"};

}  // namespace

void sine(Engine& calc) {
    direct(calc, kSine);
}

void arcSine(Engine& calc) {
    inverse(calc, kSine);
}

void cosine(Engine& calc) {
    direct(calc, kCosine);
}

void arcCosine(Engine& calc) {
    inverse(calc, kCosine);
}

void tangent(Engine& calc) {
    direct(calc, kTangent);
}

void arcTangent(Engine& calc) {
    inverse(calc, kTangent);
}

void secant(Engine& calc) {
    direct(calc, kSecant);
}

void arcSecant(Engine& calc) {
    inverse(calc, kSecant);
}

void cotangent(Engine& calc) {
    direct(calc, kCotangent);
}

void arcCotangent(Engine& calc) {
    inverse(calc, kCotangent);
}

void cosecant(Engine& calc) {
    direct(calc, kCosecant);
}

void arcCosecant(Engine& calc) {
    inverse(calc, kCosecant);
}

void hyperbolicSine(Engine& calc) {
    ofX(calc, MathFunctions::Sinh, "Sinh");
}

void arcHyperbolicSine(Engine& calc) {
    ofX(calc, MathFunctions::ArcSinh, "arcSinh");
}

void hyperbolicSecant(Engine& calc) {
    ofX(calc, MathFunctions::Sech, "Sech");
}

void arcHyperbolicSecant(Engine& calc) {
    ofX(calc, MathFunctions::ArcSech, "arcSech");
}

void hyperbolicTangent(Engine& calc) {
    ofX(calc, MathFunctions::Tanh, "Tanh");
}

void arcHyperbolicTangent(Engine& calc) {
    ofX(calc, MathFunctions::ArcTanh, "arcTanh");
}

void hyperbolicCotangent(Engine& calc) {
    ofX(calc, MathFunctions::Coth, "Coth");
}

void arcHyperbolicCotangent(Engine& calc) {
    ofX(calc, MathFunctions::ArcCoth, "ArcCoth");
}

void hyperbolicCosine(Engine& calc) {
    ofX(calc, MathFunctions::Cosh, "Cosh");
}

void arcHyperbolicCosine(Engine& calc) {
    ofX(calc, MathFunctions::ArcCosh, "ArcCosh");
}

void hyperbolicCosecant(Engine& calc) {
    ofX(calc, MathFunctions::Csch, "Csch");
}

void arcHyperbolicCosecant(Engine& calc) {
    ofX(calc, MathFunctions::ArcCsch, "ArcCsch");
}

void showRadiansToDegrees(Engine& calc) {
    ofX(calc, MathFunctions::RadToDeg, "Deg");
}

void showDegreesToRadians(Engine& calc) {
    ofX(calc, MathFunctions::DegToRad, "Rad");
}

void showDegreesToGrads(Engine& calc) {
    ofX(calc, degreesToGrads, "Grad");
}

void showGradsToDegrees(Engine& calc) {
    ofX(calc, gradsToDegrees, "Deg");
}

void showRadiansToGrads(Engine& calc) {
    ofX(
        calc, [](double radians) { return fromRadians(radians, AngleMode::Grads); }, "Grad");
}

void showGradsToRadians(Engine& calc) {
    ofX(
        calc, [](double grads) { return toRadians(grads, AngleMode::Grads); }, "Rad");
}

void polarToRectangular(Engine& calc) {
    const auto point = MathFunctions::PolarToRect(calc.xNumber(), operandBelow(calc, 1), calc.s.format.Angle);
    replaceWithPair(calc, 2, {point.jy, "P>R(jy)"}, {point.x, "P>R(x)"}, true);
}

void rectangularToPolar(Engine& calc) {
    const AngleMode mode = calc.s.format.Angle;
    const auto point = MathFunctions::RectToPolar(calc.xNumber(), operandBelow(calc, 1), mode);
    replaceWithPair(calc, 2, {point.theta, ofUnit(kPolarAngle, mode)}, {point.r, "R>P(r)"}, true);
}

}  // namespace tallyforge
