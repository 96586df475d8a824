// SPDX-License-Identifier: GPL-3.0-or-later
#include "electrical/filter_keys.h"

#include "dialogs/unit_choice.h"
#include "electrical/filters.h"
#include "electrical/supply_capacitor.h"
#include "electrical/waves.h"
#include "engine/engine.h"
#include "platform/text.h"

#include <array>
#include <cmath>
#include <string_view>

namespace tallyforge {

namespace {

constexpr LineLook kBySize{.bySize = true};
constexpr LineLook kWhole{.digits = 0};
constexpr LineLook kThreeDigits{.digits = 3};

constexpr KeyInput kButterworthInputs[] = {{.mask = kCtrl, .bit = 1, .label = "n", .echoLook = kWhole},
                                           {.mask = 0, .bit = 2, .label = "f/fc", .echoLook = kThreeDigits}};
constexpr KeySolution kButterworthLoss[] = {
    {.bits = 3, .label = "dB", .solve = [](const InputValues& v) { return butterworthLoss(v[0], v[1]); }}};
constexpr MultiInput::Shape kButterworth{.resetLabel = "Reset àB"_t,
                                         .resetBit = ResetBit::ButterworthFilter,
                                         .inputs = kButterworthInputs,
                                         .solutions = kButterworthLoss,
                                         .givenLook = kBySize};

constexpr std::uint8_t kDegreeBit = 1;
constexpr std::uint8_t kRippleBit = 2;
constexpr KeyInput kChebyshevInputs[] = {
    {.mask = kCtrl, .bit = kDegreeBit, .label = "n", .echoLook = kWhole},
    {.mask = kAlt, .bit = kRippleBit, .label = "ripple(dB)", .echoLook = kThreeDigits},
    {.mask = 0, .bit = 4, .label = "f/fc", .echoLook = kThreeDigits}};
constexpr KeySolution kChebyshevSet[] = {{.bits = 7}};
constexpr MultiInput::Shape kChebyshev{.resetLabel = "Reset Cheby.",
                                       .resetBit = ResetBit::ChebyshevFilter,
                                       .inputs = kChebyshevInputs,
                                       .solutions = kChebyshevSet,
                                       .alwaysEchoes = true,
                                       .givenLook = kBySize,
                                       .resultLook = kThreeDigits};

constexpr std::uint8_t kCoilBit = 8;
constexpr std::uint8_t kCapacitorBit = 16;
constexpr std::uint8_t kHighPassMask = kShift + kAlt;
// The two cut-offs are one input; the one that was given last counts.
constexpr KeyInput kScalingInputs[] = {
    {.mask = kShift, .bit = 1, .label = "ê, Z"_t},        {.mask = kAlt, .bit = 2, .label = "Hz, Fc"},
    {.mask = kHighPassMask, .bit = 2, .label = "Hz, Fh"}, {.mask = kCtrl + kAlt, .bit = 4, .label = "Hz, Fo"},
    {.mask = 0, .bit = kCoilBit, .label = "L"},           {.mask = kCtrl, .bit = kCapacitorBit, .label = "C"}};
constexpr KeySolution kScalingSets[] = {{.bits = kCoilBit, .among = kCoilBit},
                                        {.bits = kCapacitorBit, .among = kCapacitorBit}};
constexpr MultiInput::Shape kScaling{.resetLabel = "Reset scl",
                                     .resetBit = ResetBit::FilterScaling,
                                     .inputs = kScalingInputs,
                                     .solutions = kScalingSets,
                                     .shiftRecalculates = false,
                                     .givenLook = kBySize};
/// By FilterForm.
constexpr std::array<std::string_view, 4> kForms{"LP", "HP", "BP", "BS"};

constexpr std::uint8_t kFrequencyBit = 8;
constexpr KeyInput kSupplyInputs[] = {{.mask = 0, .bit = 1, .label = "Vac"},
                                      {.mask = kCtrl, .bit = 2, .label = "Vdc"},
                                      {.mask = kAlt, .bit = 4, .label = "Amps"},
                                      {.mask = kCtrl + kAlt, .bit = kFrequencyBit}};
constexpr KeySolution kSupplySet[] = {{.bits = 15}};
constexpr MultiInput::Shape kSupply{.resetLabel = "Reset Cp",
                                    .resetBit = ResetBit::SupplyCapacitor,
                                    .inputs = kSupplyInputs,
                                    .solutions = kSupplySet,
                                    .givenLook = kBySize,
                                    .undoneLabel = "Error"};

std::optional<InputRefusal> outsideChebyshev(Engine& calc, const KeyInput& input, double value) {
    constexpr double kMostRipple = 3.0;
    std::string_view text;
    if (input.bit == kRippleBit && !(value > 0.0 && value <= kMostRipple)) {
        text = "Ripple must be between 0 and 3 dB";
    } else if (input.bit == kDegreeBit &&
               !(value >= kLeastDegree && value <= kMostDegree && value == std::trunc(value))) {
        // A polynomial has a whole degree.
        text = "n must be between 2 and 10";
    } else {
        return std::nullopt;
    }
    calc.message(BoxKind::Stop, "Error!", text);
    return InputRefusal{.label = std::string(input.label)};
}

}  // namespace

FilterKeys::FilterKeys(Engine& calculator)
    : calc(calculator),
      butterworth_(calculator, kButterworth),
      chebyshev_(
          calculator, kChebyshev,
          {.refuse = [this](const KeyInput& input, double& value) { return outsideChebyshev(calc, input, value); },
           .solve =
               [](std::uint8_t, const InputValues& v) {
                   const ChebyshevLoss loss =
                       chebyshevLoss({.degree = static_cast<int>(v[0]), .rippleInDb = v[1]}, v[2]);
                   return std::vector<KeyResult>{{loss.fromRippleEdge, "dB(rip)"}, {loss.fromHalfPower, "dB(3)"}};
               }}),
      scaling_(calculator, kScaling,
               {.solve = [this](std::uint8_t bits, const InputValues& v) { return scaled(bits, v); }}),
      supply_(calculator, kSupply,
              {.label =
                   [this](const KeyInput& input) {
                       return input.bit == kFrequencyBit ? std::string(chosenUnit(kOhmF, calc.units).label)
                                                         : std::string(input.label);
                   },
               .solve = [this](std::uint8_t, const InputValues& v) { return capacitor(v); }}) {}

void FilterKeys::butterworth() {
    butterworth_.press();
}

void FilterKeys::chebyshev() {
    chebyshev_.press();
}

void FilterKeys::scaling() {
    const std::uint8_t mask = calc.s.modifiers.ModifierMask;
    if (scaling_.press() == MultiInput::Outcome::Stored && (mask == kAlt || mask == kHighPassMask)) {
        highPass_ = mask == kHighPassMask;
    }
}

std::vector<KeyResult> FilterKeys::scaled(std::uint8_t bits, const InputValues& values) const {
    const auto [impedance, low, high, centre, coil, capacitor] =
        std::array{values[0], values[1], values[2], values[3], values[4], values[5]};
    const bool givenAsCoil = (bits & kCoilBit) != 0;
    const FilterForm form = centre == 0.0 ? (highPass_ ? FilterForm::HighPass : FilterForm::LowPass)
                                          : (highPass_ ? FilterForm::BandStop : FilterForm::BandPass);
    const ScaledElement element = scaleElement(givenAsCoil, givenAsCoil ? coil : capacitor, form,
                                               {.impedance = impedance,
                                                .cutOff = angularFrequency(highPass_ ? high : low),
                                                .centre = angularFrequency(centre)});
    const auto label = [form](bool inductor) {
        return std::string(inductor ? "Hy, " : "Fd, ") + std::string(kForms.at(static_cast<std::size_t>(form)));
    };
    std::vector<KeyResult> results{{.value = element.value, .label = label(element.inductor)}};
    if (element.hasPartner) {
        results.push_back({.value = element.partner, .label = label(!element.inductor)});
    }
    return results;
}

void FilterKeys::supplyCapacitor() {
    supply_.press();
}

std::vector<KeyResult> FilterKeys::capacitor(const InputValues& values) const {
    const SupplyLoad load{
        .vac = values[0], .vdc = values[1], .amps = values[2], .frequency = values[3] * unitScale(kOhmF, calc.units)};
    const double farads = supplyCapacitance(load);
    if (!(farads > 0.0)) {
        calc.message(BoxKind::Stop, "ERROR!", "Increase Vac, or decrease Vdc!");
        return {};
    }
    const UnitRow& unit = chosenUnit(kOhmC, calc.units);
    return {{.value = farads / unit.scale, .label = "C(" + MapUnitText(unit.label) + ")"},
            {.value = supplyRippleWattsPerOhm(load, farads), .label = std::string("W/ê"_t)}};
}

}  // namespace tallyforge
