// SPDX-License-Identifier: GPL-3.0-or-later
#include "electrical/surface_keys.h"

#include "dialogs/unit_choice.h"
#include "electrical/temperature_rise.h"
#include "engine/engine.h"
#include "engine/results.h"
#include "numbers/checked_math.h"
#include "platform/text.h"

namespace tallyforge {

namespace {

constexpr std::uint8_t kHeightBit = 1;
constexpr std::uint8_t kAcrossBit = 2;  ///< the diameter of a cylinder, the length of a block
constexpr std::uint8_t kWidthBit = 4;
constexpr KeyInput kInputs[] = {{.mask = kCtrl, .bit = kHeightBit, .label = "Ht"},
                                {.mask = kAlt, .bit = kAcrossBit, .label = "L"},
                                {.mask = kCtrl + kAlt, .bit = kWidthBit, .label = "W"}};
constexpr KeySolution kCylinderSet[] = {{.bits = kHeightBit + kAcrossBit}};
constexpr KeySolution kBlockSet[] = {{.bits = kHeightBit + kAcrossBit + kWidthBit}};

constexpr double kSquareCentimetresPerSquareInch = 2.54 * 2.54;

}  // namespace

SurfaceKeys::SurfaceKeys(Engine& calculator) : calc(calculator), keys_{keyOf(Shape::Cylinder), keyOf(Shape::Block)} {}

MultiInput SurfaceKeys::keyOf(Shape shape) {
    MultiInput::Shape key{.resetLabel = "Reset", .inputs = kInputs};
    key.solutions = shape == Shape::Cylinder ? std::span<const KeySolution>(kCylinderSet) : kBlockSet;
    return {calc,
            key,
            {.label = [this](const KeyInput& input) { return labelOf(input); },
             .refuse = [this](const KeyInput& input, double&) { return refuse(input); },
             .solve = [this, shape](std::uint8_t, const InputValues& v) { return surface(shape, v); }}};
}

SurfaceKeys::Shape SurfaceKeys::shapeInForce() const {
    return chosenRow(kLmuShape, calc.units) == 1 ? Shape::Block : Shape::Cylinder;
}

void SurfaceKeys::clear() {
    for (MultiInput& key : keys_) {
        key.clear();
    }
}

void SurfaceKeys::surfaceAndTemperature() {
    const bool block = shapeInForce() == Shape::Block;
    // Dimensions of the other shape mean nothing for this one.
    keys_.at(block ? 0 : 1).clear();
    if (calc.s.modifiers.ModifierMask == 0 && calc.xNumber() != 0.0) {
        temperature();
    } else {
        keys_.at(block ? 1 : 0).press();
    }
}

std::string SurfaceKeys::labelOf(const KeyInput& input) const {
    const bool diameter = input.bit == kAcrossBit && shapeInForce() == Shape::Cylinder;
    return std::string(diameter ? "Dia" : input.label) + "(" +
           std::string(chosenUnit(kLmuSurfaceLength, calc.units).label) + ")";
}

std::optional<InputRefusal> SurfaceKeys::refuse(const KeyInput& input) const {
    if (input.bit != kWidthBit || shapeInForce() == Shape::Block) {
        return std::nullopt;
    }
    calc.message(BoxKind::Stop, "Cylinder Selected", "Width (Alt+Ctrl) not valid on cylinders.");
    return InputRefusal{};
}

std::vector<KeyResult> SurfaceKeys::surface(Shape shape, const InputValues& values) const {
    const double area = shape == Shape::Cylinder ? cylinderSurface(values[0], values[1])
                                                 : blockSurface(values[0], values[1], values[2]);
    return {{.value = area, .label = MapUnitText(chosenUnit(kLmuSurface, calc.units).label)}};
}

void SurfaceKeys::temperature() {
    const double scale = unitScale(kLmuSurface, calc.units) / kSquareCentimetresPerSquareInch;
    double rise = temperatureRise(calc.xNumber(), operandBelow(calc, 1) * scale);
    if (chosenRow(kLmuTemperature, calc.units) == 1) {
        // A quirk that is kept: the offset of the scale belongs to no rise.
        rise = checked(rise * 9.0 / 5.0 + 32.0);
    }
    writeTypedOperand(calc);
    replaceOperands(calc, 2, {rise, MapUnitText(chosenUnit(kLmuTemperature, calc.units).label)});
    chooseDigits(calc);
    clear();
}

}  // namespace tallyforge
