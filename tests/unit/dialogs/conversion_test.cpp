// SPDX-License-Identifier: GPL-3.0-or-later
#include "dialogs/conversion.h"

#include "numbers/failure.h"
#include "platform/text.h"

#include <gtest/gtest.h>

#include <cfloat>
#include <cmath>
#include <limits>

using namespace tallyforge;

namespace {

constexpr Unit kRatios[] = {
    {"small", "s", 1e-18, 1e-18L, "small"},         {"one", "o", 1, 1, "one"},
    {"large", "l", 3.0857e16, 3.0857e16L, "large"}, {"none", "n", kNoFactor, 2, "none"},
    {"other none", "on", kNoFactor, 4, "none"},
};
constexpr UnitGroup kSizes{.options = "OptTest", .heading = "Test", .base = "o", .units = kRatios};

constexpr Unit kLight[] = {{"lux", "lx", 10.7639104, 10, "lux"}, {"footcandle", "ft-c", 1, 1, "fc"}};
constexpr UnitGroup kCounts{.options = "OptTest", .units = kLight, .measure = Measure::Count};

constexpr Unit kFuelUnits[] = {{"mile per gallon", "mpg", 1, 1, ""},
                               {"kilometers per liter", "km/l", 2.352145833, 2.352145833L, ""},
                               {"gallons(UK) per 100km", "Gal/100km", 51.7399751, 51.7399751L, ""},
                               {"liters per 100km", "l/100km", 235.2145833, 235.2145833L, ""}};
constexpr UnitGroup kFuel{.options = "OptTest", .units = kFuelUnits, .measure = Measure::Consumption};

constexpr Unit kScales[] = {{"Celsius", "Celsius"},
                            {"Fahrenheit", "Fahrenheit"},
                            {"Kelvin", "Kelvin"},
                            {"Rankine", "Rankine"},
                            {"Reaumur", "Reaumur"}};
constexpr UnitGroup kTemperatures{.options = "OptTest", .units = kScales, .measure = Measure::Temperature};

FailureNumber failureOf(const UnitGroup& group, int from, int to, double x) {
    try {
        (void)convert(group, from, to, x);
    } catch (const Failure& failure) {
        return failure.number();
    }
    return FailureNumber{0};
}

/// Kelvins of a temperature, as a straight line from two fixed points: ice and steam.
long double kelvins(int scale, long double x) {
    constexpr long double kIce[] = {0, 32, 273.15L, 491.67L, 0};
    constexpr long double kSteam[] = {100, 212, 373.15L, 671.67L, 80};
    return 273.15L + 100 * (x - kIce[scale]) / (kSteam[scale] - kIce[scale]);
}

}  // namespace

TEST(Conversion, IsTheRatioOfTwoSizes) {
    const Conversion result = convert(kSizes, 2, 1, 2.0);
    EXPECT_EQ(result.value, 6.1714e16);
    EXPECT_EQ(result.ConversionFactor, 3.0857e16);
    EXPECT_TRUE(result.keepsFactor);
}

TEST(Conversion, TakesTheRatioFirstWhereTheProductLeavesTheRange) {
    // 1e300 large ones are 1e300 * 3.0857e16: beyond the range before the division by as much.
    EXPECT_NEAR(convert(kSizes, 2, 2, 1e300).value / 1e300, 1.0, 1e-15);
    EXPECT_NEAR(convert(kSizes, 0, 0, 1e-300).value / 1e-300, 1.0, 1e-15);
    EXPECT_EQ(convert(kSizes, 1, 0, 0.0).value, 0.0);
}

TEST(Conversion, OutOfRangeIsAFailure) {
    EXPECT_EQ(failureOf(kSizes, 2, 0, 1e308), FailureNumber::Overflow);
    EXPECT_EQ(failureOf(kSizes, 2, 0, -1e308), FailureNumber::Overflow);
    EXPECT_EQ(failureOf(kSizes, 0, 2, 1e-300), FailureNumber::Overflow);
    EXPECT_EQ(failureOf(kSizes, 0, 1, DBL_MAX), FailureNumber{0});
}

