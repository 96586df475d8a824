// SPDX-License-Identifier: GPL-3.0-or-later
#include "electrical/core_keys.h"

#include "electrical/core_loss.h"
#include "electrical/permeability.h"
#include "engine/engine.h"
#include "engine/results.h"
#include "platform/text.h"

namespace tallyforge {

namespace {

constexpr LineLook kBySize{.bySize = true};

constexpr std::uint8_t kFluxBit = 1;
constexpr std::uint8_t kFrequencyBit = 2;
constexpr KeyInput kPowderInputs[] = {{.mask = 0, .bit = kFluxBit, .label = "B(g)"},
                                      {.mask = kCtrl, .bit = kFrequencyBit, .label = "F(KHz)"},
                                      {.mask = kAlt, .bit = 4, .label = "æ"_t}};
constexpr KeySolution kPowderLoss[] = {
    {.bits = 7, .label = "W/lb", .solve = [](const InputValues& v) { return powderCoreLoss(v[0], v[1], v[2]); }}};
constexpr MultiInput::Shape kPowder{.resetLabel = "Reset Pc",
                                    .resetBit = ResetBit::CoreLoss,
                                    .inputs = kPowderInputs,
                                    .solutions = kPowderLoss,
                                    .givenLook = kBySize,
                                    .echoLook = kBySize};

constexpr KeyInput kFerriteInputs[] = {{.mask = kCtrl, .bit = 1, .label = "F(KHz)"},
                                       {.mask = 0, .bit = 2, .label = "B(gausses)"}};
constexpr KeySolution kFerriteSet[] = {{.bits = 3}};
constexpr MultiInput::Shape kFerrite{.resetLabel = "Reset PL",
                                     .resetBit = ResetBit::FerriteLoss,
                                     .inputs = kFerriteInputs,
                                     .solutions = kFerriteSet,
                                     .givenLook = kBySize,
                                     .echoLook = kBySize};

constexpr KeyInput kAtFluxInputs[] = {{.mask = 0, .bit = 1, .label = "Gauss"},
                                      {.mask = kAlt, .bit = 2, .label = "æ"_t}};
constexpr KeySolution kChange[] = {
    {.bits = 3, .label = "%", .solve = [](const InputValues& v) { return permeabilityChangePercent(v[0], v[1]); }}};
constexpr MultiInput::Shape kAtFlux{.resetLabel = "Reset Bæ"_t,
                                    .resetBit = ResetBit::PermeabilityAtFlux,
                                    .inputs = kAtFluxInputs,
                                    .solutions = kChange,
                                    .givenLook = kBySize,
                                    .echoLook = kBySize};

constexpr std::uint8_t kFieldBit = 1;
constexpr KeyInput kUnderFieldInputs[] = {{.mask = kCtrl, .bit = 2, .label = "æ"_t, .echoLabel = "æ perm"_t},
                                          {.mask = 0, .bit = kFieldBit, .label = "H", .echoLabel = "H(Oersteds)"}};
constexpr KeySolution kLeft[] = {
    {.bits = 3, .label = "% perm", .solve = [](const InputValues& v) { return permeabilityUnderBias(v[1], v[0]); }}};
constexpr MultiInput::Shape kUnderField{.resetLabel = "Reset perm vs DC",
                                        .resetBit = ResetBit::PermeabilityUnderField,
                                        .inputs = kUnderFieldInputs,
                                        .solutions = kLeft,
                                        .givenLook = kBySize,
                                        .echoLook = kBySize};

constexpr KeyInput kByLoInputs[] = {{.mask = kCtrl, .bit = 1, .label = "le"},
                                    {.mask = 0, .bit = 4, .label = "Lo"},
                                    {.mask = kAlt, .bit = 2, .label = "Ae"},
                                    {.mask = kCtrl + kAlt, .bit = 8, .label = "æe"_t}};
// With all four given the permeability follows from the other three.
constexpr KeySolution kByLoResults[] = {
    {.bits = 7,
     .label = "æe"_t,
     .solve = [](const InputValues& v) { return permeabilityByInductance(v[1], v[0], v[2]); },
     .among = 7},
    {.bits = 11, .label = "Lo", .solve = [](const InputValues& v) {
         return inductanceByPermeability(v[3], v[0], v[2]);
     }}};
constexpr MultiInput::Shape kByLo{.resetLabel = "Reset ue vs Lo",
                                  .resetBit = ResetBit::PermeabilityByLo,
                                  .inputs = kByLoInputs,
                                  .solutions = kByLoResults,
                                  .givenLook = kBySize,
                                  .echoLook = kBySize};

std::optional<InputRefusal> outsidePowderCurves(const KeyInput& input, double value) {
    switch (input.bit) {
        case kFluxBit:
            return value > kMostPowderGauss ? std::optional(InputRefusal{"B over 4 kg", false}) : std::nullopt;
        case kFrequencyBit:
            return value > kMostPowderKilohertz ? std::optional(InputRefusal{"F over 500 KHz", false}) : std::nullopt;
        default:
            return value > kMostPowderPermeability ? std::optional(InputRefusal{"Invalid > 550"}) : std::nullopt;
    }
}

std::optional<InputRefusal> outsideFluxCurves(const KeyInput& input, double value) {
    const bool refused = input.bit != kFluxBit && value > kMostFluxPermeability;
    return refused ? std::optional(InputRefusal{"Invalid Perm"}) : std::nullopt;
}

std::optional<InputRefusal> outsideField(const InputValues& values) {
    if (biasInRange(values[1], values[0])) {
        return std::nullopt;
    }
    return InputRefusal{.label = "Outside range", .takesBack = kFieldBit};
}

}  // namespace

CoreKeys::CoreKeys(Engine& calculator, const ElectricalChoices& electricalChoices)
    : calc(calculator),
      choices(electricalChoices),
      powder_(calculator, kPowder, {.refuse = outsidePowderCurves}),
      ferrite_(calculator, kFerrite,
               {.refuse = [this](const KeyInput&, double&) { return withoutMaterial(); },
                .solve =
                    [this](std::uint8_t, const InputValues& v) {
                        return std::vector<KeyResult>{
                            {.value = ferriteCoreLoss(choices.ferrite.value_or(0), v[0], v[1]), .label = "mW/cm^3"}};
                    }}),
      atFlux_(calculator, kAtFlux, {.refuse = outsideFluxCurves}),
      underField_(calculator, kUnderField,
                  {.label =
                       [this](const KeyInput& input) {
                           const bool replaced = input.bit != kFieldBit && highestCore_;
                           return std::string(replaced ? "550æ used"_t : input.label);
                       },
                   .refuse = [this](const KeyInput& input, double& value) { return outsideFieldCurves(input, value); },
                   .refuseSet = outsideField}),
      byLo_(calculator, kByLo) {}

void CoreKeys::powderLoss() {
    powder_.press();
}

void CoreKeys::ferriteLoss() {
    ferrite_.press();
}

std::optional<InputRefusal> CoreKeys::withoutMaterial() const {
    if (choices.ferrite) {
        return std::nullopt;
    }
    calc.message(BoxKind::Stop, "OOPS!", "Ctrl+Right Click the [PL] and select a material!");
    return InputRefusal{.label = "ERR"};
}

void CoreKeys::permeabilityAtFlux() {
    if (atFlux_.clearIfDue()) {
        areaPerLength_ = 0.0;
    }
    const std::uint8_t mask = calc.s.modifiers.ModifierMask;
    if ((mask == kCtrl || mask == kShift + kCtrl) && calc.xNumber() != 0.0) {
        inductanceAtFlux();
    } else if (atFlux_.press() == MultiInput::Outcome::Reset) {
        areaPerLength_ = 0.0;
    }
}

void CoreKeys::inductanceAtFlux() {
    const bool newCore = calc.s.modifiers.ModifierMask == kCtrl;
    const double areaPerLength = newCore ? operandBelow(calc, 1) : areaPerLength_;
    if (!atFlux_.hasSolved() || areaPerLength == 0.0) {
        throw Failure{FailureNumber::DivisionByZero};
    }
    const InputValues& core = atFlux_.values();
    const double henries = tallyforge::inductanceAtFlux(core[0], core[1], calc.xNumber(), areaPerLength);
    areaPerLength_ = areaPerLength;
    replaceX(calc, {calc.s.stack.Xreg, "n"});
    calc.commit.deliverX();
    replaceOperands(calc, newCore ? 2 : 1, {henries, "Hy"});
    chooseDigits(calc);
}

void CoreKeys::permeabilityUnderField() {
    underField_.press();
}

std::optional<InputRefusal> CoreKeys::outsideFieldCurves(const KeyInput& input, double& value) {
    if (input.bit == kFieldBit) {
        return std::nullopt;
    }
    highestCore_ = false;
    if (value <= kLeastBiasPermeability) {
        return InputRefusal{std::string("Invalid, æ < 12"_t)};
    }
    if (value > kMostBiasPermeability) {
        return InputRefusal{std::string("Invalid, æ > 550"_t)};
    }
    if (value > kMostBiasBelowGap && value <= kBiasGapEnd) {
        return InputRefusal{std::string("Invalid æ"_t)};
    }
    highestCore_ = value > kBiasGapEnd;
    value = highestCore_ ? kHighestCore : value;
    return std::nullopt;
}

void CoreKeys::permeabilityByLo() {
    byLo_.press();
}

}  // namespace tallyforge
