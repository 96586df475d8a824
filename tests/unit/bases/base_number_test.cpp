// SPDX-License-Identifier: GPL-3.0-or-later
#include "bases/base_number.h"

#include "bases/binary_keys.h"
#include "numbers/failure.h"

#include <gtest/gtest.h>

#include <cstdint>
#include <functional>
#include <limits>
#include <string>

namespace tallyforge {
namespace {

constexpr std::uint64_t kLargest = std::numeric_limits<std::uint64_t>::max();

FailureNumber failureOf(const std::function<void()>& action) {
    try {
        action();
    } catch (const Failure& failure) {
        return failure.number();
    }
    return FailureNumber{0};
}

TEST(BaseNumber, ConvertsBetweenTheFourBases) {
    EXPECT_EQ(Dec2Hex(511), "1FF");
    EXPECT_EQ(Hex2Dec("1FF"), 511U);
    EXPECT_EQ(Hex2Bin("1FF"), "111111111");
    EXPECT_EQ(Bin2Hex("00011111"), "1F");
    EXPECT_EQ(Bin2Dec("101"), "5");
    EXPECT_EQ(Oct2Bin("17"), "1111");
    EXPECT_EQ(Dec2Oct("255"), "377");
    EXPECT_EQ(ConvertBin("#377o"), "255");
    EXPECT_EQ(tagged(0, 'h'), "#0h");
}

TEST(BaseNumber, TheLargestNumberConvertsAndItsNeighbourDoesNot) {
    EXPECT_EQ(Real2Bin("18446744073709551615", 'h', '.'), "FFFFFFFFFFFFFFFF");
    EXPECT_EQ(failureOf([] { (void)Real2Bin("18446744073709551616", 'h', '.'); }), FailureNumber::Overflow);
    EXPECT_TRUE(ExceedsWord("18446744073709551616"));
    EXPECT_FALSE(ExceedsWord("18446744073709551615"));
    EXPECT_TRUE(ExceedsWord("111111111111111111111"));
    EXPECT_FALSE(ExceedsWord("#99999999999999999999d"));
}

TEST(BaseNumber, WrongDigitsAndTooManyBitsAreRefused) {
    EXPECT_EQ(failureOf([] { (void)readDigits("129", 'o'); }), FailureNumber::TypeMismatch);
    EXPECT_EQ(failureOf([] { (void)readDigits("1G", 'h'); }), FailureNumber::TypeMismatch);
    EXPECT_EQ(failureOf([] { (void)readDigits("ff", 'h'); }), FailureNumber::TypeMismatch);
    EXPECT_EQ(failureOf([] { (void)readDigits("", 'b'); }), FailureNumber::TypeMismatch);
    EXPECT_EQ(failureOf([] { (void)readDigits(std::string(65, '1'), 'b'); }), FailureNumber::BaseRange);
    EXPECT_EQ(readDigits(std::string(64, '1'), 'b'), kLargest);
    EXPECT_EQ(failureOf([] { (void)readDigits("10000000000000000", 'h'); }), FailureNumber::Overflow);
}

TEST(BaseNumber, APlainNumberGoesByItsWholeValue) {
    EXPECT_EQ(Real2Bin(2.5, 'd', '.'), "2");
    EXPECT_EQ(Real2Bin(3.5, 'd', '.'), "4");
    EXPECT_EQ(Real2Bin(-7.0, 'd', '.'), "0");
    EXPECT_EQ(Real2Bin(1e18, 'd', '.'), "1000000000000000000");
    EXPECT_EQ(Real2Bin("1E+15", 'h', '.'), "38D7EA4C68000");
    EXPECT_EQ(Real2Bin("00012", 'd', '.'), "12");
    EXPECT_EQ(Real2Bin("1,5", 'd', ','), "2");
    EXPECT_EQ(Real2Bin("12345678901234.5", 'd', '.'), "12345678901235") << "sixteen characters round half up";
}

TEST(BaseNumber, AWordKeepsItsRightmostBitsInItsOwnBase) {
    EXPECT_EQ(cutToWord("1FF", 'h', 8), "FF");
    EXPECT_EQ(cutToWord("511", 'd', 8), "255");
    EXPECT_EQ(cutToWord("777", 'o', 8), "377");
    EXPECT_EQ(cutToWord("100000000", 'b', 8), "0");
    EXPECT_EQ(cutToWord("FFFFFFFFFFFFFFFF", 'h', 64), "FFFFFFFFFFFFFFFF");
    EXPECT_EQ(cutToWord("0007", 'o', 64), "7");
    EXPECT_EQ(cutToWord("1F", 'b', 8), "1F") << "digits that do not fit stand as they are";
}

struct Turned {
    const char* code;
    int word;
    const char* bits;
    const char* result;
};

TEST(BaseNumber, BitsShiftAndRotateInTheWord) {
    constexpr Turned kTurned[] = {
        {"rL", 8, "10000001", "00000011"},
        {"rR", 8, "1", "10000000"},
        {"sL", 8, "10000001", "00000010"},
        {"sR", 8, "10000001", "1000000"},
        {"AsR", 8, "10000000", "11000000"},
        {"sR", 8, "10000000", "1000000"},
        {"rLB", 16, "1111111100000001", "0000000111111111"},
        {"rRB", 16, "11111111", "1111111100000000"},
        {"sLB", 16, "11111111", "1111111100000000"},
        {"sRB", 16, "1111111100000001", "11111111"},
    };
    for (const Turned& turned : kTurned) {
        EXPECT_EQ(rotateShiftBits(turned.bits, turned.code, turned.word), turned.result) << turned.code;
    }
}

}  // namespace
}  // namespace tallyforge
