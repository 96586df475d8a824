// SPDX-License-Identifier: GPL-3.0-or-later
#include "electrical/wire_keys.h"

#include "electrical/key_answers.h"
#include "electrical/wire_sizes.h"
#include "electrical/wire_tables.h"
#include "engine/engine.h"
#include "numbers/checked_math.h"
#include "numbers/number_format.h"
#include "platform/text.h"

#include <algorithm>
#include <array>
#include <optional>
#include <string>
#include <string_view>

namespace tallyforge {

namespace {

constexpr double kFeetPerRow = 1000.0;  // of the table of weights
constexpr double kGramsPerPound = 453.59237;
constexpr int kInchDigits = 6;
constexpr int kMillimetreDigits = 4;
constexpr int kGaugeDigits = 0;

constexpr KeyRefusal kNotWhole{.text = "Use integers only!", .label = "Error"};
constexpr KeyRefusal kNoSuchWeight{.text = "Number outside of range: - 3 to 60", .label = "Error"};
constexpr KeyRefusal kBeyondSingle{.text = "Number outside of range: -3 to 60", .label = "Error"};

/// Pounds per foot of the gauge in X; empty after its box.
std::optional<double> poundsPerFoot(Engine& calc) {
    const double awg = calc.xNumber();
    const auto pounds = kCopperWeight.at(awg);
    if (!pounds) {
        refuse(calc, isWhole(awg) ? kNoSuchWeight : kNotWhole);
        return std::nullopt;
    }
    return *pounds / kFeetPerRow;
}

/// A unit of length and how many of it make a foot.
struct LengthUnit {
    std::string_view label{};
    double perFoot = 1.0;
    int digits = 2;
};

/// By WireLength.
constexpr std::array<LengthUnit, 6> kLengthUnits{{{.label = "ê/ft"_t, .perFoot = 1.0, .digits = 3},
                                                  {.label = "ê/in"_t, .perFoot = 12.0},
                                                  {.label = "ê/m"_t, .perFoot = 0.3048, .digits = 3},
                                                  {.label = "ê/mm"_t, .perFoot = 304.8},
                                                  {.label = "ê/cm"_t, .perFoot = 30.48},
                                                  {.label = "ê/1000ft"_t, .perFoot = 0.001}}};

// What the tables of circular mils hold is told in the build's own words.
void refuseArea(Engine& calc, WireBuild build) {
    const double awg = calc.xNumber();
    if (!isWhole(awg)) {
        refuse(calc, kNotWhole);
    } else if (build == WireBuild::Single) {
        refuse(calc, kBeyondSingle);
    } else if (build == WireBuild::Heavy) {
        refuse(calc, kNoSuchWeight);
    } else {
        refuse(calc, {.text = "Number outside of range: 4 to 44", .label = "Error"});
    }
}

/// Places that suit the circular mils of a bare wire.
int bareDigits(double awg) {
    constexpr std::array<double, 4> kOneMoreFrom{20.0, 30.0, 50.0, 59.0};
    return static_cast<int>(
        std::count_if(kOneMoreFrom.begin(), kOneMoreFrom.end(), [awg](double from) { return awg >= from; }));
}

void gaugeToDiameter(Engine& calc, WireBuild build, bool inMillimetres) {
    const double awg = calc.xNumber();
    const auto inches = filmDiameter(build, awg);
    if (!inches) {
        refuseGauge(calc, build, awg);
    } else if (inMillimetres) {
        answerWithDigits(calc, {*inches * kMillimetresPerInch, "mm"}, kMillimetreDigits);
    } else {
        answerWithDigits(calc, {*inches, "inches"}, kInchDigits);
    }
}

void diameterToGauge(Engine& calc, WireBuild build, double inches) {
    constexpr std::array<std::string_view, 4> kRanges{"0.000328 to 0.4726", "0.0006 to 0.2098", "0.00087 to 0.2125",
                                                      "0.00097 to 0.2148"};
    if (const auto awg = gaugeOfDiameter(build, inches)) {
        answerWithDigits(calc, {static_cast<double>(*awg), "Max AWG"}, kGaugeDigits);
        return;
    }
    const std::string range(kRanges.at(static_cast<std::size_t>(build)));
    const std::string text =
        "Diameter outside of range: " + range + " inches\nContact magnet wire supplier for more information";
    refuse(calc, {.text = text, .label = "Error"});
}

/// What is said of an area that is too large or too small for a gauge of the build.
std::string_view noGauge(WireBuild build, bool tooLarge) {
    switch (build) {
        case WireBuild::Single:
            return "Outside of range (AWG 0000 to 60).";
        case WireBuild::Heavy:
            return tooLarge ? "AWG number is less than 4, use Single Build Insulation."
                            : "AWG number is greater than 56, use Single Build Insulation.";
        case WireBuild::Triple:
        case WireBuild::Quad:
            break;
    }
    return tooLarge ? "Data not available for AWG numbers less than 4, use Single Build Insulation."
                    : "Data not available for AWG numbers greater than 44, use Heavy or Single Build Insulation.";
}

}  // namespace

void refuseGauge(Engine& calc, WireBuild build, double awg) {
    constexpr double kThickestHeavy = 4.0;
    constexpr double kThinnestHeavy = 56.0;
    if (!isWhole(awg)) {
        refuse(calc, kNotWhole);
        return;
    }
    if (build == WireBuild::Single) {
        refuse(calc, kBeyondSingle);
        return;
    }
    const bool heavyHasIt = awg >= kThickestHeavy && awg <= kThinnestHeavy;
    const std::string text = "No data for this size (AWG " + plainText(awg, calc.s.format.DecimalChar) + ") " +
                             (heavyHasIt ? "" : "Heavy, ") + "Triple or Quad Build Insulation wire.";
    refuse(calc, {.text = text, .title = "No Data", .label = "No Data"});
}

void wireResistance(Engine& calc, WireLength over) {
    const LengthUnit& unit = kLengthUnits.at(static_cast<std::size_t>(over));
    answerBySize(calc, {checked(ohmsPerFoot(calc.xNumber()) / unit.perFoot), unit.label}, unit.digits);
}

void resistancePerPound(Engine& calc) {
    const double ohms = ohmsPerFoot(calc.xNumber());
    if (const auto pounds = poundsPerFoot(calc)) {
        answerBySize(calc, {ohms / *pounds, "ê/lb"_t});
    }
}

void gramsPerOhm(Engine& calc) {
    const double ohms = ohmsPerFoot(calc.xNumber());
    if (const auto pounds = poundsPerFoot(calc)) {
        answerBySize(calc, {*pounds * kGramsPerPound / ohms, "g/ê"_t});
    }
}

void areaToGauge(Engine& calc, WireBuild build) {
    const double area = calc.xNumber();
    const AreaRange range = areaRange(build);
    if (area >= range.least && area <= range.most) {
        answerWithDigits(calc, {gaugeOfArea(build, area), "AWG"}, kGaugeDigits);
        return;
    }
    calc.message(BoxKind::Stop, "No Data", noGauge(build, area > range.most));
    replaceX(calc, {ValueCell::zero(), "No Data"});
}

void gaugeToArea(Engine& calc, WireBuild build) {
    constexpr std::array<std::string_view, 4> kLabels{"CMAsgl(", "CMAi(", "CMAtriple(", "CMAquad("};
    const double awg = calc.xNumber();
    if (const auto area = filmArea(build, awg)) {
        const std::string label(kLabels.at(static_cast<std::size_t>(build)));
        replaceX(calc, {*area, label + gaugeName(awg, calc.s.format.DecimalChar) + ")"});
    } else {
        refuseArea(calc, build);
    }
}

void gaugeToBareArea(Engine& calc) {
    const double awg = calc.xNumber();
    const double area = circularMils(bareDiameter(awg));
    answerWithDigits(calc, {area, "CMAb(" + gaugeName(awg, calc.s.format.DecimalChar) + ")"}, bareDigits(awg));
}

void gaugeToWeight(Engine& calc) {
    if (const auto pounds = poundsPerFoot(calc)) {
        answerBySize(calc, {*pounds, "lbs/ft"});
    }
}

void gaugeToInches(Engine& calc, WireBuild build) {
    gaugeToDiameter(calc, build, false);
}

void gaugeToMillimetres(Engine& calc, WireBuild build) {
    gaugeToDiameter(calc, build, true);
}

void inchesToGauge(Engine& calc, WireBuild build) {
    diameterToGauge(calc, build, calc.xNumber());
}

void millimetresToGauge(Engine& calc, WireBuild build) {
    diameterToGauge(calc, build, calc.xNumber() / kMillimetresPerInch);
}

}  // namespace tallyforge
