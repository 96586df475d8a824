// SPDX-License-Identifier: GPL-3.0-or-later
//
// Factorial, gamma, dates, hours and weather as pure functions, against what others published.
#include "functions/dates.h"
#include "functions/everyday.h"
#include "functions/factorial.h"
#include "functions/hours.h"
#include "numbers/failure.h"

#include <gtest/gtest.h>

#include <array>
#include <cmath>
#include <string>

namespace tallyforge {
namespace {

using namespace MathFunctions;

// M. Abramowitz, I. A. Stegun (ed.), Handbook of Mathematical Functions, table 6.1. The polynomial
// is good for about seven digits.
TEST(Gamma, AgreesWithThePublishedTableToItsSevenDigits) {
    constexpr std::pair<double, double> kTable[] = {
        {1.1, 0.9513507699}, {1.25, 0.9064024771}, {1.5, 0.8862269255},  {1.75, 0.9190625268},
        {1.9, 0.9617658319}, {2.5, 1.3293403882},  {4.5, 11.6317283966}, {10.5, 1133278.388948785},
    };
    for (const auto& [x, value] : kTable) {
        EXPECT_NEAR(gammaOf(x) / value, 1.0, 6e-7) << x;
    }
}

TEST(Gamma, OfAWholeNumberIsTheFactorialBelow) {
    EXPECT_EQ(gammaOf(5.0), 24.0);
    EXPECT_EQ(gammaOf(2.0), 1.0);
}

TEST(Gamma, KeepsZeroForOne) {
    EXPECT_EQ(gammaOf(1.0), 0.0);
}

// Stirling's series at 0.5 itself: its terms to z^-7 are far too many there.
TEST(Gamma, KeepsTheSeriesBelowOneAtTheArgumentItself) {
    const double z = 0.5;
    const double sum = -z + std::log(6.28318530717958) / 2.0 + 1.0 / 6.0 - 1.0 / 45.0 + 32.0 / 1260.0 - 128.0 / 1680.0;
    EXPECT_NEAR(gammaOf(z), std::exp(sum), 1e-12);
    EXPECT_NEAR(gammaOf(0.999), 1.000577, 1e-3);
}

TEST(Gamma, KeepsTheProductInSinglePrecision) {
    // 20.5 multiplies 19.5, 18.5 ... 1.5 in single precision, then the polynomial at 0.5.
    float product = 1.0F;
    for (double factor = 19.5; factor >= 1.0; factor -= 1.0) {
        product = static_cast<float>(static_cast<double>(product) * factor);
    }
    EXPECT_EQ(gammaOf(20.5), static_cast<double>(product) * gammaOf(1.5));
}

// The same handbook, table 6.3.
TEST(Factorials, AgreeWithThePublishedTable) {
    constexpr std::pair<double, double> kTable[] = {
        {1, 1},
        {10, 3628800},
        {20, 2432902008176640000.0},
        {50, 3.0414093201713376e64},
        {100, 9.3326215443944153e157},
        {170, 7.2574156153079990e306},
    };
    for (const auto& [n, value] : kTable) {
        EXPECT_NEAR(productDownFrom(n) / value, 1.0, 1e-14) << n;
    }
    EXPECT_THROW((void)productDownFrom(171.0), Failure);
}

/// Day of the week of the Gregorian calendar by Zeller's congruence, 0 for Sunday.
int zeller(int year, int month, int day) {
    const int m = month < 3 ? month + 12 : month;
    const int y = month < 3 ? year - 1 : year;
    const int h = (day + 13 * (m + 1) / 5 + y + y / 4 - y / 100 + y / 400) % 7;
    return (h + 6) % 7;
}

bool isLeap(int year) {
    return year % 4 == 0 && (year % 100 != 0 || year % 400 == 0);
}

TEST(Calendar, EveryDayOfFourHundredYearsIsReadAndCounted) {
    constexpr std::array<int, 12> kLengths{31, 28, 31, 30, 31, 30, 31, 31, 30, 31, 30, 31};
    auto expected = ParseDate("1.011800", '.', 2026);
    int count = 0;
    for (int year = 1800; year < 2200; ++year) {
        for (int month = 1; month <= 12; ++month) {
            const int length = kLengths.at(static_cast<std::size_t>(month - 1)) + (month == 2 && isLeap(year) ? 1 : 0);
            for (int day = 1; day <= length; ++day) {
                const std::string text =
                    std::to_string(month) + (day < 10 ? ".0" : ".") + std::to_string(day) + std::to_string(year);
                const auto date = ParseDate(text, '.', 2026);
                ASSERT_EQ(date, expected) << text;
                ASSERT_EQ(std::chrono::weekday{date}.c_encoding(), static_cast<unsigned>(zeller(year, month, day)))
                    << text;
                expected += std::chrono::days{1};
                ++count;
            }
        }
    }
    EXPECT_EQ(count, 146097);
}

TEST(Calendar, ShortFormsMeanThisYearAndADayMayHaveOneDigit) {
    const auto fourthOfJuly = ParseDate("7.042026", '.', 1999);
    EXPECT_EQ(ParseDate("7.42026", '.', 1999), fourthOfJuly);
    EXPECT_EQ(ParseDate("7.04", '.', 2026), fourthOfJuly);
    EXPECT_EQ(ParseDate("7.4", '.', 2026), fourthOfJuly);
    EXPECT_EQ(ParseDate("07.042026", '.', 1999), fourthOfJuly);
    EXPECT_EQ(ParseDate("7,042026", ',', 1999), fourthOfJuly);
    EXPECT_EQ(ParseDate("12.25", '.', 2026), ParseDate("12.252026", '.', 1999));
}

TEST(Calendar, MonthsAndDaysRunOver) {
    EXPECT_EQ(ParseDate("13.011999", '.', 2026), ParseDate("1.012000", '.', 2026));
    EXPECT_EQ(ParseDate("2.302026", '.', 2026), ParseDate("3.022026", '.', 2026));
    EXPECT_EQ(ParseDate("13.45", '.', 2026), ParseDate("2.142027", '.', 2026));
}

TEST(Calendar, OtherTextsAreNoDates) {
    for (const char* text : {"", ".", "7", "12251999", "7.", "7.0420261", "123.042026", "-7.042026", "7.041e3",
                             "7.0 2026", "7.040000", "7.04199", "#7.04h"}) {
        EXPECT_THROW((void)ParseDate(text, '.', 2026), Failure) << text;
    }
}

TEST(Hours, GoToDecimalsAndBackForEverySecondOfTwoHours) {
    for (int seconds = 0; seconds < 7200; ++seconds) {
        const double clock =
            std::stod(std::to_string(seconds / 3600) + "." + std::to_string(100 + seconds / 60 % 60).substr(1) +
                      std::to_string(100 + seconds % 60).substr(1));
        const double hours = HmsConvert(clock, true);
        ASSERT_NEAR(hours, seconds / 3600.0, 1e-14) << clock;
        ASSERT_NEAR(HmsConvert(hours, false), clock, 1e-14) << clock;
    }
}

TEST(Hours, KeepTheDigitsThatTheWholeHoursLeave) {
    for (const double whole : {0.0, 1.0, 2.0, 9.0, 10.0, 99.0, 100.0, 9999.0}) {
        EXPECT_EQ(HmsConvert(whole, false), whole);
        EXPECT_EQ(HmsConvert(whole, true), whole);
        EXPECT_NEAR(HmsConvert(whole + 0.3030303, true), whole + (30 * 60 + 30.303) / 3600, 1e-11) << whole;
        EXPECT_NEAR(HmsConvert(whole + (30 * 60 + 30.303) / 3600, false), whole + 0.3030303, 1e-10) << whole;
    }
    EXPECT_NEAR(HmsConvert(0.00000000011111, true), 0.0000011111 / 3600, 1e-15);
    EXPECT_NEAR(HmsConvert(1.00000000011111, true), 1 + 0.0000011111 / 3600, 1e-15);
}

TEST(Hours, NeverShowSixtySeconds) {
    EXPECT_EQ(HmsConvert(1.99999999999999, false), 2.0);
    EXPECT_EQ(HmsConvert(0.0166666666666667, false), 0.01);
    EXPECT_EQ(HmsConvert(123456789.999999, false), 123456790.0) << "its digits end at hundredths of a second";
    EXPECT_EQ(HmsConvert(-1.5, false), -1.3);
    EXPECT_EQ(HmsConvert(1.75, true), 2.25);
}

// U.S. National Weather Service, wind chill chart of 2001, which is in whole degrees.
TEST(Weather, WindChillAgreesWithTheChart) {
    constexpr std::array<double, 3> kChart[] = {{10, 30, 21}, {5, 40, 36}, {20, 0, -22}, {60, -45, -98}, {35, 20, 0}};
    for (const auto& [speed, temperature, felt] : kChart) {
        EXPECT_NEAR(windChill(speed, temperature), felt, 0.51) << speed << " " << temperature;
    }
    EXPECT_THROW((void)windChill(-1, 30), Failure);
}

// The same service's heat index chart, likewise.
TEST(Weather, HeatIndexAgreesWithTheChart) {
    constexpr std::array<double, 3> kChart[] = {
        {50, 90, 95}, {40, 100, 109}, {80, 90, 113}, {60, 94, 110}, {40, 80, 80}};
    for (const auto& [humidity, temperature, felt] : kChart) {
        EXPECT_NEAR(heatIndex(humidity, temperature), felt, 1.1) << humidity << " " << temperature;
    }
}

TEST(Weather, KeepsTheHeatIndexWithoutARangeTest) {
    EXPECT_NEAR(heatIndex(0, 0), -42.379, 1e-12);
}

TEST(Fractions, AreReadFromTheirDigits) {
    EXPECT_EQ(fractionValue("3.16", '.'), 3.0 / 16.0);
    EXPECT_EQ(fractionValue("7,10", ','), 0.7);
    EXPECT_EQ(fractionValue("-3.4", '.'), -0.75);
    EXPECT_EQ(fractionValue("0.8", '.'), 0.0);
    for (const char* text : {"3", "3.", "3.0", "3.00", "", "3.1e2"}) {
        EXPECT_THROW((void)fractionValue(text, '.'), Failure) << text;
    }
}

}  // namespace
}  // namespace tallyforge
