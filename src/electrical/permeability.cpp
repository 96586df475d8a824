// SPDX-License-Identifier: GPL-3.0-or-later
#include "electrical/permeability.h"

#include "numbers/checked_math.h"
#include "numbers/circle.h"

#include <algorithm>
#include <iterator>

namespace tallyforge {

namespace {

/// c0 + c1 B - c2 B^2 + c3 B^3, B in gauss.
struct FluxClass {
    double most = 0.0;  ///< the highest permeability that counts to the class
    double c0 = 0.0;
    double c1 = 0.0;
    double c2 = 0.0;
    double c3 = 0.0;
};

constexpr FluxClass kFluxClasses[] = {{42, 0.9995, 0.00001186, 0.000000005096, -0.000000000002727},
                                      {185.0 / 2.0, 0.999, 0.00001708, 0.000000006675, -0.000000000001792},
                                      {272.0 / 2.0, 0.999, 0.0000296, 0.00000001561, 0.00000000000082543},
                                      {373.0 / 2.0, 0.998, 0.00004393, 0.00000002591, 0.000000000003446},
                                      {250, 0.999, 0.00005145, 0.00000002688, 0.000000000003308},
                                      {333, 0.998, 0.00009038, 0.00000005112, 0.000000000007055},
                                      {kMostFluxPermeability, 0.991, 0.0004042, 0.000000224, 0.00000000003123}};

struct BiasLimit {
    double permeability = 0.0;
    double oersteds = 0.0;
};

constexpr BiasLimit kBiasLimits[] = {
    {20, 750}, {43, 400}, {93, 180}, {136, 85}, {186.5, 60}, {250, 50}, {kMostBiasBelowGap, 35}};
constexpr double kLeastOerstedsOfHighest = 0.01;
constexpr double kMostOerstedsOfHighest = 30.0;

double percentOfHighest(double oersteds) {
    constexpr double kHalfway = 0.04736836;
    const double field = power(oersteds, -1.8919818);
    return (98.30942 * field + kHalfway * 3.790382) / (field + kHalfway);
}

}  // namespace

double relativePermeability(double gauss, double permeability) {
    if (permeability < 0.0 || gauss < 0.0) {
        throw Failure{FailureNumber::InvalidArgument};
    }
    const auto* const found = std::find_if(std::begin(kFluxClasses), std::prev(std::end(kFluxClasses)),
                                           [permeability](const FluxClass& each) { return permeability <= each.most; });
    return found->c0 + gauss * (found->c1 + gauss * (-found->c2 + gauss * found->c3));
}

double permeabilityChangePercent(double gauss, double permeability) {
    return checked((relativePermeability(gauss, permeability) - 1.0) * 100.0);
}

double inductanceAtFlux(double gauss, double permeability, double turns, double areaPerLength) {
    constexpr double kHenriesPerSquareTurn = 1.2566370614359161e-8;  // 0.4 pi 1e-8, of cm
    return checked(kHenriesPerSquareTurn * permeability * relativePermeability(gauss, permeability) * turns * turns *
                   areaPerLength);
}

bool biasInRange(double oersteds, double permeability) {
    if (permeability == kHighestCore) {
        return oersteds >= kLeastOerstedsOfHighest && oersteds <= kMostOerstedsOfHighest;
    }
    const auto* const limit =
        std::find_if(std::begin(kBiasLimits), std::end(kBiasLimits),
                     [permeability](const BiasLimit& each) { return permeability <= each.permeability; });
    return limit != std::end(kBiasLimits) && oersteds >= 0.0 && oersteds <= limit->oersteds;
}

double permeabilityUnderBias(double oersteds, double permeability) {
    if (permeability == kHighestCore) {
        return percentOfHighest(oersteds);
    }
    constexpr double kA = -0.0001505F;
    constexpr double kB = 6.1e-9F;
    constexpr double kC = -0.0001277F;
    constexpr double kD = 2.74e-8F;
    const double mu = permeability;
    const double field = mu * oersteds;
    // The square of the permeability stands outside the root.
    return checked(100.0 * rootOf((1.0 + field * (kA + field * kB)) / (1.0 + field * (kC + field * kD))));
}

double permeabilityByInductance(double nanohenries, double pathLength, double area) {
    return quotient(nanohenries * pathLength, kFourPi * area);
}

double inductanceByPermeability(double permeability, double pathLength, double area) {
    return quotient(kFourPi * permeability * area, pathLength);
}

}  // namespace tallyforge
