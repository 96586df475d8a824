// SPDX-License-Identifier: GPL-3.0-or-later
#include "electrical/value_codes.h"

#include "platform/text.h"

#include <gtest/gtest.h>

#include <array>
#include <cmath>
#include <cstdint>
#include <map>
#include <string>

namespace tallyforge {
namespace {

constexpr std::array kComponents{Component::Resistor, Component::Capacitor, Component::Inductor};

const std::map<std::string_view, int> kPowers{{"p", -12}, {"n", -9}, {"æ"_t, -6}, {"m", -3}, {"", 0},
                                              {"k", 3},   {"M", 6},  {"G", 9},    {"T", 12}, {"P", 15}};
/// Power of ten of what a code counts.
const std::map<Component, int> kCounted{
    {Component::Resistor, 0}, {Component::Capacitor, -12}, {Component::Inductor, -9}};

/// IEC 60063.
constexpr std::array kE24{10, 11, 12, 13, 15, 16, 18, 20, 22, 24, 27, 30,
                          33, 36, 39, 43, 47, 51, 56, 62, 68, 75, 82, 91};
constexpr std::array kE96{100, 102, 105, 107, 110, 113, 115, 118, 121, 124, 127, 130, 133, 137, 140, 143,
                          147, 150, 154, 158, 162, 165, 169, 174, 178, 182, 187, 191, 196, 200, 205, 210,
                          215, 221, 226, 232, 237, 243, 249, 255, 261, 267, 274, 280, 287, 294, 301, 309,
                          316, 324, 332, 340, 348, 357, 365, 374, 383, 392, 402, 412, 422, 432, 442, 453,
                          464, 475, 487, 499, 511, 523, 536, 549, 562, 576, 590, 604, 619, 634, 649, 665,
                          681, 698, 715, 732, 750, 768, 787, 806, 825, 845, 866, 887, 909, 931, 953, 976};

/// The code as it is printed, by its digits alone.
std::string printed(int significant, int zeros) {
    std::string digits = std::to_string(significant);
    if (digits.size() == 3 && digits.back() == '0') {
        digits.pop_back();
        ++zeros;
    }
    return digits + std::to_string(zeros);
}

void expectBothWays(int significant, int zeros) {
    const std::string code = printed(significant, zeros);
    SCOPED_TRACE(code);
    const double value = significant * std::pow(10.0, zeros);
    const auto encodedCode = encoded(value);
    ASSERT_TRUE(encodedCode.has_value());
    EXPECT_EQ(*encodedCode, std::stod(code));
    for (const Component component : kComponents) {
        const auto back = decoded(component, *encodedCode);
        ASSERT_TRUE(back.has_value());
        EXPECT_TRUE(back->number >= 1.0 && back->number < 1000.0) << back->number;
        const double counted = back->number * std::pow(10.0, kPowers.at(back->prefix) - kCounted.at(component));
        EXPECT_NEAR(counted / value, 1.0, 1e-14);
    }
}

TEST(ValueCodes, EveryValueOfTheSeriesE24GoesThereAndBack) {
    for (const int value : kE24) {
        for (int zeros = 1; zeros <= 9 && value * std::pow(10.0, zeros) < kBeyondCodes; ++zeros) {
            expectBothWays(value, zeros);
        }
    }
}

TEST(ValueCodes, EveryValueOfTheSeriesE96GoesThereAndBack) {
    ASSERT_EQ(kE96.size(), 96U);
    for (const int value : kE96) {
        for (int zeros = 0; zeros <= 8; ++zeros) {
            expectBothWays(value, zeros);
        }
    }
}

TEST(ValueCodes, OtherValuesAreRoundedToThreeDigitsHalfToEven) {
    EXPECT_EQ(encoded(1235), 1241);
    EXPECT_EQ(encoded(1245), 1241);
    EXPECT_EQ(encoded(1255), 1261);
    EXPECT_EQ(encoded(100.5), 101);
    EXPECT_EQ(encoded(101.5), 1020);
    EXPECT_EQ(encoded(999.5), 102);
    EXPECT_EQ(encoded(99949999999.0), 9998);
    // Rounded up to what has no code.
    EXPECT_FALSE(encoded(99950000001.0).has_value());
    EXPECT_FALSE(encoded(1e11).has_value());
    EXPECT_FALSE(encoded(1e300).has_value());
}

TEST(ValueCodes, NeedThreeDigits) {
    for (const double code : {99.0, 47.0, 0.0, -472.0, 99.5e-3, 99.4}) {
        EXPECT_FALSE(decoded(Component::Resistor, code).has_value()) << code;
    }
    // Rounded to whole digits first.
    EXPECT_TRUE(decoded(Component::Resistor, 99.6).has_value());
    EXPECT_EQ(decoded(Component::Resistor, 472.4)->number, 4.7);
}

TEST(ValueCodes, ReadAsTheirPrefixesSay) {
    const auto thousands = decoded(Component::Resistor, 472);
    EXPECT_EQ(thousands->number, 4.7);
    EXPECT_EQ(thousands->prefix, "k");
    const auto nano = decoded(Component::Capacitor, 104);
    EXPECT_EQ(nano->number, 100.0);
    EXPECT_EQ(nano->prefix, "n");
    const auto pico = decoded(Component::Capacitor, 100);
    EXPECT_EQ(pico->number, 10.0);
    EXPECT_EQ(pico->prefix, "p");
    // A number that no part carries, beyond the largest prefix.
    const auto huge = decoded(Component::Resistor, 1e300);
    EXPECT_EQ(huge->prefix, "P");
    EXPECT_NEAR(huge->number / 1e284, 1.0, 1e-12);
}

}  // namespace
}  // namespace tallyforge
