// SPDX-License-Identifier: GPL-3.0-or-later
//
// Rounding against a second method: the digits on paper, in whole numbers.
#include "numbers/number_format.h"

#include <gtest/gtest.h>

#include <cmath>
#include <cstdlib>
#include <string>

namespace tallyforge {
namespace {

double decimal(long digits, int exponent) {
    return std::strtod((std::to_string(digits) + "e" + std::to_string(exponent)).c_str(), nullptr);
}

/// digits * 10^exponent with `places` behind the point, a tie to the even neighbour.
double onPaper(long digits, int exponent, int places) {
    constexpr int kMostDropped = 6;
    const int dropped = -exponent - places;
    if (dropped <= 0) {
        return decimal(digits, exponent);
    }
    if (dropped > kMostDropped) {
        return 0.0;
    }
    long divisor = 1;
    for (int i = 0; i < dropped; ++i) {
        divisor *= 10;
    }
    const long kept = digits / divisor;
    const long twice = 2 * (digits % divisor);
    const bool up = twice > divisor || (twice == divisor && kept % 2 != 0);
    return decimal(kept + (up ? 1 : 0), -places);
}

TEST(Rounding, OfAllDecimalsOfOneToFourDigitsAtAllPlacesIsThatOnPaper) {
    constexpr long kFourDigits = 9999;
    for (long digits = 0; digits <= kFourDigits; ++digits) {
        for (int exponent = -7; exponent <= 2; ++exponent) {
            const double value = decimal(digits, exponent);
            for (int places = 0; places <= 8; ++places) {
                const double expected = onPaper(digits, exponent, places);
                ASSERT_EQ(roundHalfEven(value, places), expected) << value << " at " << places;
                ASSERT_EQ(roundHalfEven(-value, places), -expected) << -value << " at " << places;
            }
        }
    }
}

TEST(Rounding, AtPlacesThatNoNumberHasLeavesItsExactValue) {
    for (const double value : {0.1 + 0.2, 1.0 / 3.0, 5e-324, 1.7976931348623157e308, 123456789.12345678}) {
        for (const int places : {20, 23, 340}) {
            EXPECT_EQ(roundHalfEven(value, value < 1e-20 ? 340 : places), value);
        }
    }
}

}  // namespace
}  // namespace tallyforge
