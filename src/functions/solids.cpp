// SPDX-License-Identifier: GPL-3.0-or-later
#include "functions/solids.h"

#include "engine/engine.h"
#include "engine/results.h"
#include "functions/math_functions.h"
#include "numbers/checked_math.h"

#include <array>
#include <cmath>
#include <string_view>

namespace tallyforge {

namespace {

struct Sizes {
    double x = 0.0;       ///< height, or the only diameter
    double radius = 0.0;  ///< half of Y
    double top = 0.0;     ///< half of the element under Y
};

struct Quantity {
    std::string_view label;
    int operands = 1;
    double (*formula)(const Sizes&) = nullptr;
};

double cylinder(const Sizes& s) {
    return kPi * s.radius * s.radius * s.x;
}

double coneArea(const Sizes& s) {
    const double slant = std::sqrt(s.x * s.x + s.radius * s.radius);
    return kPi * (s.radius * s.radius + s.radius * slant);
}

double frustum(const Sizes& s) {
    return kPi * s.x * (s.top * s.top + s.top * s.radius + s.radius * s.radius) / 3.0;
}

double sphere(const Sizes& s) {
    const double radius = s.x / 2.0;
    return kFourPi * radius * radius * radius / 3.0;
}

// By Solid.
constexpr std::array<Quantity, 8> kQuantities{
    {{"V_Cyl", 2, cylinder},
     {"V_Fr", 3, frustum},
     {"V_Cone", 2, [](const Sizes& s) { return cylinder(s) / 3.0; }},
     {"A_Cone", 2, coneArea},
     {"V_Sphr", 1, sphere},
     {"A_Sphr", 1, [](const Sizes& s) { return kFourPi * (s.x / 2.0) * (s.x / 2.0); }},
     {"A_Cir", 1, [](const Sizes& s) { return kPi * (s.x / 2.0) * (s.x / 2.0); }},
     {"P_Cir", 1, [](const Sizes& s) { return kTwoPi * (s.x / 2.0); }}}};

}  // namespace

void solid(Engine& calc, Solid which) {
    const Quantity& chosen = kQuantities.at(static_cast<std::size_t>(which));
    Sizes sizes{.x = calc.xNumber()};
    if (chosen.operands > 1) {
        sizes.radius = operandBelow(calc, 1) / 2.0;
    }
    if (chosen.operands > 2) {
        sizes.top = operandBelow(calc, 2) / 2.0;
    }
    replaceOperands(calc, chosen.operands, {checked(chosen.formula(sizes)), chosen.label});
}

}  // namespace tallyforge
