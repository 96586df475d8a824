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

struct StepRow {
    double (*from)(double) = nullptr;
    std::string_view label{};
};

// By WaveStep.
constexpr std::array<StepRow, 10> kSteps{
    {{wavelengthOrFrequency, "Hz"},
     {wavelengthOrFrequency, "m"},
     {periodOfWavelength, "s"},
     {wavelengthOfPeriod, "m"},
     {periodOrFrequency, "s"},
     {periodOrFrequency, "Hz"},
     {angularFrequency, "2ãf"_t},
     {[](double hertz) { return quotient(1.0, angularFrequency(hertz)); }, "1/2ãf"_t},
     {[](double hertz) { return power(angularFrequency(hertz), 2.0); }, "(2ãf)ý"_t},
     {[](double hertz) { return quotient(1.0, power(angularFrequency(hertz), 2.0)); }, "1/(2ãf)ý"_t}}};

}  // namespace

void wave(Engine& calc, WaveStep which) {
    const StepRow& step = kSteps.at(static_cast<std::size_t>(which));
    replaceX(calc, {step.from(calc.xNumber()), step.label});
}

void levelOfPowers(Engine& calc) {
    const double level = decibelsOfPower(operandBelow(calc, 1), calc.xNumber());
    writeTypedOperand(calc);
    calc.display.SaveDisplay(2);
    replaceWithPair(calc, 2, {level, "dBw"}, {2.0 * level, "dBv"});
    calc.commit.AutoDigits();
}

void levelOfVoltages(Engine& calc) {
    const double level =
        decibelsOfVoltage(operandBelow(calc, 3), operandBelow(calc, 2), operandBelow(calc, 1), calc.xNumber());
    writeTypedOperand(calc);
    constexpr int kOperands = 4;
    replaceOperands(calc, kOperands, {level, "dBv"});
    chooseDigits(calc);
}

}  // namespace tallyforge
