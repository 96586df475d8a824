// SPDX-License-Identifier: GPL-3.0-or-later
#include "functions/constants.h"

#include "engine/engine.h"
#include "engine/results.h"
#include "functions/math_functions.h"
#include "platform/text.h"

#include <cmath>
#include <cstddef>
#include <iterator>
#include <string_view>

namespace tallyforge {

namespace {

struct ConstantRow {
    Constant which;
    std::string_view label;
    double (*value)() = nullptr;
};

constexpr ConstantRow kConstants[] = {
    {Constant::Pi, "ã"_t, [] { return kPi; }},
    {Constant::OneOverPi, "1/ã"_t, [] { return 1.0 / kPi; }},
    {Constant::PiSquared, "ãý"_t, [] { return kPi * kPi; }},
    {Constant::OneOverPiSquared, "1/ãý"_t, [] { return 1.0 / (kPi * kPi); }},
    {Constant::CubeRootOfPi, "cubeRtã"_t, [] { return std::cbrt(kPi); }},
    {Constant::OneOverCubeRootOfPi, "1/CRã"_t, [] { return 1.0 / std::cbrt(kPi); }},
    {Constant::TwoPi, "2ã"_t, [] { return kTwoPi; }},
    {Constant::OneOverTwoPi, "1/2ã"_t, [] { return 1.0 / kTwoPi; }},
    {Constant::E, "e", [] { return std::exp(1.0); }},
    {Constant::OneOverE, "1/e", [] { return 1.0 / std::exp(1.0); }},
    {Constant::ESquared, "eý"_t, [] { return std::exp(2.0); }},
    {Constant::OneOverESquared, "1/eý"_t, [] { return 1.0 / std::exp(2.0); }},
    {Constant::RootOfE, "ûe"_t, [] { return std::exp(0.5); }},
    {Constant::OneOverRootOfE, "1/ûe"_t, [] { return 1.0 / std::exp(0.5); }},
    {Constant::RootOf2, "û2"_t, [] { return std::sqrt(2.0); }},
    {Constant::OneOverRootOf2, "1/û2"_t, [] { return 1.0 / std::sqrt(2.0); }},
    {Constant::RootOf3, "û3"_t, [] { return std::sqrt(3.0); }},
    {Constant::OneOverRootOf3, "1/û3"_t, [] { return 1.0 / std::sqrt(3.0); }},
    {Constant::RootOf10, "û10"_t, [] { return std::sqrt(10.0); }},
    {Constant::OneOverRootOf10, "1/û10"_t, [] { return 1.0 / std::sqrt(10.0); }},
    {Constant::RootOfPi, "ûã"_t, [] { return std::sqrt(kPi); }},
    {Constant::OneOverRootOfPi, "1/ûã"_t, [] { return 1.0 / std::sqrt(kPi); }},
    {Constant::RootOfTwoPi, "û2ã"_t, [] { return std::sqrt(kTwoPi); }},
    {Constant::OneOverRootOfTwoPi, "1/û2ã"_t, [] { return 1.0 / std::sqrt(kTwoPi); }},
    {Constant::RootOfHalfPi, "ûã/2"_t, [] { return std::sqrt(kPi / 2.0); }},
    {Constant::OneOverRootOfHalfPi, "1/ûã/2"_t, [] { return 1.0 / std::sqrt(kPi / 2.0); }},
};

constexpr bool inOrder() {
    for (std::size_t i = 0; i < std::size(kConstants); ++i) {
        if (static_cast<std::size_t>(kConstants[i].which) != i) {
            return false;
        }
    }
    return true;
}
static_assert(inOrder(), "a constant is found by its place");

}  // namespace

void constant(Engine& calc, Constant which) {
    const ConstantRow& row = kConstants[static_cast<std::size_t>(which)];
    pushOnX(calc, {row.value(), row.label});
}

}  // namespace tallyforge
