// SPDX-License-Identifier: GPL-3.0-or-later
#include "electrical/wave_keys.h"

#include "electrical/waves.h"
#include "engine/engine.h"
#include "engine/results.h"
#include "numbers/checked_math.h"
#include "platform/text.h"

#include <array>
#include <string_view>

namespace tallyforge {

namespace {

struct WaveStep {
    double (*from)(double) = nullptr;  ///< none under modifiers without a meaning
    std::string_view label{};
};

// By the modifier mask.
constexpr std::array<WaveStep, 8> kWaveSteps{{{wavelengthOrFrequency, "Hz"},
                                              {wavelengthOrFrequency, "m"},
                                              {periodOfWavelength, "s"},
                                              {wavelengthOfPeriod, "m"},
                                              {periodOrFrequency, "s"},
                                              {},
                                              {periodOrFrequency, "Hz"},
                                              {}}};

constexpr std::array<WaveStep, 4> kAngularSteps{
    {{angularFrequency, "2ãf"_t},
     {[](double hertz) { return quotient(1.0, angularFrequency(hertz)); }, "1/2ãf"_t},
     {[](double hertz) { return power(angularFrequency(hertz), 2.0); }, "(2ãf)ý"_t},
     {[](double hertz) { return quotient(1.0, power(angularFrequency(hertz), 2.0)); }, "1/(2ãf)ý"_t}}};

template <std::size_t Steps>
void take(Engine& calc, const std::array<WaveStep, Steps>& steps) {
    const std::size_t mask = calc.s.modifiers.ModifierMask;
    if (mask >= Steps || steps.at(mask).from == nullptr) {
        refuseModifiers(calc);
        return;
    }
    replaceX(calc, {steps.at(mask).from(calc.xNumber()), steps.at(mask).label});
}

void powers(Engine& calc) {
    const double level = decibelsOfPower(operandBelow(calc, 1), calc.xNumber());
    writeTypedOperand(calc);
    calc.display.SaveDisplay(2);
    replaceWithPair(calc, 2, {level, "dBw"}, {2.0 * level, "dBv"});
    calc.commit.AutoDigits();
}

void voltages(Engine& calc) {
    const double level =
        decibelsOfVoltage(operandBelow(calc, 3), operandBelow(calc, 2), operandBelow(calc, 1), calc.xNumber());
    writeTypedOperand(calc);
    constexpr int kOperands = 4;
    replaceOperands(calc, kOperands, {level, "dBv"});
    chooseDigits(calc);
}

}  // namespace

void wavelength(Engine& calc) {
    take(calc, kWaveSteps);
}

void angularFrequencyKey(Engine& calc) {
    take(calc, kAngularSteps);
}

void decibels(Engine& calc) {
    switch (calc.s.modifiers.ModifierMask) {
        case 0:
            powers(calc);
            break;
        case kShift:
            voltages(calc);
            break;
        default:
            refuseModifiers(calc);
    }
}

}  // namespace tallyforge
