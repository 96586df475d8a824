// SPDX-License-Identifier: GPL-3.0-or-later
//
// Reactance, capacitance, inductance and the frequency at which the two reactances are equal. Base
// units are ohms, farads, henries and hertz.
#include "calculators/calculators.h"
#include "calculators/careful.h"
#include "calculators/pictures.h"
#include "numbers/circle.h"

namespace tallyforge {

namespace {

enum Field : std::int8_t { X, C, L, F };

constexpr std::array<Quantity, 4> kFields{{
    {.symbol = "X", .name = "Reactance", .bit = 1, .modifiers = kShift, .units = &kLcX},
    {.symbol = "C", .name = "Capacitance", .bit = 2, .modifiers = kCtrl, .units = &kLcC},
    {.symbol = "L", .name = "Inductance", .bit = 4, .modifiers = kAlt, .units = &kLcL},
    {.symbol = "F", .name = "Resonant frequency", .bit = 8, .modifiers = kCtrl | kAlt, .units = &kLcF},
}};
constexpr std::array<UnitArray, 4> kUnits{{{"OptX", "Reactance", &kLcX},
                                           {"OptCap", "Capacitance", &kLcC},
                                           {"OptL", "Inductance", &kLcL},
                                           {"OptFreq", "Frequency", &kLcF}}};

/// Frequency at which L and C resonate (Thomson).
double resonance(double inductance, double capacitance) {
    return quotient(1.0, kTwoPi * rootOfProduct(inductance, capacitance));
}

// X = w·L = 1 / (w·C), with w = 2 pi F.
constexpr std::array<Solution, 6> kSolutions{{
    {.given = 6,
     .solved = solves(X, F),
     .relation = "F = 1 / (2 pi sqrt(L · C)), X = 2 pi F · L"_t,
     .solve =
         [](Values& v) {
             v[F] = resonance(v[L], v[C]);
             v[X] = checked(kTwoPi * v[F] * v[L]);
         }},
    {.given = 12,
     .solved = solves(C, X),
     .relation = "C = 1 / ((2 pi F)² · L), X = 2 pi F · L"_t,
     .solve =
         [](Values& v) {
             v[C] = quotient(overSquare(1.0, kTwoPi * v[F]), v[L]);
             v[X] = checked(kTwoPi * v[F] * v[L]);
         }},
    {.given = 10,
     .solved = solves(L, X),
     .relation = "L = 1 / ((2 pi F)² · C), X = 2 pi F · L"_t,
     .solve =
         [](Values& v) {
             v[L] = quotient(overSquare(1.0, kTwoPi * v[F]), v[C]);
             v[X] = quotient(1.0, kTwoPi * v[F] * v[C]);
         }},
    {.given = 5,
     .solved = solves(C, F),
     .relation = "F = X / (2 pi L), C = L / X²"_t,
     .solve =
         [](Values& v) {
             v[F] = quotient(v[X], kTwoPi * v[L]);
             v[C] = overSquare(v[L], v[X]);
         }},
    {.given = 3,
     .solved = solves(L, F),
     .relation = "F = 1 / (2 pi X · C), L = X² · C"_t,
     .solve =
         [](Values& v) {
             v[F] = quotient(1.0, kTwoPi * v[X] * v[C]);
             v[L] = squareTimes(v[X], v[C]);
         }},
    {.given = 9,
     .solved = solves(L, C),
     .relation = "L = X / (2 pi F), C = 1 / (2 pi F · X)"_t,
     .solve =
         [](Values& v) {
             v[L] = quotient(v[X], kTwoPi * v[F]);
             v[C] = quotient(1.0, kTwoPi * v[F] * v[X]);
         }},
}};

}  // namespace

const CalculatorTable kResonantFrequency{
    .form = "frmResFreq",
    .title = "Resonant Frequency Calculator",
    .name = "Resonant Frequency",
    .procedure = "calcResf",
    .helpTopic = 1340,
    .fields = kFields,
    .units = kUnits,
    .solutions = kSolutions,
    .countsFromSolved = true,
    .picture = resonancePicture,
    // 1 µF and 25.33 mH at 1 kHz.
    .example = {kTwoPi * 1000.0 * 0.0253302959105844428, 1e-6, 0.0253302959105844428, 1000.0},
};

}  // namespace tallyforge
