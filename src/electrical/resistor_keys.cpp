// SPDX-License-Identifier: GPL-3.0-or-later
#include "electrical/resistor_keys.h"

#include "dialogs/unit_choice.h"
#include "electrical/resistors.h"
#include "engine/engine.h"
#include "engine/results.h"
#include "platform/text.h"

#include <array>

namespace tallyforge {

namespace {

constexpr KeyInput kResistors[] = {{.mask = 0, .bit = 1, .label = "RT"},
                                   {.mask = kCtrl, .bit = 2, .label = "R1"},
                                   {.mask = kAlt, .bit = 4, .label = "R2"}};
constexpr KeySolution kThirdResistor[] = {
    {.bits = 3, .label = "R2", .solve = [](const InputValues& v) { return parallelOther(v[0], v[1]); }},
    {.bits = 5, .label = "R1", .solve = [](const InputValues& v) { return parallelOther(v[0], v[2]); }},
    {.bits = 6, .label = "RT", .solve = [](const InputValues& v) { return parallelTotal(v[1], v[2]); }}};
constexpr MultiInput::Shape kParallel{.resetLabel = "Reset RT",
                                      .resetBit = ResetBit::ParallelResistors,
                                      .inputs = kResistors,
                                      .solutions = kThirdResistor};

constexpr std::uint8_t kLengthBit = 2;
constexpr std::uint8_t kAreaBit = 4;
constexpr KeyInput kRhoInputs[] = {
    {.mask = 0, .bit = 1, .label = "rho"}, {.mask = kCtrl, .bit = kLengthBit}, {.mask = kAlt, .bit = kAreaBit}};
constexpr KeySolution kResistance[] = {{.bits = 7}};
constexpr MultiInput::Shape kRho{.resetLabel = "Reset rho", .inputs = kRhoInputs, .solutions = kResistance};

constexpr KeyInput kParts[] = {{.mask = 0, .bit = 1, .label = "xb"},
                               {.mask = kCtrl, .bit = 2, .label = "jyb"},
                               {.mask = kAlt, .bit = 4, .label = "xa"},
                               {.mask = kCtrl + kAlt, .bit = 8, .label = "jya"}};
constexpr KeySolution kTotal[] = {{.bits = 15}};
constexpr MultiInput::Shape kImpedance{
    .resetLabel = "Reset ZyZ", .resetBit = ResetBit::ParallelImpedance, .inputs = kParts, .solutions = kTotal};

constexpr std::string_view angleLabelOf(AngleMode mode) {
    switch (mode) {
        case AngleMode::Radians:
            return "(Rad)";
        case AngleMode::Grads:
            return "(Grad)";
        case AngleMode::Degrees:
            break;
    }
    return "(Deg)";
}

}  // namespace

ResistorKeys::ResistorKeys(Engine& calculator)
    : calc(calculator),
      parallel_(calculator, kParallel),
      rho_(calculator, kRho,
           {.label = [this](const KeyInput& input) { return rhoLabel(input); },
            .solve = [this](std::uint8_t, const InputValues& v) { return resistance(v); }}),
      impedance_(calculator, kImpedance,
                 {.solve = [this](std::uint8_t, const InputValues& v) { return impedance(v); }}) {}

void ResistorKeys::parallelResistors() {
    parallel_.press();
}

void ResistorKeys::minimumLossPad() {
    const MinimumLossPad pad = tallyforge::minimumLossPad(operandBelow(calc, 1), calc.xNumber());
    writeTypedOperand(calc);
    calc.display.SaveDisplay(2);
    replaceWithPair(calc, 2, {pad.series, "R1"}, {pad.shunt, "R2"});
    calc.commit.PushResult();
    pushOnX(calc, {pad.lossInDb, "dB"});
    calc.commit.AutoDigits();
}

void ResistorKeys::resistivity() {
    rho_.press();
}

std::string ResistorKeys::rhoLabel(const KeyInput& input) const {
    const auto unit = [this](const UnitRange& range) { return MapUnitText(chosenUnit(range, calc.units).label); };
    switch (input.bit) {
        case kLengthBit:
            return "L(" + unit(kOhmLength) + ")";
        case kAreaBit:
            return "A(" + unit(kOhmArea) + ")";
        default:
            return std::string(input.label);
    }
}

std::vector<KeyResult> ResistorKeys::resistance(const InputValues& values) const {
    const auto row = static_cast<std::size_t>(chosenRow(kOhmLength, calc.units).value_or(0));
    return {{.value = resistanceOf(values[0], values[1], values[2], kResistivityFactors.at(row)),
             .label = std::string("R, ê"_t)}};
}

void ResistorKeys::parallelImpedance() {
    impedance_.press();
}

std::vector<KeyResult> ResistorKeys::impedance(const InputValues& values) const {
    const AngleMode mode = calc.s.format.Angle;
    const Impedance z = tallyforge::parallelImpedance(values[2], values[3], values[0], values[1], mode);
    return {{.value = z.angle, .label = std::string(angleLabelOf(mode))},
            {.value = z.magnitude, .label = "(Mag)"},
            {.value = z.imaginary, .label = "(jy)"},
            {.value = z.real, .label = "(x+)"}};
}

}  // namespace tallyforge
