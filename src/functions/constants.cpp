// SPDX-License-Identifier: GPL-3.0-or-later
#include "functions/constants.h"

#include "engine/engine.h"
#include "engine/results.h"
#include "functions/math_functions.h"
#include "platform/text.h"

#include <cmath>
#include <span>
#include <string_view>

namespace tallyforge {

namespace {

struct Constant {
    std::string_view label;
    double (*value)() = nullptr;
};

/// By mask from 0.
constexpr Constant kPiConstants[] = {
    {"ã"_t, [] { return kPi; }},
    {"1/ã"_t, [] { return 1.0 / kPi; }},
    {"ãý"_t, [] { return kPi * kPi; }},
    {"1/ãý"_t, [] { return 1.0 / (kPi * kPi); }},
    {"cubeRtã"_t, [] { return std::cbrt(kPi); }},
    {"1/CRã"_t, [] { return 1.0 / std::cbrt(kPi); }},
    {"2ã"_t, [] { return kTwoPi; }},
    {"1/2ã"_t, [] { return 1.0 / kTwoPi; }},
};

constexpr Constant kEConstants[] = {
    {"e", [] { return std::exp(1.0); }},    {"1/e", [] { return 1.0 / std::exp(1.0); }},
    {"eý"_t, [] { return std::exp(2.0); }}, {"1/eý"_t, [] { return 1.0 / std::exp(2.0); }},
    {"ûe"_t, [] { return std::exp(0.5); }}, {"1/ûe"_t, [] { return 1.0 / std::exp(0.5); }},
};

constexpr Constant kRoots[] = {
    {"û2"_t, [] { return std::sqrt(2.0); }},   {"1/û2"_t, [] { return 1.0 / std::sqrt(2.0); }},
    {"û3"_t, [] { return std::sqrt(3.0); }},   {"1/û3"_t, [] { return 1.0 / std::sqrt(3.0); }},
    {"û10"_t, [] { return std::sqrt(10.0); }}, {"1/û10"_t, [] { return 1.0 / std::sqrt(10.0); }},
};

constexpr Constant kRootsOfPi[] = {
    {"ûã"_t, [] { return std::sqrt(kPi); }},         {"1/ûã"_t, [] { return 1.0 / std::sqrt(kPi); }},
    {"û2ã"_t, [] { return std::sqrt(kTwoPi); }},     {"1/û2ã"_t, [] { return 1.0 / std::sqrt(kTwoPi); }},
    {"ûã/2"_t, [] { return std::sqrt(kPi / 2.0); }}, {"1/ûã/2"_t, [] { return 1.0 / std::sqrt(kPi / 2.0); }},
};

void push(Engine& calc, std::span<const Constant> constants) {
    if (calc.s.modifiers.ModifierMask >= constants.size()) {
        refuseModifiers(calc);
        return;
    }
    const Constant& chosen = constants[calc.s.modifiers.ModifierMask];
    pushOnX(calc, {chosen.value(), chosen.label});
}

}  // namespace

void piConstant(Engine& calc) {
    push(calc, kPiConstants);
}

void eConstant(Engine& calc) {
    push(calc, kEConstants);
}

void rootConstant(Engine& calc) {
    push(calc, kRoots);
}

void rootOfPiConstant(Engine& calc) {
    push(calc, kRootsOfPi);
}

}  // namespace tallyforge
