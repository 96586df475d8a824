// SPDX-License-Identifier: GPL-3.0-or-later
#include "electrical/flux_keys.h"

#include "electrical/flux.h"
#include "engine/engine.h"
#include "engine/results.h"
#include "platform/text.h"

#include <array>
#include <string_view>

namespace tallyforge {

namespace {

constexpr LineLook kBySize{.bySize = true};

constexpr KeyInput kVoltSecondInputs[] = {{.mask = 0, .bit = 1, .label = "ít"_t},
                                          {.mask = kCtrl, .bit = 2, .label = "turns"},
                                          {.mask = kAlt, .bit = 4, .label = "V-S"}};
constexpr KeySolution kVoltSecondResults[] = {
    {.bits = 3, .label = "V-S", .solve = [](const InputValues& v) { return voltSeconds(v[0], v[1]); }},
    {.bits = 5, .label = "turns", .solve = [](const InputValues& v) { return otherOfVoltSeconds(v[2], v[0]); }},
    {.bits = 6, .label = "ít"_t, .solve = [](const InputValues& v) { return otherOfVoltSeconds(v[2], v[1]); }}};
constexpr MultiInput::Shape kVoltSecondShape{.resetLabel = "Reset Ní"_t,
                                             .resetBit = ResetBit::VoltSeconds,
                                             .inputs = kVoltSecondInputs,
                                             .solutions = kVoltSecondResults,
                                             .givenLook = kBySize,
                                             .echoLook = kBySize};

constexpr KeyInput kCapacityInputs[] = {{.mask = 0, .bit = 1, .label = "ít"_t},
                                        {.mask = kCtrl, .bit = 2, .label = "turns"},
                                        {.mask = kAlt, .bit = 4, .label = "F(Hz)"},
                                        {.mask = kCtrl + kAlt, .bit = 8, .label = "E(v)"}};
constexpr KeySolution kCapacityResults[] = {
    {.bits = 7, .label = "E(v)", .solve = [](const InputValues& v) { return sineVolts(v[0], v[2], v[1]); }},
    {.bits = 11, .label = "F(Hz)", .solve = [](const InputValues& v) { return otherOfSineVolts(v[3], v[0], v[1]); }},
    {.bits = 13, .label = "turns", .solve = [](const InputValues& v) { return otherOfSineVolts(v[3], v[0], v[2]); }},
    {.bits = 14, .label = "ít"_t, .solve = [](const InputValues& v) { return otherOfSineVolts(v[3], v[2], v[1]); }}};
constexpr MultiInput::Shape kCapacityShape{.resetLabel = "Reset Flux Cap.",
                                           .resetBit = ResetBit::FluxCapacity,
                                           .inputs = kCapacityInputs,
                                           .solutions = kCapacityResults,
                                           .echoLook = {.digits = 3, .bySize = true}};

/// X and Y of half a cycle with the form factor k.
struct FluxStep {
    double (*of)(double x, double y, double k) = nullptr;
    double formFactor = kSineHalfCycle;
    std::string_view label{};
};

double ratio(double x, double y, double k) {
    return quotient(x * k, y);
}

double volts(double x, double y, double k) {
    return checked(y * x / k);
}

// By HalfWave.
constexpr std::array<FluxStep, 6> kWaveSteps{{{ratio, kSineHalfCycle, "V-S"},
                                              {volts, kSineHalfCycle, "E(V)"},
                                              {ratio, kSquareHalfCycle, "V-S"},
                                              {volts, kSquareHalfCycle, "E(V)"},
                                              {ratio, kSineHalfCycle, "F(Hz)"},
                                              {ratio, kSquareHalfCycle, "F(Hz)"}}};

}  // namespace

FluxKeys::FluxKeys(Engine& calculator)
    : voltSeconds_(calculator, kVoltSecondShape), capacity_(calculator, kCapacityShape) {}

void FluxKeys::voltSecondTurns() {
    voltSeconds_.press();
}

void FluxKeys::fluxCapacity() {
    capacity_.press();
}

void densityOfFlux(Engine& calc) {
    replaceOperands(calc, 2, {fluxDensity(calc.xNumber(), operandBelow(calc, 1)), "Bm"});
    chooseDigits(calc);
}

void fluxOfDensity(Engine& calc) {
    replaceOperands(calc, 2, {fluxOfDensity(calc.xNumber(), operandBelow(calc, 1)), "ít"_t});
    chooseDigits(calc);
}

void halfWave(Engine& calc, HalfWave which) {
    const FluxStep& step = kWaveSteps.at(static_cast<std::size_t>(which));
    replaceOperands(calc, 2, {step.of(calc.xNumber(), operandBelow(calc, 1), step.formFactor), step.label});
    chooseDigits(calc);
}

}  // namespace tallyforge