TEST(Conversion, KeepsANumberWhoseUnitHasNoFactor) {
    for (const auto& [from, to] : {std::pair{3, 1}, {1, 3}, {3, 4}, {4, 3}}) {
        const Conversion result = convert(kSizes, from, to, -7.25);
        EXPECT_EQ(result.value, -7.25);
        EXPECT_EQ(result.ConversionFactor, 1.0);
        EXPECT_TRUE(result.withoutRatio);
    }
    EXPECT_EQ(convert(kSizes, 4, 3, 3.0, Sizes::Exact).value, 6.0);
}

TEST(Conversion, CountsAreDividedTheOtherWay) {
    const Conversion result = convert(kCounts, 0, 1, 100);
    EXPECT_NEAR(result.value, 9.29030401442212, 5e-15);
    EXPECT_EQ(result.ConversionFactor, 1 / 10.7639104);
}

TEST(Conversion, ConsumptionTurnsOverBetweenTheTwoKinds) {
    const Conversion there = convert(kFuel, 3, 0, 8.5);
    EXPECT_NEAR(there.value, 27.6723039176471, 5e-14);
    EXPECT_EQ(there.ConversionFactor, 235.2145833);
    EXPECT_TRUE(there.divides);
    EXPECT_EQ(convert(kFuel, 0, 3, 27.6723039176471).ConversionFactor, 235.2145833);
    EXPECT_NEAR(convert(kFuel, 2, 3, 1).value, 4.54608999802166, 5e-15);
    EXPECT_NEAR(convert(kFuel, 1, 0, 10).value, 23.52145833, 5e-15);
    EXPECT_FALSE(convert(kFuel, 1, 0, 10).divides);
    EXPECT_EQ(failureOf(kFuel, 3, 0, 0.0), FailureNumber::DivisionByZero);
    EXPECT_EQ(failureOf(kFuel, 0, 3, 0.0), FailureNumber::DivisionByZero);
    EXPECT_EQ(failureOf(kFuel, 0, 3, 1e-320), FailureNumber::Overflow);
}

TEST(Conversion, TemperaturesLieOnStraightLines) {
    for (int from = 0; from < 5; ++from) {
        for (int to = 0; to < 5; ++to) {
            for (const double x : {-500.0, -273.15, -40.0, 0.0, 37.0, 98.6, 1e6}) {
                const Conversion result = convert(kTemperatures, from, to, x);
                EXPECT_FALSE(result.keepsFactor);
                EXPECT_EQ(result.ConversionFactor, 1.0);
                const auto error = static_cast<double>(kelvins(to, result.value) - kelvins(from, x));
                EXPECT_NEAR(error, 0.0, 1e-12 * std::max(1000.0, std::fabs(x))) << from << " " << to << " " << x;
            }
        }
    }
}

TEST(Conversion, TemperaturesHaveNoLimitBelow) {
    EXPECT_EQ(convert(kTemperatures, 2, 0, -10).value, -283.15);
    EXPECT_EQ(failureOf(kTemperatures, 4, 1, DBL_MAX), FailureNumber::Overflow);
}

TEST(Conversion, AKeptFactorMultipliesOrDivides) {
    EXPECT_EQ(applyFactor(2, 25.4, false), 50.8);
    EXPECT_EQ(applyFactor(8, 240, true), 30.0);
    EXPECT_EQ(applyFactor(0, 25.4, false), 0.0);
    EXPECT_THROW((void)applyFactor(0, 240, true), Failure);
    EXPECT_THROW((void)applyFactor(1e308, 25.4, false), Failure);
}

TEST(Conversion, TapeTextIsInTheTapesCharacterSet) {
    EXPECT_EQ(toUnicode(tapeText("mm³ m² Å µ A·T °C"_t), Face::Terminal), "mm^3 m² Å µ A·T °C");
    EXPECT_EQ(tapeText("plain"), "plain");
}

TEST(Conversion, ALabelKeepsItsBlanks) {
    EXPECT_EQ(conversionLabel(kSizes, 1, 0), " one to s ");
}

TEST(Conversion, DeviationIsAPartOfTheExactSize) {
    EXPECT_NEAR(deviation(kLight[0]), 0.07639104, 1e-12);
    EXPECT_EQ(deviation(kRatios[3]), 0.0);
}
