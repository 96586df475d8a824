// SPDX-License-Identifier: GPL-3.0-or-later
#include "electrical/core_loss.h"

#include "numbers/checked_math.h"

#include <algorithm>
#include <limits>
#include <span>

namespace tallyforge {

namespace {

constexpr double kGaussPerKilogauss = 1000.0;

double loss(const LossCurve& curve, double kilohertz, double gauss) {
    return checked(curve.a * power(kilohertz, curve.c) * power(gauss / kGaussPerKilogauss, curve.d));
}

struct PermeabilityClass {
    double most = 0.0;  ///< the highest permeability that counts to the class
    LossCurve curve{};
};

// Classes 14, 26, 60, 125, 160, 200, 300 and 550.
constexpr PermeabilityClass kPowderClasses[] = {
    {20, {0.161, 1.331, 2.21}},   {43, {0.0638, 1.41, 2.18}},
    {92.5, {0.0365, 1.41, 2.24}}, {142.5, {0.0656, 1.4, 2.31}},
    {180, {0.0415, 1.5, 2.25}},   {250, {0.0534, 1.64, 2.27}},
    {400, {0.0528, 1.64, 2.27}},  {kMostPowderPermeability, {0.161, 1.59, 2.36}}};

constexpr double kNoEnd = std::numeric_limits<double>::infinity();

constexpr FrequencyRange kMaterialK[] = {
    {500, false, {0.053, 1.6, 3.15}}, {1000, false, {0.00113, 2.19, 3.1}}, {kNoEnd, false, {0.0000000017, 4.13, 2.98}}};
constexpr FrequencyRange kMaterialR[] = {
    {100, false, {0.074, 1.43, 2.85}}, {500, false, {0.036, 1.64, 2.68}}, {kNoEnd, false, {0.014, 1.84, 2.28}}};
constexpr FrequencyRange kMaterialP[] = {
    {100, false, {0.158, 1.36, 2.86}}, {500, false, {0.0434, 1.63, 2.62}}, {kNoEnd, false, {0.000000736, 3.47, 2.54}}};
constexpr FrequencyRange kMaterialF[] = {{10, false, {0.79, 1.06, 2.85}},
                                         {100, false, {0.0717, 1.72, 2.66}},
                                         {500, false, {0.0573, 1.66, 2.68}},
                                         {kNoEnd, false, {0.0126, 1.88, 2.29}}};
constexpr FrequencyRange kMaterialJ[] = {{20, true, {0.245, 1.39, 2.5}}, {kNoEnd, false, {0.00458, 2.42, 2.5}}};
constexpr FrequencyRange kMaterialW[] = {{20, true, {0.3, 1.26, 2.6}}, {kNoEnd, false, {0.00382, 2.32, 2.62}}};
constexpr FrequencyRange kMaterialH[] = {{20, true, {0.148, 1.5, 2.25}}, {kNoEnd, false, {0.135, 1.62, 2.15}}};

constexpr std::array<std::span<const FrequencyRange>, kFerriteMaterials.size()> kFerrites{
    kMaterialK, kMaterialR, kMaterialP, kMaterialF, kMaterialJ, kMaterialW, kMaterialH};

}  // namespace

double powderCoreLoss(double gauss, double kilohertz, double permeability) {
    if (permeability < 0.0) {
        throw Failure{FailureNumber::InvalidArgument};
    }
    const auto* const found =
        std::find_if(std::begin(kPowderClasses), std::prev(std::end(kPowderClasses)),
                     [permeability](const PermeabilityClass& each) { return permeability <= each.most; });
    return loss(found->curve, kilohertz, gauss);
}

std::span<const FrequencyRange> ferriteCurves(std::size_t material) {
    return kFerrites.at(material);
}

double ferriteCoreLoss(std::size_t material, double kilohertz, double gauss) {
    const std::span<const FrequencyRange> ranges = ferriteCurves(material);
    const auto found = std::find_if(ranges.begin(), std::prev(ranges.end()), [kilohertz](const FrequencyRange& range) {
        return range.endBelongs ? kilohertz <= range.end : kilohertz < range.end;
    });
    return loss(found->curve, kilohertz, gauss);
}

}  // namespace tallyforge
