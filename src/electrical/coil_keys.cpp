// SPDX-License-Identifier: GPL-3.0-or-later
#include "electrical/coil_keys.h"

#include "dialogs/unit_choice.h"
#include "engine/engine.h"
#include "platform/text.h"

#include <span>

namespace tallyforge {

namespace {

constexpr LineLook kBySize{.bySize = true};

constexpr KeyInput kSolenoidInputs[] = {{.mask = 0, .bit = 1, .label = "æH"_t},
                                        {.mask = kCtrl, .bit = 2, .label = "turns"},
                                        {.mask = kAlt, .bit = 4, .label = "radius"},
                                        {.mask = kCtrl + kAlt, .bit = 8, .label = "length"}};
constexpr std::uint8_t kForTurns = 1 + 4 + 8;
constexpr std::uint8_t kForInductance = 2 + 4 + 8;
constexpr KeySolution kSolenoidSets[] = {
    {.bits = kForTurns}, {.bits = kForInductance}, {.bits = 1 + 2 + 4}, {.bits = 1 + 2 + 8}};
constexpr MultiInput::Shape kSolenoid{.resetLabel = "Reset Ls",
                                      .resetBit = ResetBit::Solenoid,
                                      .inputs = kSolenoidInputs,
                                      .solutions = kSolenoidSets,
                                      .givenLook = kBySize,
                                      .echoLook = kBySize};

constexpr std::uint8_t kFrequencyBit = 1;
constexpr std::uint8_t kInductanceBit = 4;
constexpr KeyInput kQualityInputs[] = {{.mask = 0, .bit = kFrequencyBit},
                                       {.mask = kCtrl, .bit = 2, .label = "Rdc"},
                                       {.mask = kAlt, .bit = kInductanceBit},
                                       {.mask = kCtrl + kAlt, .bit = 8, .label = "Bm(g)"}};
constexpr KeySolution kQualitySet[] = {{.bits = 15}};
constexpr MultiInput::Shape kQuality{.resetLabel = "Reset Q",
                                     .resetBit = ResetBit::Quality,
                                     .inputs = kQualityInputs,
                                     .solutions = kQualitySet,
                                     .givenLook = kBySize,
                                     .echoLook = kBySize};

constexpr KeyInput kToroidInputs[] = {{.mask = 0, .bit = 1, .label = "OD"},
                                      {.mask = kCtrl, .bit = 2, .label = "ID"},
                                      {.mask = kAlt, .bit = 4, .label = "HT"}};
constexpr KeyInput kRectangularInputs[] = {{.mask = 0, .bit = 1, .label = "Length"},
                                           {.mask = kCtrl, .bit = 2, .label = "Width"},
                                           {.mask = kAlt, .bit = 4, .label = "HT"}};
constexpr KeyInput kRoundInputs[] = {{.mask = 0, .bit = 1, .label = "OD"}, {.mask = kCtrl, .bit = 2, .label = "ODw"}};
constexpr KeySolution kThreeDimensions[] = {{.bits = 7}};
constexpr KeySolution kTwoDimensions[] = {{.bits = 3}};

/// A unit of a winding's dimensions: how many inches it makes, and how many of it a foot.
struct TurnUnit {
    double inches = 1.0;
    double perFoot = 12.0;
};
// By the rows of the unit: mm, cm, in.
constexpr std::array<TurnUnit, 3> kTurnUnits{{{0.0393701, 304.8}, {0.393701, 30.48}, {1.0, 12.0}}};

MultiInput::Shape meanTurnShape(TurnShape shape) {
    const bool round = shape == TurnShape::Round;
    MultiInput::Shape key{.resetLabel = "Reset MTL", .resetBit = ResetBit::None};
    key.inputs = round                             ? std::span<const KeyInput>(kRoundInputs)
                 : shape == TurnShape::Rectangular ? std::span<const KeyInput>(kRectangularInputs)
                                                   : std::span<const KeyInput>(kToroidInputs);
    key.solutions = round ? std::span<const KeySolution>(kTwoDimensions) : kThreeDimensions;
    return key;
}

}  // namespace

CoilKeys::CoilKeys(Engine& calculator, const ElectricalChoices& electricalChoices)
    : calc(calculator),
      choices(electricalChoices),
      solenoid_(calculator, kSolenoid,
                {.solve = [this](std::uint8_t bits, const InputValues& v) { return solenoidResult(bits, v); }}),
      quality_(calculator, kQuality,
               {.label = [this](const KeyInput& input) { return qualityLabel(input); },
                .refuse = [this](const KeyInput&, double&) { return withoutPermeability(); },
                .solve = [this](std::uint8_t, const InputValues& v) { return qualityResult(v); }}),
      meanTurn_{meanTurnKey(TurnShape::Toroid), meanTurnKey(TurnShape::Rectangular), meanTurnKey(TurnShape::Round)} {}

void CoilKeys::solenoid() {
    solenoid_.press();
}

std::vector<KeyResult> CoilKeys::solenoidResult(std::uint8_t bits, const InputValues& values) const {
    const double unitsPerInch = 1.0 / unitScale(kMagLen, calc.units);
    switch (bits) {
        case kForTurns:
            return {{.value = solenoidTurns(values[0], values[2], values[3], unitsPerInch), .label = "turns"}};
        case kForInductance:
            return {{.value = solenoidInductance(values[1], values[2], values[3], unitsPerInch),
                     .label = std::string("æH"_t)}};
        default:
            calc.message(BoxKind::Stop, "error!", "Solve for n or Ls only!");
            return {};
    }
}

void CoilKeys::quality() {
    quality_.press();
}

std::optional<InputRefusal> CoilKeys::withoutPermeability() const {
    if (choices.coilPermeability) {
        return std::nullopt;
    }
    calc.message(BoxKind::Stop, "OOPS!", "Right Click the 'Q' Button and select a permeability!");
    return InputRefusal{};
}

std::string CoilKeys::qualityLabel(const KeyInput& input) const {
    switch (input.bit) {
        case kFrequencyBit:
            return "F(" + std::string(chosenUnit(kCoreQF, calc.units).label) + ")";
        case kInductanceBit:
            return "L(" + MapUnitText(chosenUnit(kCoreQL, calc.units).label) + ")";
        default:
            return std::string(input.label);
    }
}

std::vector<KeyResult> CoilKeys::qualityResult(const InputValues& values) const {
    constexpr double kPicofarad = 1e-12;
    const CoilLosses coil{.hertz = values[0] * unitScale(kCoreQF, calc.units),
                          .dcOhms = values[1],
                          .henries = values[2] * unitScale(kCoreQL, calc.units),
                          .gauss = values[3],
                          .farads = choices.distributedPicofarads * kPicofarad};
    return {{.value = coilQ(choices.coilPermeability.value_or(0), coil), .label = "Q"}};
}

MultiInput CoilKeys::meanTurnKey(TurnShape turnShape) {
    return {calc, meanTurnShape(turnShape), {.solve = [this, turnShape](std::uint8_t, const InputValues& v) {
                return meanTurnResult(turnShape, v);
            }}};
}

void CoilKeys::meanTurn() {
    const auto shape = static_cast<std::size_t>(chosenRow(kLmuCore, calc.units).value_or(0));
    // One bit for the keys of all shapes.
    const bool due = calc.s.functions.takeReset(ResetBit::MeanTurn);
    for (std::size_t other = 0; other < meanTurn_.size(); ++other) {
        // Dimensions of another shape mean nothing for this one.
        if (other != shape || due) {
            meanTurn_.at(other).clear();
        }
    }
    meanTurn_.at(shape).press();
}

std::vector<KeyResult> CoilKeys::meanTurnResult(TurnShape turnShape, const InputValues& values) const {
    const TurnUnit& unit = kTurnUnits.at(static_cast<std::size_t>(chosenRow(kLmuTurn, calc.units).value_or(0)));
    const double feet =
        meanTurnFeet(turnShape, values[0] * unit.inches, values[1] * unit.inches, values[2] * unit.inches);
    if (chosenRow(kLmuFeet, calc.units)) {
        return {{.value = feet, .label = "ft"}};
    }
    return {{.value = feet * unit.perFoot, .label = std::string(chosenUnit(kLmuTurn, calc.units).label)}};
}

}  // namespace tallyforge
