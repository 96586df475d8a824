// SPDX-License-Identifier: GPL-3.0-or-later
//
// Exact sums and products against school arithmetic on digit texts.
#include "numbers/exact_decimal.h"

#include "numbers/failure.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cstdlib>
#include <random>
#include <string>

namespace tallyforge {
namespace {

std::string longProduct(const std::string& left, const std::string& right) {
    std::string digits(left.size() + right.size(), 0);
    for (std::size_t i = left.size(); i-- > 0;) {
        int carry = 0;
        for (std::size_t j = right.size(); j-- > 0;) {
            const int sum = digits[i + j + 1] + (left[i] - '0') * (right[j] - '0') + carry;
            digits[i + j + 1] = static_cast<char>(sum % 10);
            carry = sum / 10;
        }
        digits[i] = static_cast<char>(digits[i] + carry);
    }
    std::transform(digits.begin(), digits.end(), digits.begin(), [](char d) { return static_cast<char>(d + '0'); });
    return digits;
}

double number(const std::string& text) {
    return std::strtod(text.c_str(), nullptr);
}

TEST(ExactDecimal, ProductsAreThoseOfSchoolArithmetic) {
    std::mt19937_64 random{20240229};
    for (int i = 0; i < 20000; ++i) {
        const std::string left = std::to_string(random() % 1'000'000'000'000'000 + 1);
        const std::string right = std::to_string(random() % 1'000'000'000 + 1);
        const int a = static_cast<int>(random() % 60) - 30;
        const int b = static_cast<int>(random() % 60) - 30;
        const double x = number(left + "e" + std::to_string(a));
        const double y = number(right + "e" + std::to_string(b));
        const double expected = number(longProduct(left, right) + "e" + std::to_string(a + b));
        ASSERT_EQ((ExactDecimal{x} * ExactDecimal{y}).value(), expected) << x << " " << y;
        ASSERT_EQ((ExactDecimal{-x} * ExactDecimal{y}).value(), -expected) << x << " " << y;
        ASSERT_EQ((-(ExactDecimal{-x} * ExactDecimal{y})).value(), expected) << x << " " << y;
    }
}

TEST(ExactDecimal, WhateverWasAddedCanBeTakenAwayInAnyOrder) {
    std::mt19937_64 random{7};
    for (int round = 0; round < 200; ++round) {
        std::vector<double> numbers;
        ExactDecimal sum;
        for (int i = 0; i < 20; ++i) {
            const int exponent = static_cast<int>(random() % 600) - 300;
            const double size = number(std::to_string(random() % 100000) + "e" + std::to_string(exponent));
            numbers.push_back(random() % 2 == 0 ? size : -size);
            sum += ExactDecimal{numbers.back()};
        }
        sum += ExactDecimal{0.7};
        std::shuffle(numbers.begin(), numbers.end(), random);
        for (const double each : numbers) {
            sum += ExactDecimal{-each};
        }
        ASSERT_EQ(sum.value(), 0.7);
        sum += ExactDecimal{-0.7};
        ASSERT_EQ(sum.value(), 0.0);
        ASSERT_EQ(sum.exponent(), 0);
    }
}

TEST(ExactDecimal, ATenthIsATenth) {
    ExactDecimal sum;
    for (int i = 0; i < 10; ++i) {
        sum += ExactDecimal{0.1};
    }
    EXPECT_EQ(sum.value(), 1.0);
    EXPECT_EQ((ExactDecimal{0.1} * ExactDecimal{0.1}).value(), 0.01);
    EXPECT_EQ((ExactDecimal{1.0} - ExactDecimal{1e-300}).value(), 1.0);
}

TEST(ExactDecimal, EveryDoubleComesBackAsItWas) {
    std::mt19937_64 random{99};
    for (const double value : {0.0, 5e-324, 1.7976931348623157e308, -2.2250738585072014e-308, 1e22, 1e23, -1e-9}) {
        EXPECT_EQ(ExactDecimal{value}.value(), value);
    }
    for (int i = 0; i < 20000; ++i) {
        const double value =
            number(std::to_string(random()) + "e" + std::to_string(static_cast<int>(random() % 580) - 310));
        ASSERT_EQ(ExactDecimal{value}.value(), value);
        ASSERT_EQ(ExactDecimal{-value}.value(), -value);
    }
}

TEST(ExactDecimal, BeyondTheRangeIsTheRangeFailureAndBelowItIsZero) {
    const ExactDecimal large = ExactDecimal{1e200} * ExactDecimal{1e200};
    EXPECT_THROW(static_cast<void>(large.value()), Failure);
    EXPECT_EQ(large.value(-100), 1e300);
    const ExactDecimal small = ExactDecimal{1e-200} * ExactDecimal{1e-200};
    EXPECT_EQ(small.value(), 0.0);
    EXPECT_EQ(small.value(300), 1e-100);
}

}  // namespace
}  // namespace tallyforge
