// SPDX-License-Identifier: GPL-3.0-or-later
#include "electrical/coils.h"

#include "numbers/checked_math.h"
#include "numbers/circle.h"

namespace tallyforge {

namespace {

// In the order of kCoilPermeabilities.
constexpr std::array<LossFactors, kCoilPermeabilities.size()> kLossFactors{{
    {0.012, 0.000000027, 0.0000015, 0.000088},
    {0.012, 0.00000003, 0.0000008, 0.00003},
    {0.012, 0.000000025, 0.0000007, 0.000021},
    {0.012, 0.00000002, 0.0000008, 0.000023},
    {0.012, 0.000000017, 0.0000009, 0.000025},
    {0.012, 0.000000016, 0.0000009, 0.000028},
    {0.09, 0.0000000065, 0.000007, 0.000143},
    {0.075, 0.000000007, 0.000004, 0.000096},
    {0.042, 0.0000000075, 0.0000015, 0.00005},
    {0.012, 0.000000015, 0.0000009, 0.000032},
}};

double toroidFeet(double outer, double inner, double height) {
    constexpr double kSlenderAbove = 1.2;
    const double section = 2.0 * height + outer - inner;
    const double slenderness = quotient(height, inner);
    return slenderness > kSlenderAbove ? (0.0902 - 0.00214 * slenderness) * section
                                       : (0.1038 - 0.0151 * slenderness) * section;
}

}  // namespace

double solenoidInductance(double turns, double radius, double length, double unitsPerInch) {
    const double product = checked(radius * turns);
    return checked(quotient(product * product, (10.0 * length + 9.0 * radius) * unitsPerInch));
}

double solenoidTurns(double microhenries, double radius, double length, double unitsPerInch) {
    return quotient(rootOf(microhenries * (10.0 * length + 9.0 * radius) * unitsPerInch), radius);
}

const LossFactors& coilLossFactors(std::size_t row) {
    return kLossFactors.at(row);
}

double coilQ(std::size_t row, const CoilLosses& coil) {
    const LossFactors& factors = coilLossFactors(row);
    const double w = kTwoPi * coil.hertz;
    const double winding = w * w * w * factors.a * coil.henries * coil.henries * coil.farads;
    const double core = (factors.c * coil.gauss + factors.d + factors.b * coil.hertz) * kCoilPermeabilities.at(row) *
                        coil.henries * coil.hertz;
    return quotient(checked(w * coil.henries), checked(core + coil.dcOhms + winding));
}

double meanTurnFeet(TurnShape shape, double a, double b, double c) {
    constexpr double kInchesPerFoot = 12.0;
    switch (shape) {
        case TurnShape::Toroid:
            return checked(toroidFeet(a, b, c));
        case TurnShape::Rectangular:
            return checked((2.0 * b + 2.0 * a + kPi * c) / kInchesPerFoot);
        case TurnShape::Round:
            break;
    }
    return checked((b + a) * kPi / (2.0 * kInchesPerFoot));
}

}  // namespace tallyforge
